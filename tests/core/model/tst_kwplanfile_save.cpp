#include "core/model/kwplansettings.h"
#include "core/model/kwplantext.h"
#include "filesizelimit.h"
#include "planfile.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

namespace {
using Attributes = QMap<QString, QString>;

/// A plan with two groups, three guests, a table of each kind and two wishes.
void fill(KWDocument &plan)
{
    KWGroup *family = plan.addGroup({}, s("family"), {});
    KWGroup *friends = plan.addGroup({}, s("friends"), {});
    KWGuest *ann = addGuest(plan, {.name = "Ann"}, friends);
    KWGuest *bob = addGuest(plan, {.name = "Bob"}, family);
    KWGuest *cid = addGuest(plan, {.name = "Cid"}, nullptr);
    KWTable *round = addTable(plan, "round", KWTable::Circular, 5);
    KWTable *sides = addRectangular(plan, "sides", 1, 0);
    addCustom(plan, "custom", 1, 2, 3, 4);
    plan.assignGuest(cid, round, 1, false);
    plan.assignGuest(ann, round, 4, false);
    plan.assignGuest(bob, sides, 0, false);
    plan.setAffinity(cid, ann, KWScore::Hates, false);
    plan.setAffinity(ann, bob, KWScore::Loves, false);
}
} // namespace

class TestPlanFileSave : public QObject
{
    Q_OBJECT

private slots:
    void rootHoldsTheSettingsAndThenTheFourLists()
    {
        Plan plan;
        fill(plan.document);
        plan.document.setFloorplanColourSelected(Qt::blue);
        const QByteArray text = plan.text();
        QVERIFY(text.startsWith("<!DOCTYPE ambrelune>\n<root>\n"));

        QStringList paths{s("root"), s("root/version")};
        for (const KWPlanSetting &setting : planSettings())
            paths.append(s("root/") + setting.key);
        const auto list = [&](const char *name, const char *child, int count) {
            paths.append(s("root/") + s(name));
            for (int i = 0; i < count; ++i)
                paths.append(s("root/") + s(name) + u'/' + s(child));
        };
        list("guests", "guest", 3);
        list("groups", "group", 2);
        list("tables", "table", 3);
        list("affinities", "affinity", 2);
        QStringList written;
        for (const PlanElement &element : elementsOf(text))
            written.append(element.path);
        QCOMPARE(written, paths);
    }

    void settingsHaveTheirValueAsTheOnlyAttribute()
    {
        Plan plan;
        plan.document.setFloorplanColourSelected(Qt::blue);
        const QList<PlanElement> elements = elementsOf(plan.text());
        // The root, the version, the settings and the lists.
        QCOMPARE(elements.size(), 1 + 1 + 78 + 4);
        QCOMPARE(elements.at(1).attributes, (Attributes{{s("value"), s("2")}}));
        for (const PlanElement &element : elements.mid(1, 79))
            QCOMPARE(element.attributes.keys(), QStringList{s("value")});
    }

    void guestsHaveTheirFieldsAndTheIndexOfTheirGroup()
    {
        Plan plan;
        plan.document.addGroup({}, s("family"), {});
        KWGroup *friends = plan.document.addGroup({}, s("friends"), {});
        plan.document.addGuest({.display_name = s("Ann & Bob"),
                                .title = s("Mrs"),
                                .first_name = s("Änn"),
                                .last_name = s("O'Hara"),
                                .meal = s("fish, no dill"),
                                .gender = KWGuest::Female,
                                .age = KWGuest::Child,
                                .locked = true,
                                .notes = s("line\nbreak"),
                                .vip = true,
                                .accepted = true},
                               friends);
        QCOMPARE(elementsAt(plan.text(), "root/guests/guest").value(0).attributes,
                 (Attributes{{s("display_name"), s("Ann%20%26%20Bob")},
                             {s("title"), s("Mrs")},
                             {s("first_name"), s("%C3%84nn")},
                             {s("last_name"), s("O%27Hara")},
                             {s("meal"), s("fish%2C%20no%20dill")},
                             {s("gender"), s("Female")},
                             {s("age"), s("child")},
                             {s("locked"), s("1")},
                             {s("notes"), s("line%0Abreak")},
                             {s("vip"), s("1")},
                             {s("accepted"), s("1")},
                             {s("group"), s("1")}}));
    }

    void eachFlagOfAGuestHasItsOwnAttribute()
    {
        Plan plan;
        for (const char *flag : {"locked", "vip", "accepted"})
            plan.document.addGuest({.display_name = s(flag),
                                    .locked = s(flag) == s("locked"),
                                    .vip = s(flag) == s("vip"),
                                    .accepted = s(flag) == s("accepted")},
                                   nullptr);
        for (const PlanElement &guest : elementsAt(plan.text(), "root/guests/guest")) {
            for (const char *flag : {"locked", "vip", "accepted"})
                QCOMPARE(guest.attributes.value(s(flag)) == s("1"),
                         guest.attributes.value(s("display_name")) == s(flag));
        }
    }

    void guestsWithoutAGroupHaveNoSuchAttribute()
    {
        Plan plan;
        addGuest(plan.document, {});
        QCOMPARE(elementsAt(plan.text(), "root/guests/guest").value(0).attributes,
                 (Attributes{{s("display_name"), QString()},
                             {s("title"), QString()},
                             {s("first_name"), QString()},
                             {s("last_name"), QString()},
                             {s("meal"), QString()},
                             {s("gender"), s("Undefined")},
                             {s("age"), s("adult")},
                             {s("locked"), s("0")},
                             {s("notes"), QString()},
                             {s("vip"), s("0")},
                             {s("accepted"), s("0")}}));
    }

    void groupsHaveTheirContactButNotTheirMembers()
    {
        Plan plan;
        KWGroup *group =
            plan.document.addGroup({s("1 A St"), s("Flat 2"), s("Leith"), s("Fife"), s("EH1"),
                                    s("Scotland"), s("+44 1"), s("2"), s("3"), s("a@b.c")},
                                   s("family"), s("all of them"));
        addGuest(plan.document, {.name = "Ann"}, group);
        QCOMPARE(elementsAt(plan.text(), "root/groups/group").value(0).attributes,
                 (Attributes{{s("address1"), s("1%20A%20St")},
                             {s("address2"), s("Flat%202")},
                             {s("city"), s("Leith")},
                             {s("state"), s("Fife")},
                             {s("zip"), s("EH1")},
                             {s("country"), s("Scotland")},
                             {s("work_phone"), s("%2B44%201")},
                             {s("home_phone"), s("2")},
                             {s("mobile_phone"), s("3")},
                             {s("email"), s("a%40b.c")},
                             {s("name"), s("family")},
                             {s("notes"), s("all%20of%20them")}}));
    }

    void tableOfFiveSeatsHasFiveAssignedItemsWithMinusOneForEmptySeats()
    {
        Plan plan;
        fill(plan.document);
        plan.document.moveTable(plan.document.tableAt(0), -120, 345);
        QCOMPARE(elementsAt(plan.text(), "root/tables/table").value(0).attributes,
                 (Attributes{{s("table"), s("round")},
                             {s("shape"), s("0")},
                             {s("notes"), QString()},
                             {s("assigned"), s("-1%2C2%2C-1%2C-1%2C0")},
                             {s("X"), s("-120")},
                             {s("Y"), s("345")}}));
    }

    void onlyTablesWithSidesHaveSideCounts_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<QStringList>("sides");

        const QStringList two{s("seats_across"), s("seats_down")};
        const QStringList four{s("seats_across"), s("seats_across_2"), s("seats_down"),
                               s("seats_down_2")};
        QTest::newRow("circular") << int(KWTable::Circular) << QStringList();
        QTest::newRow("rectangular") << int(KWTable::Rectangular) << two;
        QTest::newRow("head, top") << int(KWTable::HeadTop) << QStringList();
        QTest::newRow("head, right") << int(KWTable::HeadRight) << QStringList();
        QTest::newRow("head, bottom") << int(KWTable::HeadBottom) << QStringList();
        QTest::newRow("head, left") << int(KWTable::HeadLeft) << QStringList();
        QTest::newRow("custom") << int(KWTable::Custom) << four;
    }

    void onlyTablesWithSidesHaveSideCounts()
    {
        QFETCH(int, shape);
        QFETCH(QStringList, sides);
        Plan plan;
        plan.document.addTable(shape, s("T"), 1, 2, 3, 4, {5, 6}, s("near the door"));
        const Attributes written = elementsAt(plan.text(), "root/tables/table").value(0).attributes;
        QCOMPARE(written.value(s("shape")), QString::number(shape));
        QCOMPARE(written.value(s("notes")), s("near%20the%20door"));
        const Attributes counts{{s("seats_across"), s("1")},
                                {s("seats_down"), s("2")},
                                {s("seats_across_2"), s("3")},
                                {s("seats_down_2"), s("4")}};
        QStringList named;
        for (const QString &name : counts.keys()) {
            if (!written.contains(name))
                continue;
            named.append(name);
            QCOMPARE(written.value(name), counts.value(name));
        }
        QCOMPARE(named, sides);
    }

    void wishesAreOrderedByTheirGuestsPositions()
    {
        Plan plan;
        const QList<KWGuest *> guests = addGuests(plan.document, 3);
        plan.document.setAffinity(guests[2], guests[0], KWScore::Hates, false);
        plan.document.setAffinity(guests[0], guests[1], KWScore::Loves, false);
        plan.document.setAffinity(guests[2], guests[1], KWScore::Dislikes, false);
        plan.document.setAffinity(guests[1], guests[1], KWScore::Likes, false);
        plan.document.setAffinity(guests[1], guests[0], KWScore::Neutral, false);
        plan.document.setAffinity(guests[1], guests[0], KWScore::Likes, false);
        QStringList written;
        for (const PlanElement &wish : elementsAt(plan.text(), "root/affinities/affinity"))
            written.append(QStringList(wish.attributes.values()).join(u' '));
        QCOMPARE(written, QStringList({s("1 0 1"), s("1 1 1"), s("2 0 4"), s("2 1 3")}));
    }

    void selectionColourIsWrittenOnlyWhenItIsThePlansOwn_data()
    {
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QString>("written");

        QTest::newRow("never set") << QColor() << QString();
        QTest::newRow("the system's") << QColor(Qt::darkCyan) << QString();
        QTest::newRow("another") << QColor(Qt::red) << s("255%2C0%2C0");
    }

    void selectionColourIsWrittenOnlyWhenItIsThePlansOwn()
    {
        QFETCH(QColor, colour);
        QFETCH(QString, written);
        const HooksGuard guard;
        modelHooks().selectionColour = [] { return QColor(Qt::darkCyan); };
        Plan plan;
        plan.document.setFloorplanColourSelected(colour);
        QCOMPARE(settingIn(plan.text(), s("floorplan_colour_selected")), written);
    }

    void savingReportsTheSettingsAsOneStepAndThenEachElement()
    {
        const QTemporaryDir folder;
        Plan plan;
        fill(plan.document);
        ProgressLog log;
        QCOMPARE(plan.document.save(folder.filePath(s("a.kw")), plan.views), 0);
        QStringList expected;
        for (int done = 78; done <= 88; ++done)
            expected.append(s("%1 of 88").arg(done));
        expected.append(s("finished"));
        QCOMPARE(log.take(), expected);
    }

    void savingAnnouncesTheNameOnlyAndLeavesThePlanUnmodified()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        Plan plan;
        fill(plan.document);
        EventLog events(plan.document);
        const QByteArray text = plan.text();
        QCOMPARE(plan.document.save(path, plan.views), 0);
        QCOMPARE(events.take(), QStringList{s("eventDocumentNameChange(%1)").arg(path)});
        QVERIFY(!plan.document.isModified());
        QCOMPARE(plan.document.fileName(), path);
        QCOMPARE(readFile(path), text);
        // Events flow again.
        plan.document.setEvent(s("Party"));
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
    }

    void savingOverALongerFileLeavesNothingOfIt()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        QVERIFY(writeFile(path, QByteArray(1'000'000, 'x')));
        Plan plan;
        QCOMPARE(plan.document.save(path, plan.views), 0);
        QCOMPARE(readFile(path), plan.text());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{s("a.kw")});
    }

    void savingThroughALinkKeepsTheLink()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        const QString link = folder.filePath(s("link.kw"));
        QVERIFY(writeFile(path, "old"));
        QVERIFY(QFile::link(path, link));
        Plan plan;
        QCOMPARE(plan.document.save(link, plan.views), 0);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(readFile(path), plan.text());
        QCOMPARE(plan.document.fileName(), link);
    }

    void savingWhereNothingCanBeWrittenFailsAndChangesNothing_data()
    {
        QTest::addColumn<QString>("path");

        QTest::newRow("folder that does not exist") << s("/nowhere/at/all/a.kw");
        QTest::newRow("folder") << QDir::tempPath();
        QTest::newRow("no name") << QString();
        QTest::newRow("full device") << s("/dev/full");
    }

    void savingWhereNothingCanBeWrittenFailsAndChangesNothing()
    {
        QFETCH(QString, path);
        Plan plan;
        fill(plan.document);
        plan.document.setFileName(s("before.kw"));
        EventLog events(plan.document);
        QCOMPARE(plan.document.save(path, plan.views), 4);
        QVERIFY(plan.document.isModified());
        QCOMPARE(plan.document.fileName(), s("before.kw"));
        QCOMPARE(events.take(), QStringList());
        plan.document.setEvent(s("Party"));
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
    }

    void savingThatBreaksOffLeavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        QVERIFY(writeFile(path, "the old plan"));
        Plan plan;
        fill(plan.document);
        {
            const FileSizeLimit limit(1000);
            QCOMPARE(plan.document.save(path, plan.views), 4);
        }
        QVERIFY(plan.document.isModified());
        QCOMPARE(readFile(path), QByteArray("the old plan"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{s("a.kw")});
    }

    void savingTwiceGivesTheSameBytes()
    {
        Plan plan;
        fillRandomly(plan.document, {});
        const QByteArray text = plan.text();
        QCOMPARE(plan.text(), text);
        const KWDocument copy = plan.document;
        QCOMPARE(copy.toPlanText(plan.views), text);
    }
};

REGISTER_TEST(TestPlanFileSave)
#include "tst_kwplanfile_save.moc"
