#include "core/model/kwrandom.h"
#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <memory>

namespace {
/// A plan with guests of all kinds. Ann and Bob sit at either end of "Round", Cid on the middle
/// seat of "Head"; "Spare" is empty, and Dan and Eve stand.
struct Hall
{
    KWDocument plan;
    KWGroup *smiths = plan.addGroup({}, s("Smiths"), {});
    KWGroup *joneses = plan.addGroup({}, s("Joneses"), {});
    KWGroup *nobody = plan.addGroup({}, s("joneses"), {});
    KWGuest *ann = plan.addGuest({.display_name = s("Ann"),
                                  .title = s("Mrs"),
                                  .first_name = s("Ann"),
                                  .last_name = s("Smith"),
                                  .meal = s("fish"),
                                  .gender = KWGuest::Female,
                                  .locked = true,
                                  .accepted = true},
                                 smiths);
    KWGuest *bob = plan.addGuest({.display_name = s("Bob"),
                                  .title = s("Mr"),
                                  .first_name = s("Bob"),
                                  .last_name = s("Smith"),
                                  .meal = s("beef"),
                                  .gender = KWGuest::Male,
                                  .accepted = true},
                                 smiths);
    KWGuest *cid = plan.addGuest({.display_name = s("Cid"),
                                  .first_name = s("Cid"),
                                  .last_name = s("Smith"),
                                  .age = KWGuest::Child},
                                 smiths);
    KWGuest *dan = plan.addGuest({.display_name = s("Dan"),
                                  .title = s("Sir"),
                                  .first_name = s("Dan"),
                                  .last_name = s("Jones"),
                                  .meal = s("fish"),
                                  .gender = KWGuest::Male,
                                  .locked = true},
                                 joneses);
    KWGuest *eve = plan.addGuest({.display_name = s("Eve"),
                                  .first_name = s("Eve"),
                                  .last_name = s("Jones"),
                                  .meal = s("Beef"),
                                  .gender = KWGuest::Male,
                                  .age = KWGuest::Child,
                                  .accepted = true},
                                 joneses);
    KWTable *round = addTable(plan, "Round", KWTable::Circular, 4);
    KWTable *head = addTable(plan, "Head", KWTable::HeadTop, 3);
    KWTable *spare = addRectangular(plan, "Spare", 1, 1);
    KWDocument other;
    KWGuest *strangeGuest = addGuest(other, {.name = "Ann"}, other.addGroup({}, s("Smiths"), {}));
    KWTable *strangeTable = addTable(other, "Round", KWTable::Circular, 4);
    StepLog log{plan};
    QByteArray before;

    Hall()
    {
        plan.assignGuest(ann, round, 0, false);
        plan.assignGuest(bob, round, 3, false);
        plan.assignGuest(cid, head, 1, false);
        other.assignGuest(strangeGuest, strangeTable, 2, false);
        plan.recalculateScores();
        log.take();
        before = contents(plan);
    }
};
} // namespace

class TestQueries : public QObject
{
    Q_OBJECT

    std::unique_ptr<Hall> m_hall;

private slots:
    void init() { m_hall = std::make_unique<Hall>(); }
    /// No query fires or changes anything.
    void cleanup()
    {
        QCOMPARE(m_hall->log.take(), QStringList());
        QCOMPARE(contents(m_hall->plan), m_hall->before);
        m_hall.reset();
    }

    void countsAndPositionsFollowTheLists()
    {
        const Hall &h = *m_hall;
        const KWDocument &plan = h.plan;
        QCOMPARE(plan.tableCount(), 3);
        QCOMPARE(plan.guestCount(), 5);
        QCOMPARE(plan.groupCount(), 3);
        QCOMPARE(plan.seatCount(), 4 + 3 + 4);
        QCOMPARE(plan.tableAt(2), h.spare);
        QCOMPARE(plan.guestAt(0), h.ann);
        QCOMPARE(plan.groupAt(1), h.joneses);
        QCOMPARE(plan.memberAt(h.smiths, 2), h.cid);
        QCOMPARE(plan.indexOfTable(h.head), 1);
        QCOMPARE(plan.indexOfGuest(h.eve), 4);
        QCOMPARE(plan.indexOfGroup(h.nobody), 2);
    }

    void positionsOutsideAListAndStrangersHaveNothing()
    {
        const Hall &h = *m_hall;
        const KWDocument &plan = h.plan;
        for (const int outside : {-1, 5, 1000}) {
            QCOMPARE(plan.tableAt(outside), nullptr);
            QCOMPARE(plan.guestAt(outside), nullptr);
            QCOMPARE(plan.groupAt(outside), nullptr);
            QCOMPARE(plan.memberAt(h.smiths, outside), nullptr);
        }
        QCOMPARE(plan.memberAt(h.nobody, 0), nullptr);
        QCOMPARE(plan.memberAt(nullptr, 0), nullptr);
        QCOMPARE(plan.indexOfTable(h.strangeTable), -1);
        QCOMPARE(plan.indexOfGuest(h.strangeGuest), -1);
        QCOMPARE(plan.indexOfGroup(h.strangeGuest->group()), -1);
        const KWGuest inNoPlan(*h.ann);
        QCOMPARE(plan.indexOfGuest(&inNoPlan), -1);
        QVERIFY(!plan.findGuest(&inNoPlan));
        QCOMPARE(plan.indexOfTable(nullptr), -1);
        QCOMPARE(plan.indexOfGuest(nullptr), -1);
        QCOMPARE(plan.indexOfGroup(nullptr), -1);
    }

    void aListMayBeAskedAboutInsideALoopOverIt()
    {
        QStringList order;
        for (const KWGuest *guest : m_hall->plan.guests()) {
            order.append(guest->displayName() + QString::number(m_hall->plan.indexOfGuest(guest)) +
                         m_hall->plan.guestAt(4)->displayName());
        }
        QCOMPARE(order, steps({"Ann0Eve", "Bob1Eve", "Cid2Eve", "Dan3Eve", "Eve4Eve"}));
    }

    void aPlanWithAGroupAloneIsEmpty()
    {
        KWDocument plan;
        QVERIFY(plan.isEmpty());
        plan.addGroup({}, s("group"), {});
        QVERIFY(plan.isEmpty());
        KWGuest *guest = addGuest(plan, {.name = "Ann"});
        QVERIFY(!plan.isEmpty());
        plan.deleteGuest(guest, false);
        QVERIFY(plan.isEmpty());
        addTable(plan, "T", KWTable::Circular, 0);
        QVERIFY(!plan.isEmpty());
    }

    void findGuestGivesTableAndSeatOfASeatedGuest()
    {
        const Hall &h = *m_hall;
        KWTable *table = nullptr;
        int seat = -1;
        QVERIFY(h.plan.findGuest(h.bob, &table, &seat));
        QCOMPARE(table, h.round);
        QCOMPARE(seat, 3);
        QVERIFY(h.plan.findGuest(h.cid, nullptr, &seat));
        QCOMPARE(seat, 1);
        QVERIFY(h.plan.findGuest(h.cid, &table, nullptr));
        QCOMPARE(table, h.head);
        QVERIFY(h.plan.findGuest(h.ann));
    }

    void findGuestFindsNeitherTheUnseatedNorStrangers()
    {
        const Hall &h = *m_hall;
        KWTable *table = h.spare;
        int seat = 77;
        for (const KWGuest *guest : {h.dan, h.eve, h.strangeGuest, static_cast<KWGuest *>(nullptr)})
            QVERIFY(!h.plan.findGuest(guest, &table, &seat));
        QCOMPARE(table, h.spare);
        QCOMPARE(seat, 77);
    }

    void guestAtSeatGivesTheGuestIfThereIsOne()
    {
        const Hall &h = *m_hall;
        KWGuest *guest = h.dan;
        QVERIFY(h.plan.guestAtSeat(h.round, 0));
        QVERIFY(!h.plan.guestAtSeat(h.round, 1, &guest));
        QVERIFY(!h.plan.guestAtSeat(h.round, 4, &guest));
        QVERIFY(!h.plan.guestAtSeat(h.round, -1, &guest));
        QVERIFY(!h.plan.guestAtSeat(nullptr, 0, &guest));
        QCOMPARE(guest, h.dan);
        QVERIFY(h.plan.guestAtSeat(h.head, 1, &guest));
        QCOMPARE(guest, h.cid);
    }

    void guestsAreCountedByAgeAndAcceptance()
    {
        int adults = -1;
        int children = -1;
        int acceptedAdults = -1;
        int acceptedChildren = -1;
        m_hall->plan.countGuests(&adults, &children, &acceptedAdults, &acceptedChildren);
        QCOMPARE(adults, 3);
        QCOMPARE(children, 2);
        QCOMPARE(acceptedAdults, 2);
        QCOMPARE(acceptedChildren, 1);
    }

    void guestsAreCountedByGenderAndAge()
    {
        int male = -1;
        int female = -1;
        int undefined = -1;
        int adult = -1;
        int child = -1;
        m_hall->plan.countDemographics(&male, &female, &undefined, &adult, &child);
        QCOMPARE(male, 3);
        QCOMPARE(female, 1);
        QCOMPARE(undefined, 1);
        QCOMPARE(adult, 3);
        QCOMPARE(child, 2);
    }

    void anEmptyPlanCountsNobody()
    {
        int counts[5] = {-1, -1, -1, -1, -1};
        const KWDocument plan;
        plan.countDemographics(&counts[0], &counts[1], &counts[2], &counts[3], &counts[4]);
        for (const int count : counts)
            QCOMPARE(count, 0);
    }

    void guestListsAndTheirCountsAgree()
    {
        const Hall &h = *m_hall;
        QCOMPARE(h.plan.seatedGuests(), QList<KWGuest *>({h.ann, h.bob, h.cid}));
        QCOMPARE(h.plan.seatedGuestCount(), 3);
        QCOMPARE(h.plan.seatedUnlockedGuestCount(), 2);
        QCOMPARE(h.plan.unlockedGuestCount(), 3);
        QCOMPARE(h.plan.unseatedGuests(true), QList<KWGuest *>({h.dan, h.eve}));
        QCOMPARE(h.plan.unseatedGuestCount(true), 2);
        QCOMPARE(h.plan.unseatedGuests(false), QList<KWGuest *>({h.eve}));
        QCOMPARE(h.plan.unseatedUnlockedGuests(), QList<KWGuest *>({h.eve}));
        QCOMPARE(h.plan.unseatedGuestCount(false), 1);
        QCOMPARE(h.plan.acceptedGuests(), QList<KWGuest *>({h.ann, h.bob, h.eve}));
        QCOMPARE(h.plan.occupiedTableCount(), 2);
    }

    void locksOfSeatsAndTables()
    {
        const Hall &h = *m_hall;
        QVERIFY(h.plan.seatHoldsLockedGuest(h.round, 0));
        QVERIFY(!h.plan.seatHoldsLockedGuest(h.round, 1));
        QVERIFY(!h.plan.seatHoldsLockedGuest(h.round, 3));
        QVERIFY(h.plan.tableHasLockedGuest(h.round));
        QVERIFY(!h.plan.tableHasLockedGuest(h.head));
        QVERIFY(!h.plan.tableHasLockedGuest(h.spare));
        QCOMPARE(h.plan.seatsFreeOfLocks(h.round), 3);
        QCOMPARE(h.plan.seatsFreeOfLocks(h.head), 3);
        QVERIFY(!h.plan.allSeatsLocked(h.round));
        QVERIFY(h.plan.hasSeatedUnlockedGuest());
    }

    void anEmptySeatKeepsATableFromBeingAllLocked()
    {
        KWDocument plan;
        KWTable *table = addTable(plan, "T", KWTable::Circular, 2);
        KWGuest *first = addGuest(plan, {.name = "A", .locked = true});
        KWGuest *second = addGuest(plan, {.name = "B", .locked = true});
        plan.assignGuest(first, table, 0, false);
        QVERIFY(!plan.allSeatsLocked(table));
        plan.assignGuest(second, table, 1, false);
        QVERIFY(plan.allSeatsLocked(table));
        QCOMPARE(plan.seatsFreeOfLocks(table), 0);
        QVERIFY(!plan.hasSeatedUnlockedGuest());
        plan.setGuestLocked(second, false);
        QVERIFY(!plan.allSeatsLocked(table));
        QVERIFY(plan.hasSeatedUnlockedGuest());
    }

    void tablesComeInRandomOrder()
    {
        const KWDocument &plan = m_hall->plan;
        setFixedRandomSeed(11);
        seedRandomNumbers();
        const QList<KWTable *> shuffled = plan.shuffledTables();
        seedRandomNumbers();
        QList<KWTable *> left = plan.tables();
        QList<KWTable *> drawn;
        while (!left.isEmpty())
            drawn.append(left.takeAt(randomNumber(static_cast<int>(left.size()))));
        QCOMPARE(shuffled, drawn);

        QSet<KWTable *> firsts;
        for (int i = 0; i < 100; ++i)
            firsts.insert(plan.shuffledTables().first());
        QCOMPARE(firsts.size(), 3);
        setFixedRandomSeed({});
        QCOMPARE(KWDocument().shuffledTables(), QList<KWTable *>());
    }

    void tablesBySizeAreLargestFirstAndElseInListOrder()
    {
        const Hall &h = *m_hall;
        QCOMPARE(h.plan.tablesBySize(), QList<KWTable *>({h.round, h.spare, h.head}));
        KWDocument plan;
        for (const int seats : {2, 8, 2, 5, 8})
            addTable(plan, "T", KWTable::Circular, seats);
        QList<int> order;
        for (const KWTable *table : plan.tablesBySize())
            order.append(plan.indexOfTable(table));
        QCOMPARE(order, QList<int>({1, 4, 3, 0, 2}));
    }

    void seatsBesideEachOther_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<int>("seats");
        QTest::addColumn<int>("second");
        QTest::addColumn<bool>("nextTo");
        const auto row = [](const char *what, int shape, int seats, int second, bool nextTo) {
            QTest::newRow(what) << shape << seats << second << nextTo;
        };
        row("beside", KWTable::Circular, 8, 1, true);
        row("two apart", KWTable::Circular, 8, 2, false);
        row("round the ring", KWTable::Circular, 8, 7, true);
        row("nearly round the ring", KWTable::Circular, 8, 6, false);
        row("beside at a head table", KWTable::HeadTop, 8, 1, true);
        row("the ends of a head table", KWTable::HeadLeft, 8, 7, false);
        row("the ends of a head table of two", KWTable::HeadRight, 2, 1, true);
        row("the ends of a custom table", KWTable::Custom, 8, 7, true);
        row("the ends of a rectangular table", KWTable::Rectangular, 4, 7, true);
        row("across a rectangular table", KWTable::Rectangular, 4, 4, false);
    }
    void seatsBesideEachOther()
    {
        QFETCH(int, shape);
        QFETCH(int, seats);
        QFETCH(int, second);
        QFETCH(bool, nextTo);
        KWDocument plan;
        const QList<KWGuest *> guests = addGuests(plan, 2);
        KWTable *table = addTable(plan, "T", shape, seats);
        plan.assignGuest(guests[0], table, 0, false);
        plan.assignGuest(guests[1], table, second, false);
        QCOMPARE(plan.isNextTo(guests[0], guests[1]), nextTo);
        QCOMPARE(plan.isNextTo(guests[1], guests[0]), nextTo);
        QVERIFY(plan.atSameTable(guests[0], guests[1]));
        QVERIFY(plan.atSameTable(guests[1], guests[0]));
    }

    void guestsAtTwoTablesOrOnNoSeatAreNeitherNextToNorWithEachOther()
    {
        const Hall &h = *m_hall;
        const QList<QPair<KWGuest *, KWGuest *>> apart{{h.ann, h.cid},   {h.ann, h.dan},
                                                       {h.dan, h.eve},   {h.dan, h.dan},
                                                       {h.ann, nullptr}, {h.ann, h.strangeGuest}};
        for (const auto &[a, b] : apart) {
            QVERIFY(!h.plan.isNextTo(a, b));
            QVERIFY(!h.plan.isNextTo(b, a));
            QVERIFY(!h.plan.atSameTable(a, b));
            QVERIFY(!h.plan.atSameTable(b, a));
        }
        QVERIFY(h.plan.isNextTo(h.ann, h.bob));
        QVERIFY(h.plan.atSameTable(h.ann, h.bob));
    }
};

REGISTER_TEST(TestQueries)
#include "tst_kwdocument_queries.moc"
