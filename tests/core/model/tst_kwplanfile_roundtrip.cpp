#include "planfile.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QtTest>

#include <random>

namespace {
QString shown(const KWGuest *guest)
{
    return QStringList{guest->displayName(),
                       guest->title(),
                       guest->firstName(),
                       guest->lastName(),
                       guest->meal(),
                       guest->notes(),
                       s("%1 %2 %3 %4 %5")
                           .arg(guest->gender())
                           .arg(guest->age())
                           .arg(guest->isLocked())
                           .arg(guest->isVip())
                           .arg(guest->isAccepted())}
        .join(u'|');
}

QString shown(const KWDocument &plan, const KWGroup *group)
{
    const KWContact &c = group->contact();
    QStringList texts{group->name(), group->notes(), c.address1,     c.address2,
                      c.city,        c.state,        c.zip,          c.country,
                      c.work_phone,  c.home_phone,   c.mobile_phone, c.email};
    for (const KWGuest *guest : group->guests())
        texts.append(QString::number(plan.indexOfGuest(guest)));
    return texts.join(u'|');
}

QString shown(const KWDocument &plan, const KWTable *table)
{
    QStringList texts{table->name(), table->notes()};
    for (const int number :
         {table->shape(), table->seatsAcross(), table->seatsDown(), table->seatsAcross2(),
          table->seatsDown2(), table->position().x(), table->position().y(), table->score()})
        texts.append(QString::number(number));
    for (const KWGuest *guest : table->seats())
        texts.append(QString::number(plan.indexOfGuest(guest)));
    return texts.join(u'|');
}

/// Everything in the lists of a plan, a line for each object, by getters and not by the writer.
QStringList contentsOf(const KWDocument &plan)
{
    QStringList lines;
    for (const KWGuest *guest : plan.guests())
        lines.append(shown(guest));
    for (const KWGroup *group : plan.groups())
        lines.append(shown(plan, group));
    for (const KWTable *table : plan.tables())
        lines.append(shown(plan, table));
    for (const KWDocument::Affinity &wish : plan.affinities())
        lines.append(s("%1 %2 %3")
                         .arg(plan.indexOfGuest(wish.first))
                         .arg(plan.indexOfGuest(wish.second))
                         .arg(wish.value));
    return lines;
}

/// Saves and loads by way of a file.
void saveAndLoad(Plan &from, Plan &to)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(s("a.kw"));
    QCOMPARE(from.document.save(path, from.views), 0);
    to.load(path);
    QCOMPARE(to.result, 0);
}

/// Texts of all kinds of characters.
class TextSource
{
public:
    explicit TextSource(unsigned seed)
        : m_engine(seed)
    {
    }
    int draw(int n) { return static_cast<int>(m_engine() % static_cast<unsigned>(n)); }
    QString text()
    {
        static const QString characters = QStringLiteral(
            "aZ09 !()*-./_~,;%&<>\"'=+#?\t\r\néßœ€אб中🎂\u0001\u007F\u00A0\u202E\uFEFF");
        QString result;
        for (int left = draw(12); left > 0; --left) {
            // Both halves of a pair, or the text would be no text.
            const int at = draw(static_cast<int>(characters.size()));
            if (characters.at(at).isSurrogate())
                result += s("🎂");
            else
                result += characters.at(at);
        }
        return result;
    }

private:
    std::mt19937 m_engine;
};

/// Gives the objects of a random plan texts, positions and seats to lose.
void furnish(KWDocument &plan, unsigned seed)
{
    TextSource source(seed);
    const auto text = [&] { return source.text(); };
    for (KWGuest *guest : plan.guests())
        plan.editGuest(guest, {.display_name = text(),
                               .title = text(),
                               .first_name = text(),
                               .last_name = text(),
                               .meal = text(),
                               .gender = guest->gender(),
                               .age = guest->age(),
                               .locked = guest->isLocked(),
                               .notes = text(),
                               .vip = guest->isVip(),
                               .accepted = source.draw(2) == 0});
    for (KWGroup *group : plan.groups()) {
        const KWContact contact(text(), text(), text(), text(), text(), text(), text(), text(),
                                text(), text());
        plan.editGroup(group, contact, text(), text());
    }
    for (KWTable *table : plan.tables()) {
        plan.moveTable(table, source.draw(5000) - 1000, source.draw(5000) - 1000);
        plan.setTableName(table, text());
    }
    plan.randomLayout();
    for (KWGuest *guest : plan.seatedGuests()) {
        if (source.draw(3) == 0)
            plan.unassignGuest(guest, false);
    }
    plan.recalculateScores();
}
} // namespace

class TestPlanFileRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void examplesAreSavedAsTheyWereLoaded_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *name : {"small", "wedding", "banquet"})
            QTest::newRow(name) << sourcePath("examples/") + s(name) + s(".kw");
    }

    void examplesAreSavedAsTheyWereLoaded()
    {
        QFETCH(QString, path);
        QTest::failOnWarning(QRegularExpression(s(".*")));
        Plan plan(path);
        QCOMPARE(plan.result, 0);
        QVERIFY(!plan.versionDiffers);
        QVERIFY(plan.document.guestCount() > 0);
        const QTemporaryDir folder;
        const QString copy = folder.filePath(s("copy.kw"));
        QCOMPARE(plan.document.save(copy, plan.views), 0);
        QCOMPARE(readFile(copy), readFile(path));
    }

    void randomPlansComeBackWithTheirListsInOrder_data()
    {
        QTest::addColumn<RandomPlan>("shape");
        QTest::newRow("usual") << RandomPlan{};
        QTest::newRow("no tables") << RandomPlan{.seats = 0, .locked = 0, .seed = 2};
        QTest::newRow("no wishes") << RandomPlan{.wishes = 0, .seed = 3};
        QTest::newRow("more seats than guests")
            << RandomPlan{.guests = 10, .seats = 90, .wishes = 30, .seed = 4};
        QTest::newRow("more guests than seats")
            << RandomPlan{.guests = 90, .seats = 30, .wishes = 300, .seed = 5};
        QTest::newRow("large") << RandomPlan{
            .guests = 500, .seats = 500, .wishes = 3000, .locked = 50, .seed = 6};
    }

    void randomPlansComeBackWithTheirListsInOrder()
    {
        QFETCH(RandomPlan, shape);
        Plan plan;
        fillRandomly(plan.document, shape);
        furnish(plan.document, shape.seed);
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(contentsOf(back.document), contentsOf(plan.document));
        QCOMPARE(back.document.totalScore(), plan.document.totalScore());
        QCOMPARE(back.text(), plan.text());
    }

    void namesAndNotesKeepForeignLettersQuotesCommasAndLineBreaks()
    {
        const QString name = s("Éloïse \"Lou\" O'Hara, née Żółć, 王");
        const QString note = s("first line\nsecond; <b>100%</b> & more\r\n\tthird +1");
        Plan plan;
        addGuest(plan.document, {}, plan.document.addGroup({}, name, note));
        plan.document.editGuest(plan.document.guestAt(0), {.display_name = name,
                                                           .title = name,
                                                           .first_name = name,
                                                           .last_name = name,
                                                           .meal = name,
                                                           .notes = note});
        plan.document.addTable(KWTable::Circular, name, 3, 0, 0, 0, {}, note);
        plan.document.setNotes(note);
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(back.document.guestAt(0)->displayName(), name);
        QCOMPARE(back.document.guestAt(0)->meal(), name);
        QCOMPARE(back.document.guestAt(0)->notes(), note);
        QCOMPARE(back.document.groupAt(0)->name(), name);
        QCOMPARE(back.document.groupAt(0)->notes(), note);
        QCOMPARE(back.document.tableAt(0)->name(), name);
        QCOMPARE(back.document.tableAt(0)->notes(), note);
        QCOMPARE(back.document.notes(), note);
    }

    void roomSizeComesBackWithSixSignificantDigits()
    {
        Plan plan;
        plan.document.setRoomXSize(12.3456789);
        plan.document.setRoomYSize(0.000123456789);
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(back.document.roomXSize(), double(12.3457F));
        QCOMPARE(back.document.roomYSize(), double(0.000123457F));
        QCOMPARE(settingIn(back.text(), s("room_x_size")), s("12.3457"));
    }

    void membersOfAGroupComeBackInTheOrderOfTheGuestList()
    {
        Plan plan;
        KWGroup *family = plan.document.addGroup({}, s("family"), {});
        KWGroup *friends = plan.document.addGroup({}, s("friends"), {});
        KWGuest *ann = addGuest(plan.document, {.name = "Ann"}, friends);
        addGuest(plan.document, {.name = "Bob"}, family);
        plan.document.moveGuestToGroup(family, ann);
        QCOMPARE(family->guestAt(1), ann);
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(back.document.groupAt(0)->guestAt(0)->displayName(), s("Ann"));
        QCOMPARE(back.document.groupAt(0)->guestAt(1)->displayName(), s("Bob"));
        QCOMPARE(back.document.groupAt(1)->guestCount(), 0);
    }

    void whatThePlanDoesNotKeepStartsAfresh()
    {
        Plan plan;
        plan.document.appendHistory(s("mutation"));
        plan.document.abortProcessing();
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(back.document.history(), QString());
        QVERIFY(!back.document.abortRequested());
    }

    void nullCharactersAreLost()
    {
        Plan plan;
        plan.document.setEvent(s("a") + QChar(u'\0') + s("b"));
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(back.document.event(), s("ab"));
    }

    void sameNamesAreKeptApartByTheirPositions()
    {
        Plan plan;
        KWGroup *group = plan.document.addGroup({}, s("group"), {});
        for (int i = 0; i < 3; ++i)
            addGuest(plan.document, {.name = "Ann"}, group);
        KWTable *table = addTable(plan.document, "T", KWTable::Circular, 3);
        plan.document.assignGuest(plan.document.guestAt(2), table, 0, false);
        plan.document.setAffinity(plan.document.guestAt(2), plan.document.guestAt(1),
                                  KWScore::Hates, true);
        Plan back;
        saveAndLoad(plan, back);
        QCOMPARE(contentsOf(back.document), contentsOf(plan.document));
        QVERIFY(back.document.guestAtSeat(back.document.tableAt(0), 0));
        QCOMPARE(back.document.affinity(back.document.guestAt(1), back.document.guestAt(2)),
                 int(KWScore::Hates));
    }
};

REGISTER_TEST(TestPlanFileRoundTrip)
#include "tst_kwplanfile_roundtrip.moc"
