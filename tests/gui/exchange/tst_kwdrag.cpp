#include "gui/appearance/kwpixmaps.h"
#include "gui/exchange/kwdrag.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {
const QString guestType = s("application/ambrelune.guest");
const QString tableType = s("application/ambrelune.table");

/// Guests G0 to G3 and tables T0 to T2.
void fill(KWDocument &plan, const QString &fileName)
{
    plan.setFileName(fileName);
    addGuests(plan, 4);
    for (const char *name : {"T0", "T1", "T2"})
        addTable(plan, name, KWTable::Circular, 4);
}

QByteArray guestPayload(const KWDocument &plan, const QList<KWGuest *> &guests)
{
    const KWDrag drag(&plan, guests, nullptr);
    return drag.mimeData()->data(guestType);
}

QByteArray tablePayload(const KWDocument &plan, const KWTable *table)
{
    const KWDrag drag(&plan, table, nullptr);
    return drag.mimeData()->data(tableType);
}

/// A drag as it comes from another process: its bytes only.
std::unique_ptr<QMimeData> foreign(const QString &type, const QByteArray &payload)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(type, payload);
    return data;
}

/// The names of the guests that a payload gives, joined with blanks.
QString decodedGuests(const KWDocument &plan, const QByteArray &payload)
{
    QStringList names;
    for (const KWGuest *guest : KWDrag::decodeGuests(foreign(guestType, payload).get(), &plan))
        names.append(guest->displayName());
    return names.join(u' ');
}

/// The name of the table that a payload gives, "-" for none.
QString decodedTable(const KWDocument &plan, const QByteArray &payload)
{
    const KWTable *table = KWDrag::decodeTable(foreign(tableType, payload).get(), &plan);
    return table ? table->name() : s("-");
}
} // namespace

class TestKWDrag : public QObject
{
    Q_OBJECT

private slots:
    void guestsTravelAsTheFileNameAndTheirPositions()
    {
        KWDocument plan;
        fill(plan, s("C:\\Plans\\ann.kw"));
        QCOMPARE(guestPayload(plan, {plan.guestAt(0), plan.guestAt(3)}),
                 QByteArray("C:\\Plans\\ann.kw#0#3"));
    }

    void aTableTravelsAsTheFileNameAndItsPosition()
    {
        KWDocument plan;
        fill(plan, s("C:\\Plans\\ann.kw"));
        QCOMPARE(tablePayload(plan, plan.tableAt(2)), QByteArray("C:\\Plans\\ann.kw#2"));
    }

    void anUnsavedPlanHasAnEmptyFirstField()
    {
        KWDocument plan;
        fill(plan, QString());
        QCOMPARE(guestPayload(plan, {plan.guestAt(1)}), QByteArray("#1"));
        QCOMPARE(tablePayload(plan, plan.tableAt(0)), QByteArray("#0"));
    }

    void theOrderAndDuplicatesAreKept()
    {
        KWDocument plan;
        fill(plan, s("/ann.kw"));
        const QList<KWGuest *> guests{plan.guestAt(3), plan.guestAt(0), plan.guestAt(3)};
        const KWDrag drag(&plan, guests, nullptr);
        QCOMPARE(drag.mimeData()->data(guestType), QByteArray("/ann.kw#3#0#3"));
        QCOMPARE(KWDrag::decodeGuests(drag.mimeData(), &plan), guests);
    }

    void whatIsNotOfThePlanIsLeftOut()
    {
        KWDocument plan;
        fill(plan, s("/ann.kw"));
        KWDocument other;
        fill(other, s("/ann.kw"));
        QCOMPARE(guestPayload(plan, {other.guestAt(0), plan.guestAt(1), nullptr}),
                 QByteArray("/ann.kw#1"));
        QCOMPARE(tablePayload(plan, other.tableAt(1)), QByteArray("/ann.kw"));
        QCOMPARE(tablePayload(plan, nullptr), QByteArray("/ann.kw"));
    }

    void aDragHasItsNameAndItsSource()
    {
        KWDocument plan;
        fill(plan, QString());
        QWidget source;
        const KWDrag guests(&plan, plan.guests(), &source);
        QCOMPARE(guests.objectName(), s("drag guests"));
        QCOMPARE(guests.source(), &source);
        const KWDrag table(&plan, plan.tableAt(0), &source);
        QCOMPARE(table.objectName(), s("drag table"));
        QCOMPARE(table.source(), &source);
    }

    void aDragShowsItsPicture()
    {
        KWDocument plan;
        fill(plan, QString());
        const KWPixmaps &pixmaps = KWPixmaps::instance();
        QVERIFY(pixmaps.dragGuest().cacheKey() != pixmaps.dragTable().cacheKey());
        QWidget source;
        for (QWidget *widget : {&source, static_cast<QWidget *>(nullptr)}) {
            const KWDrag guests(&plan, plan.guests(), widget);
            QCOMPARE(guests.pixmap().cacheKey(), pixmaps.dragGuest().cacheKey());
            const KWDrag table(&plan, plan.tableAt(0), widget);
            QCOMPARE(table.pixmap().cacheKey(), pixmaps.dragTable().cacheKey());
        }
    }

    void aDragOffersItsTypeInAnyLetterCaseAndNoOther()
    {
        KWDocument plan;
        fill(plan, s("/ann.kw"));
        const KWDrag guests(&plan, {plan.guestAt(1)}, nullptr);
        const QMimeData *data = guests.mimeData();
        QCOMPARE(data->formats(), QStringList{guestType});
        for (const char *type : {"application/ambrelune.guest", "Application/AMBRELUNE.Guest"}) {
            QVERIFY(data->hasFormat(s(type)));
            QCOMPARE(data->data(s(type)), QByteArray("/ann.kw#1"));
        }
        for (const char *type : {"application/ambrelune.table", "text/plain", ""}) {
            QVERIFY(!data->hasFormat(s(type)));
            QCOMPARE(data->data(s(type)), QByteArray());
        }
        const KWDrag table(&plan, plan.tableAt(0), nullptr);
        QCOMPARE(table.mimeData()->formats(), QStringList{tableType});
        QVERIFY(table.mimeData()->hasFormat(tableType));
        QVERIFY(!table.mimeData()->hasFormat(guestType));
    }

    void anEmptyPayloadIsNotOffered()
    {
        KWDocument plan;
        fill(plan, QString());
        const KWDrag drag(&plan, QList<KWGuest *>(), nullptr);
        QCOMPARE(drag.mimeData()->formats(), QStringList{guestType});
        QVERIFY(!drag.mimeData()->hasFormat(guestType));
        QCOMPARE(drag.mimeData()->data(guestType), QByteArray());
    }

    void aFileNameBeyondLatin1IsStillRecognised()
    {
        KWDocument plan;
        fill(plan, s("/Zoë/Łódź – 🎂.kw"));
        const KWDrag guests(&plan, {plan.guestAt(2)}, nullptr);
        QCOMPARE(guests.mimeData()->data(guestType), QByteArray("/Zo\xeb/?\xf3"
                                                                "d? ? ?"
                                                                "?.kw#2"));
        QCOMPARE(KWDrag::decodeGuests(guests.mimeData(), &plan), QList{plan.guestAt(2)});
        const KWDrag table(&plan, plan.tableAt(1), nullptr);
        QCOMPARE(KWDrag::decodeTable(table.mimeData(), &plan), plan.tableAt(1));
    }

    void namesThatDifferOnlyBeyondLatin1AreToldApart()
    {
        KWDocument sender;
        fill(sender, s("/plans/婚礼.kw"));
        KWDocument receiver;
        fill(receiver, s("/plans/晚宴.kw"));
        const KWDrag guests(&sender, {sender.guestAt(2)}, nullptr);
        QCOMPARE(KWDrag::decodeGuests(guests.mimeData(), &receiver), QList<KWGuest *>());
        QCOMPARE(decodedGuests(receiver, guestPayload(sender, {sender.guestAt(2)})), QString());
    }

    void aDragFromAPlanWithTheSeparatorInItsPathFindsNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("inside") << s("/plans #1/ann.kw");
        QTest::newRow("before a number") << s("/ann.kw#1");
        QTest::newRow("at the end") << s("/ann.kw#");
        QTest::newRow("alone") << s("#");
    }

    void aDragFromAPlanWithTheSeparatorInItsPathFindsNothing()
    {
        QFETCH(QString, path);
        KWDocument plan;
        fill(plan, path);
        const KWDrag guests(&plan, plan.guests(), nullptr);
        QCOMPARE(guests.mimeData()->data(guestType), path.toLatin1() + "#0#1#2#3");
        QVERIFY(guests.mimeData()->hasFormat(guestType));
        QCOMPARE(KWDrag::decodeGuests(guests.mimeData(), &plan), QList<KWGuest *>());
        const KWDrag table(&plan, plan.tableAt(1), nullptr);
        QCOMPARE(KWDrag::decodeTable(table.mimeData(), &plan), nullptr);
    }

    void aSecondProcessWithTheSameFileFindsTheSamePositionsAsFarAsTheyExist()
    {
        KWDocument sender;
        fill(sender, s("/plans/ann.kw"));
        KWDocument receiver;
        receiver.setFileName(s("/plans/ann.kw"));
        addGuests(receiver, 2);
        addTable(receiver, "only", KWTable::Circular, 4);
        const QByteArray guests = guestPayload(
            sender, {sender.guestAt(3), sender.guestAt(1), sender.guestAt(2), sender.guestAt(0)});
        QCOMPARE(decodedGuests(receiver, guests), s("G1 G0"));
        QCOMPARE(decodedTable(receiver, tablePayload(sender, sender.tableAt(0))), s("only"));
        QCOMPARE(decodedTable(receiver, tablePayload(sender, sender.tableAt(1))), s("-"));
    }

    void twoUnsavedPlansExchangeByPosition()
    {
        KWDocument sender;
        fill(sender, QString());
        KWDocument receiver;
        fill(receiver, s(""));
        QCOMPARE(decodedGuests(receiver, guestPayload(sender, {sender.guestAt(2)})), s("G2"));
        QCOMPARE(decodedTable(receiver, tablePayload(sender, sender.tableAt(2))), s("T2"));
    }

    void aDragFromAnotherPlanIsRefused()
    {
        KWDocument sender;
        fill(sender, s("/plans/bob.kw"));
        for (const char *path : {"/plans/ann.kw", "/plans/bob.kw2", "/plans/bob", ""}) {
            KWDocument receiver;
            fill(receiver, s(path));
            QCOMPARE(decodedGuests(receiver, guestPayload(sender, sender.guests())), QString());
            QCOMPARE(decodedTable(receiver, tablePayload(sender, sender.tableAt(0))), s("-"));
        }
    }

    void fileNamesAreComparedWithoutRegardToCase()
    {
        KWDocument plan;
        fill(plan, s("C:\\Plans\\Zoë.kw"));
        QCOMPARE(decodedGuests(plan, "c:\\PLANS\\ZO\xcb.KW#1"), s("G1"));
        QCOMPARE(decodedTable(plan, "c:\\plans\\zo\xeb.kw#1"), s("T1"));
    }

    void aTypeIsNotTakenForTheOther()
    {
        KWDocument plan;
        fill(plan, s("/ann.kw"));
        const KWDrag guests(&plan, {plan.guestAt(1)}, nullptr);
        QCOMPARE(KWDrag::decodeTable(guests.mimeData(), &plan), nullptr);
        const KWDrag table(&plan, plan.tableAt(1), nullptr);
        QCOMPARE(KWDrag::decodeGuests(table.mimeData(), &plan), QList<KWGuest *>());
    }

    void nothingComesFromNoSource()
    {
        KWDocument plan;
        fill(plan, QString());
        QCOMPARE(KWDrag::decodeGuests(nullptr, &plan), QList<KWGuest *>());
        QCOMPARE(KWDrag::decodeTable(nullptr, &plan), nullptr);
        const QMimeData empty;
        QCOMPARE(KWDrag::decodeGuests(&empty, &plan), QList<KWGuest *>());
        QCOMPARE(KWDrag::decodeTable(&empty, &plan), nullptr);
    }

    void aPartThatIsNoPositionIsPassedOver_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QString>("guests");
        QTest::addColumn<QString>("table");
        const auto row = [](const char *name, const QByteArray &payload, const char *guests,
                            const char *table) {
            QTest::newRow(name) << payload << s(guests) << s(table);
        };
        row("nothing", "", "", "-");
        row("file name only", "/ann.kw", "", "-");
        row("empty part", "/ann.kw#", "", "-");
        row("the first", "/ann.kw#0", "G0", "T0");
        row("the last table", "/ann.kw#2", "G2", "T2");
        row("behind the last table", "/ann.kw#3", "G3", "-");
        row("behind the last guest", "/ann.kw#4", "", "-");
        row("below zero", "/ann.kw#-1", "", "-");
        row("several", "/ann.kw#2#1", "G2 G1", "-");
        row("empty behind a number", "/ann.kw#1#", "G1", "-");
        row("mixed", "/ann.kw#9#1#-3##x#0", "G1 G0", "-");
        row("word", "/ann.kw#one", "", "-");
        row("number with a letter", "/ann.kw#1x", "", "-");
        row("fraction", "/ann.kw#1.0", "", "-");
        row("hexadecimal", "/ann.kw#0x1", "", "-");
        row("wraps round 32 bits", "/ann.kw#4294967297", "", "-");
        row("wraps round 64 bits", "/ann.kw#18446744073709551617", "", "-");
        row("largest", "/ann.kw#2147483647", "", "-");
        row("smallest", "/ann.kw#-2147483648", "", "-");
        row("NUL for a number", QByteArray("/ann.kw#\0", 9), "", "-");
        row("NUL before a number", QByteArray("/ann.kw#\0001", 10), "", "-");
        row("NUL in the name", QByteArray("/ann.kw\0#1", 10), "", "-");
        row("other digits", "/ann.kw#\xb9", "", "-");
    }

    void aPartThatIsNoPositionIsPassedOver()
    {
        QFETCH(QByteArray, payload);
        KWDocument plan;
        fill(plan, s("/ann.kw"));
        QTEST(decodedGuests(plan, payload), "guests");
        QTEST(decodedTable(plan, payload), "table");
    }

    void aHostilePayloadFindsNothingAndEnds_data()
    {
        QTest::addColumn<QByteArray>("payload");
        constexpr int size = 4'000'000;
        QTest::newRow("separators") << QByteArray(size, '#');
        QTest::newRow("digits") << "#" + QByteArray(size, '9');
        QTest::newRow("zeros") << "#x" + QByteArray(size, '0');
        QTest::newRow("NULs") << QByteArray(size, '\0');
        QTest::newRow("NULs for a number") << "#" + QByteArray(size, '\0');
        QTest::newRow("highest bytes") << "#" + QByteArray(size, '\xff');
        QTest::newRow("far away") << QByteArray("#2147483647").repeated(size / 11);
    }

    void aHostilePayloadFindsNothingAndEnds()
    {
        QFETCH(QByteArray, payload);
        KWDocument plan;
        fill(plan, QString());
        QCOMPARE(decodedGuests(plan, payload), QString());
        QCOMPARE(decodedTable(plan, payload), s("-"));
    }
};

REGISTER_TEST(TestKWDrag)
#include "tst_kwdrag.moc"
