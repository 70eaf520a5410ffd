#include "editedplan.h"
#include "support/naiveplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <random>

namespace {
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
        using Edit = QStringList (RandomEdits::*)();
        static constexpr std::array<Edit, 12> edits{
            &RandomEdits::assign,      &RandomEdits::assign,      &RandomEdits::assign,
            &RandomEdits::unassign,    &RandomEdits::wish,        &RandomEdits::wish,
            &RandomEdits::moveToGroup, &RandomEdits::resize,      &RandomEdits::rotate,
            &RandomEdits::reorder,     &RandomEdits::changeGuest, &RandomEdits::changeShape};
        m_log.take();
        QStringList expected;
        const int kind = draw(16);
        if (kind == 12)
            expected = m_naive.guests.size() < 30 ? addGuest() : deleteGuest();
        else if (kind == 13)
            expected = m_naive.guests.size() > 10 ? deleteGuest() : addGuest();
        else if (kind == 14)
            expected = m_naive.tables.size() < 6 ? addTable() : deleteTable();
        else if (kind == 15)
            expected = m_naive.groups.size() < 8 ? addGroup() : deleteGroup();
        else
            expected = (this->*edits[static_cast<std::size_t>(kind)])();
        QCOMPARE(m_log.take(), expected);
    }

    /// Puts a copy in the plan's place, as undoing does.
    void replaceByCopy()
    {
        const KWDocument copy(m_plan);
        m_plan = copy;
        m_naive = m_naive.translatedTo(m_plan);
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

    QByteArray name(char kind) { return kind + QByteArray::number(++m_added); }

    QStringList addGuest()
    {
        KWGroup *group = draw(8) == 0 ? nullptr : any(m_naive.groups);
        const QByteArray called = name('G');
        const TestGuest guest{called.constData(), draw(3), draw(4) == 0, draw(5) == 0};
        return m_naive.addGuest(::addGuest(m_plan, guest, group), group);
    }
    QStringList addGroup()
    {
        return m_naive.addGroup(m_plan.addGroup({}, s(name('P').constData()), {}));
    }
    QStringList addTable()
    {
        return m_naive.addTable(m_plan.addTable(draw(KWTable::ShapeCount), s(name('T').constData()),
                                                draw(8), draw(3), draw(3), draw(3), {}, {}));
    }
    QStringList deleteGuest()
    {
        KWGuest *guest = any(m_naive.guests);
        const bool rescore = toss();
        const QStringList steps = m_naive.deleteGuest(guest, rescore);
        m_plan.deleteGuest(guest, rescore);
        return steps;
    }
    QStringList deleteTable()
    {
        KWTable *table = any(m_naive.tables);
        const bool rescore = toss();
        const QStringList steps = m_naive.deleteTable(table, rescore);
        m_plan.deleteTable(table, rescore);
        return steps;
    }
    QStringList deleteGroup()
    {
        KWGroup *group = any(m_naive.groups);
        const bool rescore = toss();
        const QStringList steps = m_naive.deleteGroup(group, rescore);
        m_plan.deleteGroup(group, rescore);
        return steps;
    }
    QStringList assign()
    {
        KWGuest *guest = any(m_naive.guests);
        KWTable *table = any(m_naive.tables);
        const int seat = draw(10) - 1;
        const bool rescore = toss();
        QStringList steps;
        if (seat >= 0 && seat < table->seatCount())
            steps = m_naive.assign(guest, table, seat, rescore);
        m_plan.assignGuest(guest, table, seat, rescore);
        return steps;
    }
    QStringList unassign()
    {
        KWGuest *guest = any(m_naive.guests);
        const bool rescore = toss();
        const QStringList steps = m_naive.unassign(guest, rescore);
        m_plan.unassignGuest(guest, rescore);
        return steps;
    }
    QStringList wish()
    {
        KWGuest *a = any(m_naive.guests);
        KWGuest *b = any(m_naive.guests);
        const int value = draw(5);
        const bool rescore = toss();
        const QStringList steps = m_naive.setWish(a, b, value, rescore);
        m_plan.setAffinity(a, b, value, rescore);
        return steps;
    }
    QStringList moveToGroup()
    {
        KWGuest *guest = any(m_naive.guests);
        KWGroup *group = any(m_naive.groups);
        const QStringList steps = m_naive.moveToGroup(group, guest);
        m_plan.moveGuestToGroup(group, guest);
        return steps;
    }
    QStringList resize()
    {
        KWTable *table = any(m_naive.tables);
        const int count = draw(10);
        const bool rescore = toss();
        const QStringList steps = m_naive.resize(table, count, rescore);
        m_plan.resizeTable(table, count, rescore);
        return steps;
    }
    QStringList rotate()
    {
        KWTable *table = any(m_naive.tables);
        const QStringList steps = m_naive.rotate(table);
        m_plan.rotateTable(table);
        return steps;
    }
    QStringList reorder()
    {
        KWTable *table = any(m_naive.tables);
        KWTable *other = any(m_naive.tables);
        const QStringList steps = m_naive.moveBefore(table, other);
        m_plan.moveTableBefore(table, other);
        return steps;
    }
    QStringList changeGuest()
    {
        KWGuest *guest = any(m_naive.guests);
        const bool value = toss();
        if (toss()) {
            const QStringList steps = m_naive.setVip(guest, value);
            m_plan.setGuestVip(guest, value);
            return steps;
        }
        const QStringList steps = m_naive.setLocked(guest, value);
        m_plan.setGuestLocked(guest, value);
        return steps;
    }
    QStringList changeShape()
    {
        KWTable *table = any(m_naive.tables);
        const int shape = draw(KWTable::ShapeCount);
        const QStringList steps = m_naive.setShape(table, shape);
        m_plan.setTableShape(table, shape);
        return steps;
    }

    KWDocument m_plan;
    StepLog m_log{m_plan};
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
