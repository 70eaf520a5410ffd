#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>
#include <memory>

namespace {
/// The two ways to copy a plan.
using Copying = std::function<std::unique_ptr<KWDocument>(const KWDocument &)>;

void copyingRows()
{
    QTest::addColumn<Copying>("copying");
    QTest::newRow("copy constructor")
        << Copying([](const KWDocument &source) { return std::make_unique<KWDocument>(source); });
    QTest::newRow("assignment") << Copying([](const KWDocument &source) {
        auto target = std::make_unique<KWDocument>();
        *target = source;
        return target;
    });
    QTest::newRow("assignment over another plan") << Copying([](const KWDocument &source) {
        auto target = std::make_unique<KWDocument>();
        fillRandomly(*target, {.seed = 7});
        *target = source;
        return target;
    });
}

/// The positions of the group's members among the guests.
QList<int> members(const KWDocument &plan, const KWGroup *group)
{
    QList<int> result;
    for (const KWGuest *guest : group->guests())
        result.append(plan.indexOfGuest(guest));
    return result;
}

/// The stored wishes by position.
QList<QList<int>> wishes(const KWDocument &plan)
{
    QList<QList<int>> result;
    for (const KWDocument::Affinity &wish : plan.affinities()) {
        result.append(
            QList<int>{plan.indexOfGuest(wish.first), plan.indexOfGuest(wish.second), wish.value});
    }
    return result;
}

/// A plan of some size that has seen guests, groups and tables come and go.
void fillWithHistory(KWDocument &plan)
{
    fillRandomly(plan, {.locked = 12});
    for (const int index : {30, 17, 4, 0})
        plan.deleteGuest(plan.guestAt(index), false);
    addGuest(plan, {.name = "Late"}, plan.groupAt(1));
    plan.setAffinity(plan.guestAt(plan.guestCount() - 1), plan.guestAt(2), KWScore::Loves, false);
    plan.deleteTable(plan.tableAt(1), false);
    plan.moveTableBefore(plan.tableAt(2), plan.tableAt(0));
    plan.recalculateScores();
}
} // namespace

class TestCopy : public QObject
{
    Q_OBJECT

private slots:
    void everyGuestOfTheCopyHasTheSeatGroupAndWishesOfTheSameIndex_data() { copyingRows(); }
    void everyGuestOfTheCopyHasTheSeatGroupAndWishesOfTheSameIndex()
    {
        QFETCH(Copying, copying);
        KWDocument source;
        fillWithHistory(source);
        const auto copy = copying(source);
        QCOMPARE(copy->guestCount(), 37);
        QCOMPARE(contents(*copy), contents(source));
        QCOMPARE(seating(*copy), seating(source));
        QCOMPARE(wishes(*copy), wishes(source));
        for (int i = 0; i < source.groupCount(); ++i)
            QCOMPARE(members(*copy, copy->groupAt(i)), members(source, source.groupAt(i)));
        for (int i = 0; i < source.guestCount(); ++i) {
            QCOMPARE(copy->indexOfGroup(copy->guestAt(i)->group()),
                     source.indexOfGroup(source.guestAt(i)->group()));
            for (int j = 0; j < source.guestCount(); ++j) {
                QCOMPARE(copy->affinity(copy->guestAt(i), copy->guestAt(j)),
                         source.affinity(source.guestAt(i), source.guestAt(j)));
            }
        }
    }

    void noObjectOfTheCopyIsTheSources_data() { copyingRows(); }
    void noObjectOfTheCopyIsTheSources()
    {
        QFETCH(Copying, copying);
        KWDocument source;
        fillWithHistory(source);
        const auto copy = copying(source);
        for (const KWGuest *guest : copy->guests()) {
            QCOMPARE(source.indexOfGuest(guest), -1);
            QCOMPARE(source.indexOfGroup(guest->group()), -1);
        }
        for (const KWGroup *group : copy->groups()) {
            QCOMPARE(source.indexOfGroup(group), -1);
            QVERIFY(!members(*copy, group).contains(-1));
        }
        for (const KWTable *table : copy->tables())
            QCOMPARE(source.indexOfTable(table), -1);
        for (const KWDocument::Affinity &wish : copy->affinities())
            QVERIFY(copy->indexOfGuest(wish.first) >= 0 && copy->indexOfGuest(wish.second) >= 0);
    }

    void scoresAreTakenOverWithoutRescoring_data() { copyingRows(); }
    void scoresAreTakenOverWithoutRescoring()
    {
        QFETCH(Copying, copying);
        EditedPlan party;
        party.plan.assignGuest(party.cid, party.top, 2, false);
        const auto copy = copying(party.plan);
        QCOMPARE(copy->totalScore(), 4 - 9);
        QCOMPARE(copy->tableAt(1)->score(), -9);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(copy->tableAt(i)->seatScores(), party.plan.tableAt(i)->seatScores());
        copy->recalculateScores();
        QCOMPARE(copy->totalScore(), 4);
        QCOMPARE(party.plan.totalScore(), 4 - 9);
    }

    void aCopyIsModifiedIfItsSourceIsOrIfThereAreWishes_data()
    {
        QTest::addColumn<bool>("sourceModified");
        QTest::addColumn<bool>("wish");
        QTest::addColumn<bool>("copyModified");
        QTest::newRow("unmodified, no wish") << false << false << false;
        QTest::newRow("modified, no wish") << true << false << true;
        QTest::newRow("unmodified, a wish") << false << true << true;
        QTest::newRow("modified, a wish") << true << true << true;
    }
    void aCopyIsModifiedIfItsSourceIsOrIfThereAreWishes()
    {
        QFETCH(bool, sourceModified);
        QFETCH(bool, wish);
        QFETCH(bool, copyModified);
        EditedPlan party;
        if (wish)
            party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.plan.setModified(sourceModified);
        KWDocument assigned;
        assigned.setModified(!copyModified);
        assigned = party.plan;
        QCOMPARE(assigned.isModified(), copyModified);
        QCOMPARE(KWDocument(party.plan).isModified(), copyModified);
        QCOMPARE(party.plan.isModified(), sourceModified);
    }

    void assigningAPlanToItselfOnlySaysModified()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.log.take();
        const QByteArray before = contents(party.plan);
        const KWDocument &itself = party.plan;
        party.plan = itself;
        QCOMPARE(party.log.take(), steps({"eventModified()"}));
        QCOMPARE(contents(party.plan), before);
        QCOMPARE(party.plan.guests(),
                 QList<KWGuest *>({party.ann, party.bob, party.cid, party.dan}));
    }

    void assignmentKeepsTheTargetsListenersAndFiresModifiedOnceAtTheEnd()
    {
        EditedPlan source;
        source.plan.setAffinity(source.ann, source.bob, KWScore::Loves, false);
        source.log.take();
        EditedPlan target;
        QString seen;
        connect(&target.plan, &KWDocument::eventModified, this,
                [&] { seen = seating(target.plan); });
        target.plan.assignGuest(target.dan, target.side, 2, false);
        target.log.take();
        target.plan = source.plan;
        QCOMPARE(target.log.take(), steps({"modified", "eventModified()"}));
        QCOMPARE(seen, s("Ann Bob - -\nCid - -"));
        QCOMPARE(source.log.take(), QStringList());
        target.plan.setVenue(s("Castle"));
        QCOMPARE(target.log.take(), steps({"modified", "eventModified()"}));
    }

    void changingTheCopyFiresAndChangesNothingInTheSource_data() { copyingRows(); }
    void changingTheCopyFiresAndChangesNothingInTheSource()
    {
        QFETCH(Copying, copying);
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, true);
        party.log.take();
        const QByteArray before = contents(party.plan);
        const auto copy = copying(party.plan);
        changeEverything(*copy);
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(contents(party.plan), before);
        QCOMPARE(party.plan.totalScore(), 44 - 9);

        const auto other = copying(party.plan);
        const QByteArray copied = contents(*other);
        changeEverything(party.plan);
        QCOMPARE(contents(*other), copied);
    }

    void guestsDeletedBeforeCopyingDoNotShiftWishesSeatsOrGroups_data() { copyingRows(); }
    void guestsDeletedBeforeCopyingDoNotShiftWishesSeatsOrGroups()
    {
        QFETCH(Copying, copying);
        EditedPlan party;
        party.plan.setAffinity(party.dan, party.cid, KWScore::Likes, false);
        party.plan.setAffinity(party.ann, party.cid, KWScore::Hates, false);
        party.plan.deleteGuest(party.ann, true);
        const auto copy = copying(party.plan);
        QCOMPARE(wishes(*copy), QList<QList<int>>({{2, 1, KWScore::Likes}}));
        QCOMPARE(seating(*copy), s("- Bob - -\nCid - -"));
        QCOMPARE(members(*copy, copy->groupAt(0)), QList<int>({0, 1}));

        // A copy gives its own new guests wishes without mixing them up with earlier ones.
        KWGuest *eve = addGuest(*copy, {.name = "Eve"}, copy->groupAt(1));
        QCOMPARE(copy->affinity(eve, copy->guestAt(1)), int(KWScore::Neutral));
        copy->setAffinity(eve, copy->guestAt(0), KWScore::Dislikes, false);
        copy->deleteGuest(copy->guestAt(0), false);
        QCOMPARE(wishes(*copy), QList<QList<int>>({{1, 0, KWScore::Likes}}));
        QCOMPARE(wishes(party.plan), QList<QList<int>>({{2, 1, KWScore::Likes}}));
    }

    void aCopyOutlivesItsSource()
    {
        auto source = std::make_unique<KWDocument>();
        fillWithHistory(*source);
        const QByteArray before = contents(*source);
        KWDocument copy(*source);
        source.reset();
        QCOMPARE(contents(copy), before);
        const int score = copy.totalScore();
        copy.recalculateScores();
        QCOMPARE(copy.totalScore(), score);
        changeEverything(copy);
    }

    void anEmptyPlanReplacesAFullOne()
    {
        EditedPlan party;
        party.plan.setAffinity(party.ann, party.bob, KWScore::Loves, false);
        party.log.take();
        party.plan = KWDocument();
        QCOMPARE(party.log.take(), steps({"eventModified()"}));
        QVERIFY(party.plan.isEmpty());
        QCOMPARE(party.plan.groupCount(), 0);
        QCOMPARE(party.plan.affinityCount(), 0);
        QCOMPARE(party.plan.totalScore(), 0);
    }

    void documentsAreCountedWhileTheyLive()
    {
        const int before = KWDocument::liveCount();
        {
            KWDocument plan;
            QCOMPARE(KWDocument::liveCount(), before + 1);
            const KWDocument copy(plan);
            QCOMPARE(KWDocument::liveCount(), before + 2);
            plan = copy;
            plan.clear();
            QCOMPARE(KWDocument::liveCount(), before + 2);
        }
        QCOMPARE(KWDocument::liveCount(), before);
    }

private:
    /// Calls operations that between them touch every kind of data.
    static void changeEverything(KWDocument &plan)
    {
        KWGuest *guest = plan.guestAt(0);
        KWTable *table = plan.tableAt(0);
        KWGroup *group = plan.groupAt(0);
        plan.editGuest(guest, {.display_name = s("X"),
                               .title = s("X"),
                               .first_name = s("X"),
                               .last_name = s("X"),
                               .meal = s("X"),
                               .gender = 2,
                               .age = 1,
                               .locked = true,
                               .notes = s("X"),
                               .vip = true,
                               .accepted = true});
        plan.editGroup(group, KWContact(s("X"), {}, {}, {}, {}, {}, {}, {}, {}, {}), s("X"),
                       s("X"));
        plan.editTable(table, s("X"), KWTable::Custom, 3, 3, 3, 3, s("X"));
        plan.moveTable(table, 1, 2);
        plan.moveTableBefore(plan.tableAt(1), table);
        plan.setAffinity(guest, plan.guestAt(1), KWScore::Hates, true);
        plan.setAffinity(guest, plan.guestAt(2), KWScore::Likes, true);
        plan.assignGuest(guest, table, 11, true);
        plan.moveGuestToGroup(plan.groupAt(1), guest);
        plan.deleteGuest(plan.guestAt(1), true);
        plan.deleteGroup(plan.groupAt(1), true);
        plan.deleteTable(plan.tableAt(0), true);
        addGuests(plan, 2);
        addTable(plan, "X", KWTable::Circular, 3);
        plan.setVenue(s("X"));
        plan.setNotes(s("X"));
        plan.setPrintMargin(99);
    }
};

REGISTER_TEST(TestCopy)
#include "tst_kwdocument_copy.moc"
