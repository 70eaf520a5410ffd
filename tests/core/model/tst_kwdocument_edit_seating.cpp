#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

class TestEditSeating : public QObject
{
    Q_OBJECT

private slots:
    void anUnseatedGuestTakesAnEmptySeat_data() { rescoreRows(); }
    void anUnseatedGuestTakesAnEmptySeat()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.assignGuest(party.dan, party.side, 1, rescore);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Dan)", "eventEditTable(Side)",
                                          "eventEditSeat(Side,1)", "modified"}) +
                                       EditedPlan::scores(rescore) + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("Ann Bob - -\nCid Dan -"));
        QCOMPARE(party.side->score(), rescore ? 0 : -9);
    }

    void aSeatedGuestLeavesTheOldSeatEmpty_data() { rescoreRows(); }
    void aSeatedGuestLeavesTheOldSeatEmpty()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.assignGuest(party.ann, party.side, 2, rescore);
        QCOMPARE(party.log.take(),
                 steps({"eventEditSeat(Top,0)", "eventEditGuest(Ann)", "eventEditTable(Side)",
                        "eventEditSeat(Side,2)", "modified"}) +
                     EditedPlan::scores(rescore) + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("- Bob - -\nCid - Ann"));
    }

    void theOldSeatIsReportedEmptyBeforeTheGuestIsOnTheNewOne()
    {
        EditedPlan party;
        QStringList seen;
        connect(&party.plan, &KWDocument::eventEditSeat, this,
                [&] { seen.append(seating(party.plan)); });
        party.plan.assignGuest(party.ann, party.side, 2, false);
        QCOMPARE(seen, steps({"- Bob - -\nCid - -", "- Bob - -\nCid - Ann"}));
    }

    void scoresAreTheOldOnesUntilTheSeatsAreReported()
    {
        EditedPlan party;
        QList<int> seen;
        const auto look = [&] { seen.append(party.plan.totalScore()); };
        connect(&party.plan, &KWDocument::eventEditGuest, this, look);
        connect(&party.plan, &KWDocument::eventEditTable, this, look);
        connect(&party.plan, &KWDocument::eventEditSeat, this, look);
        connect(&party.plan, &KWDocument::eventModified, this, look);
        party.plan.assignGuest(party.dan, party.side, 1, true);
        QCOMPARE(seen, QList<int>({-5, -5, -5, 4}));
    }

    void seatedGuestsSwap_data() { rescoreRows(); }
    void seatedGuestsSwap()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.assignGuest(party.ann, party.side, 0, rescore);
        QCOMPARE(party.log.take(),
                 steps({"eventEditGuest(Ann)", "eventEditTable(Side)", "eventEditSeat(Side,0)",
                        "eventEditGuest(Cid)", "eventEditTable(Top)", "eventEditSeat(Top,0)",
                        "modified"}) +
                     EditedPlan::scores(rescore) + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("Cid Bob - -\nAnn - -"));
        QCOMPARE(party.plan.totalScore(), rescore ? -9 : -5);
    }

    void neighboursSwap()
    {
        EditedPlan party;
        party.plan.assignGuest(party.bob, party.top, 0, false);
        QCOMPARE(party.log.take(),
                 steps({"eventEditGuest(Bob)", "eventEditTable(Top)", "eventEditSeat(Top,0)",
                        "eventEditGuest(Ann)", "eventEditTable(Top)", "eventEditSeat(Top,1)",
                        "modified", "eventModified()"}));
        QCOMPARE(seating(*party.top), s("Bob Ann - -"));
    }

    void anUnseatedGuestUnseatsTheOccupantAndDoesNotSwap_data() { rescoreRows(); }
    void anUnseatedGuestUnseatsTheOccupantAndDoesNotSwap()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.assignGuest(party.dan, party.top, 1, rescore);
        QCOMPARE(party.log.take(),
                 steps({"eventEditGuest(Dan)", "eventEditTable(Top)", "eventEditSeat(Top,1)",
                        "eventEditGuest(Bob)", "modified"}) +
                     EditedPlan::scores(rescore) + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("Ann Dan - -\nCid - -"));
        QVERIFY(!party.plan.findGuest(party.bob));
        QCOMPARE(party.plan.seatedGuestCount(), 3);
    }

    void aGuestAssignedToTheirOwnSeatStaysAndIsReportedAsASwap()
    {
        EditedPlan party;
        party.plan.assignGuest(party.bob, party.top, 1, true);
        QCOMPARE(party.log.take(),
                 steps({"eventEditGuest(Bob)", "eventEditTable(Top)", "eventEditSeat(Top,1)",
                        "eventEditGuest(Bob)", "eventEditTable(Top)", "eventEditSeat(Top,1)",
                        "modified"}) +
                     EditedPlan::scores() + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("Ann Bob - -\nCid - -"));
        QCOMPARE(party.plan.seatedGuestCount(), 3);
        KWTable *table = nullptr;
        int seat = -1;
        QVERIFY(party.plan.findGuest(party.bob, &table, &seat));
        QCOMPARE(table, party.top);
        QCOMPARE(seat, 1);
    }

    void locksDoNotKeepAGuestOnTheirSeat()
    {
        EditedPlan party;
        party.plan.setTableLocked(party.top, true);
        party.plan.assignGuest(party.dan, party.top, 0, false);
        party.plan.unassignGuest(party.bob, false);
        QCOMPARE(seating(*party.top), s("Dan - - -"));
    }

    void unassigningEmptiesTheSeat_data() { rescoreRows(); }
    void unassigningEmptiesTheSeat()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.unassignGuest(party.cid, rescore);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Cid)", "eventEditTable(Side)",
                                          "eventEditSeat(Side,0)", "modified"}) +
                                       EditedPlan::scores(rescore) + steps({"eventModified()"}));
        QCOMPARE(seating(party.plan), s("Ann Bob - -\n- - -"));
        QCOMPARE(party.side->score(), rescore ? 0 : -9);
        QVERIFY(!party.plan.findGuest(party.cid));
    }

    void unassigningAnUnseatedGuestDoesNothing()
    {
        EditedPlan party;
        party.plan.unassignGuest(party.dan, true);
        QCOMPARE(party.log.take(), QStringList());
    }

    void aWishIsStoredThenRescoredThenReported_data() { rescoreRows(); }
    void aWishIsStoredThenRescoredThenReported()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        const QStringList before{s("modified")};
        const QStringList after = steps({"eventEditAffinity(Bob,Ann)", "eventModified()"});
        party.plan.setAffinity(party.bob, party.ann, KWScore::Hates, rescore);
        QCOMPARE(party.log.take(), before + EditedPlan::scores(rescore) + after);
        QCOMPARE(party.plan.affinity(party.ann, party.bob), int(KWScore::Hates));
        QCOMPARE(party.top->score(), rescore ? 4 - 80 : 4);

        party.plan.setAffinity(party.bob, party.ann, KWScore::Neutral, rescore);
        QCOMPARE(party.log.take(), before + EditedPlan::scores(rescore) + after);
        QCOMPARE(party.plan.affinity(party.ann, party.bob), int(KWScore::Neutral));
        QCOMPARE(party.plan.affinityCount(), 0);
        QCOMPARE(party.top->score(), 4);
    }

    void aWishSetTheOtherWayRoundReplacesTheFirst()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.log.take();
        party.plan.setAffinity(party.bob, party.ann, KWScore::Loves, false);
        QCOMPARE(party.log.take(),
                 steps({"modified", "eventEditAffinity(Bob,Ann)", "eventModified()"}));
        QCOMPARE(party.plan.proximityPairs(KWScore::Loves),
                 QList<KWDocument::GuestPair>({{party.bob, party.ann}}));
    }

    void seatsThatDoNotExistAreRefused()
    {
        EditedPlan party;
        for (const int seat : {-1, 4, 1000}) {
            party.plan.assignGuest(party.ann, party.top, seat, true);
            party.plan.assignGuest(party.dan, party.top, seat, true);
        }
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
    }

    void nullAndStrangersAreRefused_data()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *, KWTable *)>;
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &op) { QTest::newRow(name) << op; };
        row("assignGuest: guest", [](auto &plan, auto *guest, auto *) {
            plan.assignGuest(guest, plan.tableAt(0), 2, true);
        });
        row("assignGuest: table", [](auto &plan, auto *, auto *table) {
            plan.assignGuest(plan.guestAt(0), table, 2, true);
        });
        row("unassignGuest",
            [](auto &plan, auto *guest, auto *) { plan.unassignGuest(guest, true); });
        row("setAffinity: first", [](auto &plan, auto *guest, auto *) {
            plan.setAffinity(guest, plan.guestAt(0), KWScore::Loves, true);
        });
        row("setAffinity: second", [](auto &plan, auto *guest, auto *) {
            plan.setAffinity(plan.guestAt(0), guest, KWScore::Loves, true);
        });
    }
    void nullAndStrangersAreRefused()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *, KWTable *)>;
        QFETCH(Operation, operation);
        EditedPlan party;
        EditedPlan other;
        operation(party.plan, nullptr, nullptr);
        operation(party.plan, other.bob, other.top);
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(other.log.take(), QStringList());
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
        QCOMPARE(contents(other.plan), contents(EditedPlan().plan));
    }
};

REGISTER_TEST(TestEditSeating)
#include "tst_kwdocument_edit_seating.moc"
