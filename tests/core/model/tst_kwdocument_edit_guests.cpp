#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

namespace {
/// What editGuest() takes and changes.
struct GuestFields
{
    QString name;
    QString title;
    QString first;
    QString last;
    QString meal;
    int gender;
    int age;
    bool locked;
    QString notes;
    bool vip;
    bool accepted;

    explicit GuestFields(const KWGuest *guest = nullptr)
        : name(guest ? guest->displayName() : QString())
        , title(guest ? guest->title() : QString())
        , first(guest ? guest->firstName() : QString())
        , last(guest ? guest->lastName() : QString())
        , meal(guest ? guest->meal() : QString())
        , gender(guest ? guest->gender() : 0)
        , age(guest ? guest->age() : 0)
        , locked(guest && guest->isLocked())
        , notes(guest ? guest->notes() : QString())
        , vip(guest && guest->isVip())
        , accepted(guest && guest->isAccepted())
    {
    }
    bool operator==(const GuestFields &) const = default;
};

void edit(KWDocument &plan, KWGuest *guest, const GuestFields &f)
{
    plan.editGuest(guest, f.name, f.title, f.first, f.last, f.meal, f.gender, f.age, f.locked,
                   f.notes, f.vip, f.accepted);
}
} // namespace

class TestEditGuests : public QObject
{
    Q_OBJECT

private slots:
    void addingAGuestStoresAllAndReports()
    {
        EditedPlan party;
        KWGuest *eve =
            party.plan.addGuest(s("Eve"), s("Dr"), s("Eva"), s("East"), s("fish"), KWGuest::Female,
                                KWGuest::Child, true, s("late"), true, true, party.joneses);
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
        QTest::addColumn<GuestFields>("wanted");
        QTest::addColumn<bool>("rescored");
        const EditedPlan party;
        const auto row = [&](const char *what, auto GuestFields::*field, const auto &value,
                             bool rescored) {
            GuestFields wanted(party.ann);
            wanted.*field = value;
            QTest::newRow(what) << wanted << rescored;
        };
        row("display name", &GuestFields::name, s("Anna"), false);
        row("title", &GuestFields::title, s("Ms"), false);
        row("first name", &GuestFields::first, s("Ann"), false);
        row("last name", &GuestFields::last, s("Smith"), false);
        row("meal", &GuestFields::meal, s("beef"), false);
        row("gender", &GuestFields::gender, int(KWGuest::Male), true);
        row("age", &GuestFields::age, int(KWGuest::Child), false);
        row("locked", &GuestFields::locked, true, false);
        row("notes", &GuestFields::notes, s("sings"), false);
        row("vip", &GuestFields::vip, true, true);
        row("accepted", &GuestFields::accepted, true, false);
    }
    void editingAGuestStoresWhatDiffersAndRescoresForGenderAndVip()
    {
        QFETCH(GuestFields, wanted);
        QFETCH(bool, rescored);
        EditedPlan party;
        edit(party.plan, party.ann, wanted);
        QCOMPARE(party.log.take(), QStringList({s("eventEditGuest(%1)").arg(wanted.name)}) +
                                       steps({"modified"}) + EditedPlan::scores(rescored) +
                                       steps({"eventModified()"}));
        QVERIFY(GuestFields(party.ann) == wanted);
        QCOMPARE(party.ann->group(), party.smiths);
    }

    void editingAllOfAGuestReportsOnce()
    {
        EditedPlan party;
        GuestFields wanted;
        wanted.name = s("Anna");
        wanted.meal = s("beef");
        wanted.age = KWGuest::Child;
        wanted.vip = true;
        edit(party.plan, party.ann, wanted);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Anna)", "modified"}) +
                                       EditedPlan::scores() + steps({"eventModified()"}));
        QVERIFY(GuestFields(party.ann) == wanted);
    }

    void editingAGuestWithEqualValuesDoesNothing()
    {
        EditedPlan party;
        for (KWGuest *guest : party.plan.guests())
            edit(party.plan, guest, GuestFields(guest));
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
            plan.editGuest(guest, s("X"), {}, {}, {}, {}, 0, 1, true, {}, true, true);
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
