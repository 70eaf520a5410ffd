#include "planfile.h"
#include "support/eventlog.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
/// A guest element with a display name and what is given besides.
QByteArray guest(const char *name, const QByteArray &more = {})
{
    return "<guest display_name=\"" + QByteArray(name) + "\" age=\"adult\" " + more + "/>\n";
}

const QByteArray annBobCid = guest("Ann") + guest("Bob") + guest("Cid");

QString guestNames(const KWDocument &plan)
{
    QStringList names;
    for (const KWGuest *guest : plan.guests())
        names.append(guest->displayName());
    return names.join(u' ');
}

/// The stored wishes: "Ann-Bob 4", joined with commas.
QString wishes(const KWDocument &plan)
{
    QStringList texts;
    for (const KWDocument::Affinity &wish : plan.affinities())
        texts.append(s("%1-%2 %3")
                         .arg(wish.first->displayName(), wish.second->displayName(),
                              QString::number(wish.value)));
    return texts.join(u',');
}

QString membersOf(const KWGroup *group)
{
    QStringList names;
    for (const KWGuest *guest : group->guests())
        names.append(guest->displayName());
    return names.join(u' ');
}
} // namespace

class TestPlanFileLoad : public QObject
{
    Q_OBJECT

private slots:
    void guestHasItsFields()
    {
        const PlanOf plan(
            "<guest display_name=\"Ann%20%26%20Bob\" title=\"Mrs\" first_name=\"%C3%84nn\""
            " last_name=\"O%27Hara\" meal=\"fish%2C%20no%20dill\" gender=\"Female\" age=\"child\""
            " locked=\"1\" notes=\"line%0Abreak\" vip=\"1\" accepted=\"1\" group=\"0\"/>"
            "<guest gender=\"Male\" age=\"adult\" locked=\"0\" vip=\"0\" accepted=\"0\"/>");
        const KWGuest *ann = plan.document.guestAt(0);
        QCOMPARE(ann->displayName(), s("Ann & Bob"));
        QCOMPARE(ann->title(), s("Mrs"));
        QCOMPARE(ann->firstName(), s("Änn"));
        QCOMPARE(ann->lastName(), s("O'Hara"));
        QCOMPARE(ann->meal(), s("fish, no dill"));
        QCOMPARE(ann->gender(), int(KWGuest::Female));
        QCOMPARE(ann->age(), int(KWGuest::Child));
        QCOMPARE(ann->notes(), s("line\nbreak"));
        QVERIFY(ann->isLocked() && ann->isVip() && ann->isAccepted());
        QCOMPARE(ann->group(), plan.document.groupAt(0));
        const KWGuest *second = plan.document.guestAt(1);
        QCOMPARE(second->displayName(), QString());
        QCOMPARE(second->gender(), int(KWGuest::Male));
        QCOMPARE(second->age(), int(KWGuest::Adult));
        QVERIFY(!second->isLocked() && !second->isVip() && !second->isAccepted());
    }

    void eachFlagOfAGuestHasItsOwnAttribute()
    {
        const PlanOf plan(guest("L", "locked=\"1\"") + guest("V", "vip=\"2\"") +
                          guest("A", "accepted=\"1\" locked=\"-1\""));
        QStringList flags;
        for (const KWGuest *guest : plan.document.guests())
            flags.append(
                s("%1%2%3").arg(guest->isLocked()).arg(guest->isVip()).arg(guest->isAccepted()));
        QCOMPARE(flags, QStringList({s("100"), s("010"), s("001")}));
    }

    void unknownAgeIsAnAdultWithAWarningAndUnknownGenderIsUndefined()
    {
        QTest::ignoreMessage(QtWarningMsg, "undefined age");
        const PlanOf plan("<guest gender=\"man\" age=\"old\"/>");
        QCOMPARE(plan.document.guestAt(0)->age(), int(KWGuest::Adult));
        QCOMPARE(plan.document.guestAt(0)->gender(), int(KWGuest::Undefined));
    }

    void groupHasItsFields()
    {
        const PlanOf plan("<group address1=\"1%20A%20St\" address2=\"Flat%202\" city=\"Leith\""
                          " state=\"Fife\" zip=\"EH1\" country=\"Scotland\" work_phone=\"1\""
                          " home_phone=\"2\" mobile_phone=\"3\" email=\"a%40b.c\""
                          " name=\"family\" notes=\"all%20of%20them\"/>");
        QCOMPARE(plan.document.groupCount(), 1);
        const KWGroup *group = plan.document.groupAt(0);
        QVERIFY(group->contact() == KWContact(s("1 A St"), s("Flat 2"), s("Leith"), s("Fife"),
                                              s("EH1"), s("Scotland"), s("1"), s("2"), s("3"),
                                              s("a@b.c")));
        QCOMPARE(group->name(), s("family"));
        QCOMPARE(group->notes(), s("all of them"));
    }

    void planWithoutAGroupGetsOneForAll()
    {
        const PlanOf plan(guest("Ann") + guest("Bob", "group=\"0\""));
        QCOMPARE(plan.document.groupCount(), 1);
        const KWGroup *all = plan.document.groupAt(0);
        QCOMPARE(all->name(), s("all"));
        QCOMPARE(all->notes(), QString());
        QVERIFY(all->contact() == KWContact());
        QCOMPARE(membersOf(all), s("Ann Bob"));
    }

    void guestWithTextForAGroupIsInTheFirstAndOneBeyondTheLastIsLost()
    {
        const PlanOf plan("<group name=\"A\"/><group name=\"B\"/><group name=\"C\"/>" +
                          guest("Ann", "group=\"2\"") + guest("Bob", "group=\"99\"") +
                          guest("Cid", "group=\"first\"") + guest("Dan") +
                          guest("Eve", "group=\"\"") + guest("Fay", "group=\"-1\"") +
                          guest("Gus", "group=\"2\"") + guest("Hal", "group=\"3\"") +
                          guest("Ivy", "group=\"99999999999\""));
        QCOMPARE(guestNames(plan.document), s("Ann Cid Dan Eve Gus Ivy"));
        QCOMPARE(membersOf(plan.document.groupAt(0)), s("Cid Dan Eve Ivy"));
        QCOMPARE(membersOf(plan.document.groupAt(1)), QString());
        QCOMPARE(membersOf(plan.document.groupAt(2)), s("Ann Gus"));
    }

    void indexesOfSeatsAndWishesShiftBehindALostGuest()
    {
        const PlanOf plan(guest("Ann") + guest("Bob", "group=\"1\"") + guest("Cid") + guest("Dan") +
                          "<table table=\"T\" shape=\"0\" assigned=\"0,1,2,3\"/>"
                          "<affinity guest1=\"0\" guest2=\"1\" value=\"4\"/>"
                          "<affinity guest1=\"2\" guest2=\"3\" value=\"0\"/>");
        QCOMPARE(guestNames(plan.document), s("Ann Cid Dan"));
        QCOMPARE(seating(plan.document), s("Ann Cid Dan -"));
        QCOMPARE(wishes(plan.document), s("Ann-Cid 4"));
    }

    void guestIsFoundWhereverItStandsInTheDocument()
    {
        const PlanOf plan("<tables>" + guest("Ann") + "<x><y>" + guest("Bob") +
                          "</y></x></tables>" + "<guest display_name=\"Cid\" age=\"adult\">" +
                          guest("Dan") + "</guest>");
        QCOMPARE(guestNames(plan.document), s("Ann Bob Cid Dan"));
    }

    void tableHasItsFields()
    {
        const PlanOf plan(
            "<table table=\"Top%20table\" shape=\"6\" seats_across=\"1\" seats_down=\"2\""
            " seats_across_2=\"3\" seats_down_2=\"4\" notes=\"near%20the%20door\" assigned=\"-1\""
            " X=\"-120\" Y=\"345\"/>");
        QCOMPARE(plan.document.tableCount(), 1);
        const KWTable *table = plan.document.tableAt(0);
        QCOMPARE(table->name(), s("Top table"));
        QCOMPARE(table->shape(), int(KWTable::Custom));
        QCOMPARE(table->sides(), (KWTable::Sides{1, 2, 3, 4}));
        QCOMPARE(table->notes(), s("near the door"));
        QCOMPARE(table->position(), QPoint(-120, 345));
        QCOMPARE(table->seatCount(), 10);
    }

    void seatsComeFromTheSidesOrFromTheAssignedItems_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("seats");

        const auto row = [](const char *name, const QByteArray &table, const char *seats) {
            QTest::newRow(name) << table << s(seats);
        };
        row("circular", "shape=\"0\" assigned=\"-1,2,-1,-1,0\"", "- Cid - - Ann");
        row("circular without items", "shape=\"0\"", "");
        row("head", "shape=\"2\" assigned=\"1,0\"", "Bob Ann");
        row("head, right", "shape=\"3\" assigned=\"1\"", "Bob");
        row("head, bottom", "shape=\"4\" assigned=\"1\"", "Bob");
        row("head, left", "shape=\"5\" assigned=\"1\"", "Bob");
        row("sides are for other shapes", "shape=\"0\" seats_across=\"9\" assigned=\"1\"", "Bob");
        row("rectangular", "shape=\"1\" seats_across=\"1\" seats_down=\"1\" assigned=\"-1,0\"",
            "- Ann - -");
        row("custom",
            "shape=\"6\" seats_across=\"1\" seats_down_2=\"1\" seats_down=\"1\" assigned=\"0,1,2\"",
            "Ann Bob Cid");
        row("more items than seats", "shape=\"1\" seats_across=\"1\" assigned=\"0,-1,1,2\"",
            "Ann -");
        row("items without seats", "shape=\"6\" assigned=\"0,1\"", "");
        row("empty items", "shape=\"0\" assigned=\",0,,,1,\"", "Ann Bob");
        row("escaped commas", "shape=\"0\" assigned=\"0%2C-1%2C1\"", "Ann - Bob");
        row("guests that do not exist", "shape=\"0\" assigned=\"3,0,-2,99999999\"", "- Ann - -");
        row("items that are no numbers", "shape=\"0\" assigned=\"Bob,-1\"", "Ann -");
        row("the same guest twice", "shape=\"0\" assigned=\"0,1,0\"", "- Bob Ann");
        row("no shape", "assigned=\"1\"", "Bob");
    }

    void seatsComeFromTheSidesOrFromTheAssignedItems()
    {
        QFETCH(QByteArray, table);
        QFETCH(QString, seats);
        const PlanOf plan(annBobCid + "<table " + table + "/>");
        QCOMPARE(plan.document.tableCount(), 1);
        QCOMPARE(seating(plan.document), seats);
    }

    void countsBelowNothingAreNothing()
    {
        const PlanOf plan("<table shape=\"1\" seats_across=\"1000\" seats_down=\"-5\"/>"
                          "<table shape=\"6\" seats_across=\"-1\" seats_down=\"1000\""
                          " seats_across_2=\"99999999999\" seats_down_2=\"1\"/>"
                          "<table shape=\"0\" assigned=\"" +
                          QByteArray("-1,").repeated(1000) + "\"/>");
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.tableAt(0)->sides(), (KWTable::Sides{1000, 0, 0, 0}));
        QCOMPARE(plan.document.tableAt(0)->seatCount(), 2000);
        QCOMPARE(plan.document.tableAt(1)->sides(), (KWTable::Sides{0, 1000, 0, 1}));
        QCOMPARE(plan.document.tableAt(2)->seatCount(), 1000);
    }

    // The guests beyond would be without a seat, and nobody would be told.
    void aTableOfMoreThanAThousandSeatsIsRefused_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<int>("result");
        const QByteArray items = QByteArray("-1,").repeated(1000);
        QTest::newRow("round, a thousand") << "shape=\"0\" assigned=\"" + items + '"' << 0;
        QTest::newRow("round") << "shape=\"0\" assigned=\"" + items + "0\"" << 1;
        QTest::newRow("head") << "shape=\"5\" assigned=\"" + items + "-1\"" << 1;
        const auto side = [](const char *name, int shape, const char *key, int count, int result) {
            QTest::newRow(name) << "shape=\"" + QByteArray::number(shape) + "\" " + key + "=\"" +
                                       QByteArray::number(count) + '"'
                                << result;
        };
        side("across, a thousand", 1, "seats_across", 1000, 0);
        side("across", 1, "seats_across", 1001, 1);
        side("down", 1, "seats_down", 1001, 1);
        side("a side that a rectangle has not", 1, "seats_across_2", 1001, 0);
        side("custom, across", 6, "seats_across", 1001, 1);
        side("custom, down", 6, "seats_down", 1001, 1);
        side("custom, across on the other side", 6, "seats_across_2", 1001, 1);
        side("custom, down on the other side", 6, "seats_down_2", 2147483647, 1);
        side("custom, a thousand", 6, "seats_down_2", 1000, 0);
        side("sides of a round table", 0, "seats_across", 1001, 0);
        QTest::newRow("a shape that is none") << "shape=\"7\" assigned=\"" + items + "-1\"" << 0;
        // The items of a table with sides do not make seats.
        QTest::newRow("items beyond the sides") << "shape=\"1\" assigned=\"" + items + "-1\"" << 0;
    }

    void aTableOfMoreThanAThousandSeatsIsRefused()
    {
        QFETCH(QByteArray, table);
        QFETCH(int, result);
        const PlanOf plan(annBobCid + "<table " + table + "/>");
        QCOMPARE(plan.result, result);
        QCOMPARE(plan.document.isEmpty(), result != 0);
    }

    void unknownShapesAreDropped()
    {
        const PlanOf plan(annBobCid + "<table table=\"A\" shape=\"7\" assigned=\"0\"/>"
                                      "<table table=\"B\" shape=\"-1\" assigned=\"0\"/>"
                                      "<table table=\"C\" shape=\"6\"/>");
        QCOMPARE(plan.document.tableCount(), 1);
        QCOMPARE(plan.document.tableAt(0)->name(), s("C"));
    }

    void ofTwoLinesForOnePairTheSecondWins_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QString>("stored");

        const QByteArray first("<affinity guest1=\"0\" guest2=\"1\" value=\"0\"/>");
        QTest::newRow("one") << first << s("Ann-Bob 0");
        QTest::newRow("same order")
            << first + "<affinity guest1=\"0\" guest2=\"1\" value=\"4\"/>" << s("Ann-Bob 4");
        QTest::newRow("other order")
            << first + "<affinity guest1=\"1\" guest2=\"0\" value=\"3\"/>" << s("Bob-Ann 3");
        QTest::newRow("neutral") << first + "<affinity guest1=\"1\" guest2=\"0\" value=\"2\"/>"
                                 << QString();
        QTest::newRow("out of range")
            << first + "<affinity guest1=\"0\" guest2=\"1\" value=\"5\"/>" << s("Ann-Bob 0");
        QTest::newRow("below the range")
            << first + "<affinity guest1=\"0\" guest2=\"1\" value=\"-1\"/>" << s("Ann-Bob 0");
    }

    void ofTwoLinesForOnePairTheSecondWins()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QString, stored);
        QCOMPARE(wishes(PlanOf(annBobCid + lines).document), stored);
    }

    void wishesOfGuestsThatDoNotExistAreDropped()
    {
        const PlanOf plan(annBobCid + "<affinity guest1=\"0\" guest2=\"3\" value=\"0\"/>"
                                      "<affinity guest1=\"-1\" guest2=\"1\" value=\"0\"/>"
                                      "<affinity guest1=\"2\" guest2=\"1\" value=\"1\"/>");
        QCOMPARE(wishes(plan.document), s("Cid-Bob 1"));
    }

    void loadedPlanIsScoredAndUnmodified()
    {
        const PlanOf plan(annBobCid + "<table table=\"T\" shape=\"0\" assigned=\"0,1,-1,-1\"/>"
                                      "<affinity guest1=\"0\" guest2=\"1\" value=\"0\"/>");
        QCOMPARE(plan.document.totalScore(), 40);
        QCOMPARE(plan.document.tableAt(0)->seatScores().at(1)[KWScore::LovesEntry], 20);
        QVERIFY(!plan.document.isModified());
        QCOMPARE(plan.document.history(), QString());
    }

    void loadingBlocksTheEventsOfItsContent()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("a.kw"));
        QVERIFY(writeFile(path, planText(annBobCid + guest("Dan", "group=\"9\"") +
                                         "<table table=\"T\" shape=\"0\" assigned=\"0,1\"/>")));
        Plan plan;
        EventLog events(plan.document);
        plan.load(path);
        QCOMPARE(events.take(),
                 QStringList({s("eventClear()"), s("eventDocumentNameChange()"),
                              s("eventModified()"), s("loadingGuests(4)"),
                              s("eventDocumentNameChange(%1)").arg(path), s("eventModified()")}));
        plan.document.setEvent(s("Party"));
        QCOMPARE(events.take(), QStringList{s("eventModified()")});
    }

    void loadingReportsTheSettingsAsOneStepAndThenEachElement()
    {
        ProgressLog log;
        const PlanOf plan("<group/><group/>" + annBobCid + guest("Dan", "group=\"9\"") +
                          "<table shape=\"0\"/><table shape=\"99\"/>"
                          "<affinity guest1=\"0\" guest2=\"9\" value=\"0\"/><other/>");
        QStringList expected;
        for (int done = 78; done <= 87; ++done)
            expected.append(s("%1 of 87").arg(done));
        expected.append(s("finished"));
        QCOMPARE(log.take(), expected);
    }
};

REGISTER_TEST(TestPlanFileLoad)
#include "tst_kwplanfile_load.moc"
