#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

class TestEditGuests : public QObject
{
    Q_OBJECT

private slots:
    void addingAGuestStoresAllAndReports()
    {
        EditedPlan party;
        KWGuest *eve = party.plan.addGuest({.display_name = s("Eve"),
                                            .title = s("Dr"),
                                            .first_name = s("Eva"),
                                            .last_name = s("East"),
                                            .meal = s("fish"),
                                            .gender = KWGuest::Female,
                                            .age = KWGuest::Child,
                                            .locked = true,
                                            .notes = s("late"),
                                            .vip = true,
                                            .accepted = true},
                                           party.joneses);
        QCOMPARE(party.log.take(), steps({"modified", "eventNewGuest(Eve)", "eventModified()"}));
        QCOMPARE(party.plan.guests(),
                 QList<KWGuest *>({party.ann, party.bob, party.cid, party.dan, eve}));
        QCOMPARE(eve->displayName(), s("Eve"));
        QCOMPARE(eve->title(), s("Dr"));
        QCOMPARE(eve->firstName(), s("Eva"));
        QCOMPARE(eve->lastName(), s("East"));
        QCOMPARE(eve->meal(), s("fish"));
        QCOMPARE(eve->gender(), int(KWGuest::Female));
        QCOMPARE(eve->age(), int(KWGuest::Child));
        QVERIFY(eve->isLocked());
        QCOMPARE(eve->notes(), s("late"));
        QVERIFY(eve->isVip());
        QVERIFY(eve->isAccepted());
        QCOMPARE(eve->group(), party.joneses);
        QCOMPARE(party.joneses->guests(), QList<KWGuest *>({party.dan, eve}));
        QVERIFY(!party.plan.findGuest(eve));
    }

    void aGuestAddedWithANullGroupBelongsToNoneUntilMoved()
    {
        EditedPlan party;
        KWGuest *eve = addGuest(party.plan, {.name = "Eve"});
        QCOMPARE(party.log.take(), steps({"modified", "eventNewGuest(Eve)", "eventModified()"}));
        QCOMPARE(eve->group(), nullptr);
        QVERIFY(!party.smiths->guests().contains(eve) && !party.joneses->guests().contains(eve));

        party.plan.moveGuestToGroup(party.joneses, eve);
        QCOMPARE(party.log.take(),
                 steps({"eventGuestChangeGroup(Eve)", "modified", "eventModified()"}));
        QCOMPARE(eve->group(), party.joneses);
        QCOMPARE(party.joneses->guests(), QList<KWGuest *>({party.dan, eve}));
    }

    void aGuestAddedToAGroupOfAnotherPlanBelongsToNone()
    {
        EditedPlan party;
        EditedPlan other;
        const KWGuest *eve = addGuest(party.plan, {.name = "Eve"}, other.smiths);
        QCOMPARE(eve->group(), nullptr);
        QCOMPARE(other.smiths->guestCount(), 3);
    }

    void deletingASeatedGuestEmptiesTheSeatFirst_data() { rescoreRows(); }
    void deletingASeatedGuestEmptiesTheSeatFirst()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.deleteGuest(party.bob, rescore);
        QCOMPARE(party.log.take(),
                 steps({"eventEditSeat(Top,1)"}) + EditedPlan::deletion("Bob", rescore));
        QCOMPARE(party.plan.guests(), QList<KWGuest *>({party.ann, party.cid, party.dan}));
        QCOMPARE(party.smiths->guests(), QList<KWGuest *>({party.ann, party.cid}));
        QCOMPARE(seating(*party.top), s("Ann - - -"));
        QCOMPARE(party.top->score(), rescore ? -9 : 4);
    }

    void deletingAnUnseatedGuestFiresNothingForASeat_data() { rescoreRows(); }
    void deletingAnUnseatedGuestFiresNothingForASeat()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.unassignGuest(party.bob, true);
        party.log.take();
        party.plan.deleteGuest(party.bob, rescore);
        QCOMPARE(party.log.take(), EditedPlan::deletion("Bob", rescore));
    }

    void deletingAGuestOfNoGroupReportsANullGroup()
    {
        EditedPlan party;
        KWGuest *eve = addGuest(party.plan, {.name = "Eve"});
        party.log.take();
        party.plan.deleteGuest(eve, false);
        QCOMPARE(party.log.take(),
                 steps({"eventBeforeDeleteGuest(Eve)", "modified", "eventAfterDeleteGuest()",
                        "eventEditGroup(null)", "eventModified()"}));
        QCOMPARE(party.plan.guestCount(), 4);
    }

    void deletingAGuestRemovesPairsInWhicheverOrderTheyWereStored()
    {
        EditedPlan party;
        party.plan.setAffinity(party.bob, party.ann, KWScore::Loves, false);
        party.plan.setAffinity(party.cid, party.bob, KWScore::Hates, false);
        party.plan.setAffinity(party.bob, party.bob, KWScore::Likes, false);
        party.plan.setAffinity(party.cid, party.dan, KWScore::Likes, false);
        party.plan.deleteGuest(party.bob, true);
        QCOMPARE(party.plan.affinityCount(), 1);
        const auto left = party.plan.affinities();
        QCOMPARE(left.size(), 1);
        QCOMPARE(left.first().first, party.cid);
        QCOMPARE(left.first().second, party.dan);
        QCOMPARE(left.first().value, int(KWScore::Likes));
    }

    void aGuestIsInTheListUntilTheDeletionIsAnnouncedAndGoneAfterwards()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        QStringList seen;
        const auto look = [&] {
            seen.append(s("%1 guests, %2 seated, %3 Smiths, %4 wishes")
                            .arg(QString::number(party.plan.guestCount()),
                                 QString::number(party.plan.seatedGuestCount()),
                                 QString::number(party.smiths->guestCount()),
                                 QString::number(party.plan.affinityCount())));
        };
        connect(&party.plan, &KWDocument::eventEditSeat, this, look);
        connect(&party.plan, &KWDocument::eventBeforeDeleteGuest, this, look);
        connect(&party.plan, &KWDocument::eventAfterDeleteGuest, this, look);
        party.plan.deleteGuest(party.bob, false);
        QCOMPARE(seen, steps({"4 guests, 2 seated, 3 Smiths, 1 wishes",
                              "4 guests, 2 seated, 2 Smiths, 0 wishes",
                              "3 guests, 2 seated, 2 Smiths, 0 wishes"}));
    }

    void editingAGuestStoresWhatDiffersAndRescoresForGenderAndVip_data()
    {
        QTest::addColumn<KWGuestValues>("wanted");
        QTest::addColumn<bool>("rescored");
        const EditedPlan party;
        const auto row = [&](const char *what, auto KWGuestValues::*field, const auto &value,
                             bool rescored) {
            KWGuestValues wanted = party.ann->values();
            wanted.*field = value;
            QTest::newRow(what) << wanted << rescored;
        };
        row("display name", &KWGuestValues::display_name, s("Anna"), false);
        row("title", &KWGuestValues::title, s("Ms"), false);
        row("first name", &KWGuestValues::first_name, s("Ann"), false);
        row("last name", &KWGuestValues::last_name, s("Smith"), false);
        row("meal", &KWGuestValues::meal, s("beef"), false);
        row("gender", &KWGuestValues::gender, int(KWGuest::Male), true);
        row("age", &KWGuestValues::age, int(KWGuest::Child), false);
        row("locked", &KWGuestValues::locked, true, false);
        row("notes", &KWGuestValues::notes, s("sings"), false);
        row("vip", &KWGuestValues::vip, true, true);
        row("accepted", &KWGuestValues::accepted, true, false);
    }
    void editingAGuestStoresWhatDiffersAndRescoresForGenderAndVip()
    {
        QFETCH(KWGuestValues, wanted);
        QFETCH(bool, rescored);
        EditedPlan party;
        party.plan.editGuest(party.ann, wanted);
        QCOMPARE(party.log.take(), QStringList({s("eventEditGuest(%1)").arg(wanted.display_name)}) +
                                       steps({"modified"}) + EditedPlan::scores(rescored) +
                                       steps({"eventModified()"}));
        QVERIFY(party.ann->values() == wanted);
        QCOMPARE(party.ann->group(), party.smiths);
    }

    void editingAllOfAGuestReportsOnce()
    {
        EditedPlan party;
        KWGuestValues wanted;
        wanted.display_name = s("Anna");
        wanted.meal = s("beef");
        wanted.age = KWGuest::Child;
        wanted.vip = true;
        party.plan.editGuest(party.ann, wanted);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Anna)", "modified"}) +
                                       EditedPlan::scores() + steps({"eventModified()"}));
        QVERIFY(party.ann->values() == wanted);
    }

    void editingAGuestWithEqualValuesDoesNothing()
    {
        EditedPlan party;
        for (KWGuest *guest : party.plan.guests())
            party.plan.editGuest(guest, guest->values());
        QCOMPARE(party.log.take(), QStringList());
    }

    void lockAndAcceptedAreStoredAndReportedIfTheyDiffer()
    {
        const QStringList reported = steps({"eventEditGuest(Ann)", "modified", "eventModified()"});
        EditedPlan party;
        for (const bool value : {true, false}) {
            party.plan.setGuestLocked(party.ann, value);
            QCOMPARE(party.log.take(), reported);
            QCOMPARE(party.ann->isLocked(), value);
            party.plan.setGuestLocked(party.ann, value);
            QCOMPARE(party.log.take(), QStringList());

            party.plan.setGuestAccepted(party.ann, value);
            QCOMPARE(party.log.take(), reported);
            QCOMPARE(party.ann->isAccepted(), value);
            party.plan.setGuestAccepted(party.ann, value);
            QCOMPARE(party.log.take(), QStringList());
        }
    }

    void vipRescoresBeforeItReports()
    {
        EditedPlan party;
        for (const bool vip : {true, false}) {
            party.plan.setGuestVip(party.cid, vip);
            QCOMPARE(party.log.take(),
                     EditedPlan::scores() +
                         steps({"eventEditGuest(Cid)", "modified", "eventModified()"}));
            QCOMPARE(party.cid->isVip(), vip);
            QCOMPARE(party.side->score(), vip ? -27 : -9);
            party.plan.setGuestVip(party.cid, vip);
            QCOMPARE(party.log.take(), QStringList());
        }
    }

    void nullAndStrangersAreRefused_data()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *)>;
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &op) { QTest::newRow(name) << op; };
        row("deleteGuest", [](auto &plan, auto *guest) { plan.deleteGuest(guest, true); });
        row("editGuest", [](auto &plan, auto *guest) {
            plan.editGuest(
                guest,
                {.display_name = s("X"), .age = 1, .locked = true, .vip = true, .accepted = true});
        });
        row("setGuestLocked", [](auto &plan, auto *guest) { plan.setGuestLocked(guest, true); });
        row("setGuestAccepted",
            [](auto &plan, auto *guest) { plan.setGuestAccepted(guest, true); });
        row("setGuestVip", [](auto &plan, auto *guest) { plan.setGuestVip(guest, true); });
    }
    void nullAndStrangersAreRefused()
    {
        using Operation = std::function<void(KWDocument &, KWGuest *)>;
        QFETCH(Operation, operation);
        EditedPlan party;
        EditedPlan other;
        operation(party.plan, nullptr);
        operation(party.plan, other.cid);
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(other.log.take(), QStringList());
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
        QCOMPARE(contents(other.plan), contents(EditedPlan().plan));
    }

    void aStrangersGroupGetsNoNewGuest()
    {
        EditedPlan party;
        EditedPlan other;
        addGuest(party.plan, {.name = "Eve"}, other.joneses);
        QCOMPARE(other.log.take(), QStringList());
        QCOMPARE(contents(other.plan), contents(EditedPlan().plan));
    }
};

REGISTER_TEST(TestEditGuests)
#include "tst_kwdocument_edit_guests.moc"
