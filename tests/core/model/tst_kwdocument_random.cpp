#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>
#include <random>

namespace {
using Pair = KWDocument::GuestPair;

/// What a plan should hold, kept by plain lists: a guest's seat is found by looking at all of
/// them, and a wish stands under both orders of its pair.
struct NaivePlan
{
    QList<KWGuest *> guests;
    QList<KWGroup *> groups;
    QList<KWTable *> tables;
    QHash<const KWGroup *, QList<KWGuest *>> members;
    QHash<const KWTable *, QList<KWGuest *>> seats;
    QHash<Pair, int> wishes;

    bool find(const KWGuest *guest, KWTable **table, int *seat) const
    {
        for (KWTable *candidate : tables) {
            const qsizetype place = seats[candidate].indexOf(guest);
            if (place < 0)
                continue;
            *table = candidate;
            *seat = static_cast<int>(place);
            return true;
        }
        return false;
    }
    KWGroup *groupOf(const KWGuest *guest) const
    {
        for (KWGroup *group : groups) {
            if (members[group].contains(guest))
                return group;
        }
        return nullptr;
    }
    void unseat(const KWGuest *guest)
    {
        KWTable *table = nullptr;
        int seat = -1;
        if (find(guest, &table, &seat))
            seats[table][seat] = nullptr;
    }
    void forget(KWGuest *guest)
    {
        unseat(guest);
        if (KWGroup *group = groupOf(guest))
            members[group].removeOne(guest);
        wishes.removeIf([guest](const auto &wish) {
            return wish.key().first == guest || wish.key().second == guest;
        });
        guests.removeOne(guest);
    }
    void assign(KWGuest *guest, KWTable *table, int seat)
    {
        KWGuest *occupant = seats[table][seat];
        KWTable *oldTable = nullptr;
        int oldSeat = -1;
        const bool wasSeated = find(guest, &oldTable, &oldSeat);
        seats[table][seat] = guest;
        if (wasSeated && occupant != guest)
            seats[oldTable][oldSeat] = occupant;
    }
    void setWish(KWGuest *a, KWGuest *b, int value)
    {
        wishes[{a, b}] = value;
        wishes[{b, a}] = value;
    }
    int wish(KWGuest *a, KWGuest *b) const { return wishes.value({a, b}, KWScore::Neutral); }
};

QList<KWGuest *> seatsOf(const KWTable *table)
{
    return {table->seats().begin(), table->seats().end()};
}

QList<KWGuest *> seated(QList<KWGuest *> seats)
{
    seats.removeAll(nullptr);
    return seats;
}

/// A plan, what it should hold, and operations by chance on both.
class RandomEdits
{
public:
    explicit RandomEdits(unsigned seed)
        : m_engine(seed)
    {
        for (int i = 0; i < 4; ++i) {
            addGroup();
            addTable();
        }
        for (int i = 0; i < 20; ++i)
            addGuest();
    }

    KWDocument &plan() { return m_plan; }
    const NaivePlan &naive() const { return m_naive; }

    /// Deletions are rarer than additions until the plan has grown, so that its size hovers.
    void step()
    {
        using Edit = void (RandomEdits::*)();
        static constexpr std::array<Edit, 12> edits{
            &RandomEdits::assign,      &RandomEdits::assign,      &RandomEdits::assign,
            &RandomEdits::unassign,    &RandomEdits::wish,        &RandomEdits::wish,
            &RandomEdits::moveToGroup, &RandomEdits::resize,      &RandomEdits::rotate,
            &RandomEdits::reorder,     &RandomEdits::changeGuest, &RandomEdits::wish};
        const int kind = draw(16);
        if (kind == 12)
            m_naive.guests.size() < 30 ? addGuest() : deleteGuest();
        else if (kind == 13)
            m_naive.guests.size() > 10 ? deleteGuest() : addGuest();
        else if (kind == 14)
            m_naive.tables.size() < 6 ? addTable() : deleteTable();
        else if (kind == 15)
            m_naive.groups.size() < 8 ? addGroup() : deleteGroup();
        else
            (this->*edits[static_cast<std::size_t>(kind)])();
    }

    /// Puts a copy in the plan's place, as undoing does.
    void replaceByCopy()
    {
        const KWDocument copy(m_plan);
        m_plan = copy;
        m_naive = translated(m_naive);
    }

private:
    int draw(qsizetype n)
    {
        return static_cast<int>(m_engine() % static_cast<unsigned>(std::max<qsizetype>(n, 1)));
    }
    bool toss() { return draw(2) == 0; }
    template <typename T>
    T *any(const QList<T *> &list)
    {
        return list.isEmpty() ? nullptr : list.at(draw(list.size()));
    }

    void addGuest()
    {
        KWGroup *group = draw(8) == 0 ? nullptr : any(m_naive.groups);
        const QByteArray name = 'G' + QByteArray::number(++m_added);
        KWGuest *guest =
            ::addGuest(m_plan, {name.constData(), draw(3), draw(4) == 0, draw(5) == 0}, group);
        m_naive.guests.append(guest);
        if (group)
            m_naive.members[group].append(guest);
    }
    void addGroup() { m_naive.groups.append(m_plan.addGroup({}, s("group"), {})); }
    void addTable()
    {
        KWTable *table = m_plan.addTable(draw(KWTable::ShapeCount), s("T"), draw(8), draw(3),
                                         draw(3), draw(3), {}, {});
        m_naive.tables.append(table);
        m_naive.seats[table] = QList<KWGuest *>(table->seatCount(), nullptr);
    }
    void deleteGuest()
    {
        KWGuest *guest = any(m_naive.guests);
        if (guest)
            m_naive.forget(guest);
        m_plan.deleteGuest(guest, toss());
    }
    void deleteTable()
    {
        KWTable *table = any(m_naive.tables);
        m_naive.tables.removeOne(table);
        m_naive.seats.remove(table);
        m_plan.deleteTable(table, toss());
    }
    void deleteGroup()
    {
        KWGroup *group = any(m_naive.groups);
        for (KWGuest *guest : m_naive.members.take(group))
            m_naive.forget(guest);
        m_naive.groups.removeOne(group);
        m_plan.deleteGroup(group, toss());
    }
    void assign()
    {
        KWGuest *guest = any(m_naive.guests);
        KWTable *table = any(m_naive.tables);
        const int seat = draw(10) - 1;
        if (guest && table && seat >= 0 && seat < table->seatCount())
            m_naive.assign(guest, table, seat);
        m_plan.assignGuest(guest, table, seat, toss());
    }
    void unassign()
    {
        KWGuest *guest = any(m_naive.guests);
        m_naive.unseat(guest);
        m_plan.unassignGuest(guest, toss());
    }
    void wish()
    {
        KWGuest *a = any(m_naive.guests);
        KWGuest *b = any(m_naive.guests);
        const int value = draw(5);
        m_naive.setWish(a, b, value);
        m_plan.setAffinity(a, b, value, toss());
    }
    void moveToGroup()
    {
        KWGuest *guest = any(m_naive.guests);
        KWGroup *group = any(m_naive.groups);
        if (KWGroup *old = m_naive.groupOf(guest))
            m_naive.members[old].removeOne(guest);
        m_naive.members[group].append(guest);
        m_plan.moveGuestToGroup(group, guest);
    }
    /// Guests keep their order, and those at the end fall off. Where exactly the others then sit
    /// is told by other tests.
    void resize()
    {
        KWTable *table = any(m_naive.tables);
        const int count = draw(10);
        const QList<KWGuest *> before = m_naive.seats.value(table);
        m_plan.resizeTable(table, count, toss());
        const QList<KWGuest *> after = seatsOf(table);
        QCOMPARE(after.size(), count);
        QCOMPARE(seated(after), seated(before).mid(0, count));
        m_naive.seats[table] = after;
    }
    void rotate()
    {
        KWTable *table = any(m_naive.tables);
        const QList<KWGuest *> before = m_naive.seats.value(table);
        const int by = table->shape() == KWTable::Circular      ? 1
                       : table->shape() == KWTable::Rectangular ? table->seatsDown()
                       : table->shape() == KWTable::Custom      ? table->seatsDown2()
                                                                : 0;
        for (int seat = 0; seat < before.size(); ++seat)
            m_naive.seats[table][(seat + by) % before.size()] = before.at(seat);
        m_plan.rotateTable(table);
    }
    void reorder()
    {
        KWTable *table = any(m_naive.tables);
        KWTable *other = any(m_naive.tables);
        if (table != other) {
            m_naive.tables.removeOne(table);
            m_naive.tables.insert(m_naive.tables.indexOf(other), table);
        }
        m_plan.moveTableBefore(table, other);
    }
    void changeGuest()
    {
        KWGuest *guest = any(m_naive.guests);
        m_plan.setGuestVip(guest, toss());
        m_plan.setGuestLocked(guest, toss());
        m_plan.setTableShape(any(m_naive.tables), draw(KWTable::ShapeCount));
    }

    /// The same with the objects that stand at the same positions of the plan now.
    NaivePlan translated(const NaivePlan &old) const
    {
        const auto now = [&](KWGuest *guest) {
            return guest ? m_plan.guestAt(static_cast<int>(old.guests.indexOf(guest))) : nullptr;
        };
        const auto allNow = [&](QList<KWGuest *> guests) {
            std::transform(guests.begin(), guests.end(), guests.begin(), now);
            return guests;
        };
        NaivePlan result;
        result.guests = m_plan.guests();
        result.groups = m_plan.groups();
        result.tables = m_plan.tables();
        for (qsizetype i = 0; i < old.groups.size(); ++i)
            result.members[result.groups.at(i)] = allNow(old.members[old.groups.at(i)]);
        for (qsizetype i = 0; i < old.tables.size(); ++i)
            result.seats[result.tables.at(i)] = allNow(old.seats[old.tables.at(i)]);
        for (auto wish = old.wishes.cbegin(); wish != old.wishes.cend(); ++wish)
            result.wishes[{now(wish.key().first), now(wish.key().second)}] = wish.value();
        return result;
    }

    KWDocument m_plan;
    NaivePlan m_naive;
    std::mt19937 m_engine;
    int m_added = 0;
};

template <typename T>
void checkList(const KWDocument &plan, const QList<T *> &list, const QList<T *> &expected,
               int (KWDocument::*indexOf)(const T *) const)
{
    QCOMPARE(list, expected);
    for (int i = 0; i < list.size(); ++i)
        QCOMPARE((plan.*indexOf)(list.at(i)), i);
}

void checkSeats(const KWDocument &plan, const NaivePlan &naive)
{
    QList<KWGuest *> onSeats;
    for (const KWTable *table : naive.tables) {
        QCOMPARE(seatsOf(table), naive.seats[table]);
        QCOMPARE(table->seatedCount(), seated(seatsOf(table)).size());
        QCOMPARE(table->seatScores().size(), table->seatCount());
        onSeats += seated(seatsOf(table));
    }
    QCOMPARE(QSet<KWGuest *>(onSeats.begin(), onSeats.end()).size(), onSeats.size());
    QCOMPARE(plan.seatedGuestCount(), onSeats.size());
    QCOMPARE(plan.unseatedGuestCount(true), plan.guestCount() - onSeats.size());
    for (const KWGuest *guest : naive.guests) {
        KWTable *table = nullptr;
        KWTable *expectedTable = nullptr;
        int seat = -1;
        int expectedSeat = -1;
        QCOMPARE(plan.findGuest(guest, &table, &seat),
                 naive.find(guest, &expectedTable, &expectedSeat));
        QCOMPARE(table, expectedTable);
        QCOMPARE(seat, expectedSeat);
    }
}

void checkGroups(const NaivePlan &naive)
{
    for (const KWGroup *group : naive.groups)
        QCOMPARE(group->guests(), naive.members[group]);
    for (const KWGuest *guest : naive.guests)
        QCOMPARE(guest->group(), naive.groupOf(guest));
}

void checkWishes(const KWDocument &plan, const NaivePlan &naive)
{
    int stored = 0;
    for (KWGuest *a : naive.guests) {
        for (KWGuest *b : naive.guests) {
            const int value = plan.affinity(a, b);
            QCOMPARE(value, naive.wish(a, b));
            QCOMPARE(value, plan.affinity(b, a));
            // Each pair once, and a guest may stand in one twice.
            stored +=
                value != KWScore::Neutral && naive.guests.indexOf(a) <= naive.guests.indexOf(b);
        }
    }
    QCOMPARE(plan.affinityCount(), stored);
    QCOMPARE(plan.affinities().size(), stored);
    for (const KWDocument::Affinity &wish : plan.affinities())
        QCOMPARE(wish.value, naive.wish(wish.first, wish.second));
}

void checkScoresOfACopy(KWDocument &plan)
{
    plan.recalculateScores();
    KWDocument copy(plan);
    QCOMPARE(contents(copy), contents(plan));
    QCOMPARE(copy.totalScore(), plan.totalScore());
    copy.recalculateScores();
    QCOMPARE(copy.totalScore(), plan.totalScore());
    for (int i = 0; i < plan.tableCount(); ++i) {
        QCOMPARE(copy.tableAt(i)->score(), plan.tableAt(i)->score());
        QCOMPARE(copy.tableAt(i)->seatScores(), plan.tableAt(i)->seatScores());
    }
}
} // namespace

class TestRandomEdits : public QObject
{
    Q_OBJECT

private slots:
    void thePlanAgreesWithPlainListsAfterEveryOperation_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void thePlanAgreesWithPlainListsAfterEveryOperation()
    {
        QFETCH(unsigned, seed);
        RandomEdits edits(seed);
        for (int i = 0; i < 2000 && !QTest::currentTestFailed(); ++i) {
            edits.step();
            const KWDocument &plan = edits.plan();
            const NaivePlan &naive = edits.naive();
            checkList(plan, plan.guests(), naive.guests, &KWDocument::indexOfGuest);
            checkList(plan, plan.groups(), naive.groups, &KWDocument::indexOfGroup);
            checkList(plan, plan.tables(), naive.tables, &KWDocument::indexOfTable);
            checkSeats(plan, naive);
            checkGroups(naive);
            if (i % 10 == 0)
                checkWishes(plan, naive);
            if (i % 50 == 0)
                checkScoresOfACopy(edits.plan());
            if (i % 100 == 99)
                edits.replaceByCopy();
        }
    }
};

REGISTER_TEST(TestRandomEdits)
#include "tst_kwdocument_random.moc"
