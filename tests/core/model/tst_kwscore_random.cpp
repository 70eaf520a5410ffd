#include "scorescene.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <cmath>
#include <random>

namespace {
/// What points stand where, by proximity value, and how many; neutral has neither.
struct Worth
{
    int entry;
    int nextTo;
    int sameTable;
};
const QMap<int, Worth> worthOf{
    {0, {0, 20, 10}}, {1, {1, 5, 2}}, {3, {2, -10, -5}}, {4, {3, -40, -20}}};

/// The score told as plainly as can be: it goes over seats and asks the plan for each pair.
class PlainScorer
{
public:
    PlainScorer(const KWDocument &plan, const KWTable *table)
        : m_plan(plan)
        , m_table(table)
    {
    }

    KWSeatScore points(int seat, const KWGuest *guest) const
    {
        KWSeatScore points{};
        const double weight = guest->isVip() ? 3.0 : 1.0;
        const KWGuest *left = neighbour(seat, -1);
        const KWGuest *right = neighbour(seat, +1);
        if (!left && !right)
            points[5] = rounded(-9 * weight);
        for (const KWGuest *beside : {right, left}) {
            if (!beside)
                continue;
            addWish(points, guest, beside, &Worth::nextTo, weight);
            if (guest->gender() + beside->gender() == KWGuest::Male + KWGuest::Female &&
                guest->gender() * beside->gender() != 0)
                points[4] += rounded(2 * weight);
        }
        for (int other = 0; other < m_table->seatCount(); ++other) {
            const KWGuest *o = m_table->guest(other);
            if (o && o != guest && o != left && o != right)
                addWish(points, guest, o, &Worth::sameTable, weight);
        }
        for (int entry = 0; entry < 6; ++entry)
            points[6] += points[static_cast<std::size_t>(entry)];
        return points;
    }

private:
    static int rounded(double x) { return static_cast<int>(std::lround(x)); }

    const KWGuest *neighbour(int seat, int step) const
    {
        const int count = m_table->seatCount();
        const int beside = seat + step;
        const bool line = m_table->shape() >= 2 && m_table->shape() <= 5;
        if (line && (beside < 0 || beside >= count))
            return nullptr;
        return m_table->guest((beside + count) % count);
    }

    void addWish(KWSeatScore &points, const KWGuest *a, const KWGuest *b, int Worth::*worth,
                 double weight) const
    {
        const auto found = worthOf.constFind(m_plan.affinity(a, b));
        if (found != worthOf.cend())
            points[static_cast<std::size_t>(found->entry)] += rounded((*found).*worth * weight);
    }

    const KWDocument &m_plan;
    const KWTable *m_table;
};

/// A plan with most guests seated, some wishes of guests for themselves among the others.
void fill(KWDocument &plan, int seed)
{
    // The odd seat counts leave a last table of one seat or of few.
    fillRandomly(plan, {.guests = 24 + seed % 7,
                        .seats = 17 + seed % 12,
                        .wishes = 20 + 8 * (seed % 13),
                        .locked = 10 + 5 * (seed % 9),
                        .seed = static_cast<unsigned>(seed)});
    for (int i = seed % 3; i < plan.guestCount(); i += 3)
        plan.setAffinity(plan.guestAt(i), plan.guestAt(i), i % 5, false);
    plan.recalculateScores();
}

KWSeatScore storedEntries(const KWDocument &plan, const KWTable *table, int seat)
{
    KWSeatScore result{};
    for (int entry = 0; entry < KWScore::EntryCount; ++entry)
        result[static_cast<std::size_t>(entry)] = plan.seatScore(table, seat, entry);
    return result;
}

/// A score that tells, when it is wrong, whose it is.
QString line(int seat, const KWGuest *guest, const KWSeatScore &score)
{
    return s("%1 on seat %2: %3")
        .arg(guest ? guest->displayName() : s("nobody"), QString::number(seat),
             ScoreScene::text(score));
}

/// Every entry of every seat, every table's score and the plan's.
void checkStoredScores(const KWDocument &plan)
{
    int total = 0;
    for (const KWTable *table : plan.tables()) {
        const PlainScorer scorer(plan, table);
        int tableScore = 0;
        for (int seat = 0; seat < table->seatCount(); ++seat) {
            const KWGuest *guest = table->guest(seat);
            const KWSeatScore points = guest ? scorer.points(seat, guest) : KWSeatScore{};
            QCOMPARE(line(seat, guest, storedEntries(plan, table, seat)),
                     line(seat, guest, points));
            tableScore += points[6];
        }
        QCOMPARE(table->score(), tableScore);
        total += tableScore;
    }
    QCOMPARE(plan.totalScore(), total);
}

/// One change by chance to anything that a score depends on, without a rescore.
void changeSomething(KWDocument &plan, std::mt19937 &engine)
{
    const auto draw = [&](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); };
    KWGuest *guest = plan.guestAt(draw(plan.guestCount()));
    KWTable *table = plan.tableAt(draw(plan.tableCount()));
    switch (draw(10)) {
    case 0:
        plan.unassignGuest(guest, false);
        break;
    case 1:
        plan.setAffinity(guest, plan.guestAt(draw(plan.guestCount())), draw(5), false);
        break;
    case 2:
        guest->setVip(!guest->isVip());
        break;
    case 3:
        guest->setGender(draw(3));
        break;
    case 4:
        plan.setTableShape(table, draw(KWTable::ShapeCount));
        break;
    case 5:
        plan.rotateTable(table);
        break;
    case 6:
        plan.resizeTable(table, draw(12), false);
        break;
    case 7:
        plan.deleteGuest(guest, false);
        addGuest(plan, {.name = "new", .gender = draw(3)});
        break;
    default:
        plan.assignGuest(guest, table, draw(table->seatCount() + 1), false);
    }
}
} // namespace

class TestRandomScores : public QObject
{
    Q_OBJECT

private:
    void addSeeds()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 48; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

private slots:
    void storedScoresAgreeWithThePlainScorer_data() { addSeeds(); }
    void storedScoresAgreeWithThePlainScorer()
    {
        QFETCH(int, seed);
        KWDocument plan;
        fill(plan, seed);
        checkStoredScores(plan);
    }

    void rescoringAfterAnyChangesAgreesWithThePlainScorer_data() { addSeeds(); }
    void rescoringAfterAnyChangesAgreesWithThePlainScorer()
    {
        QFETCH(int, seed);
        KWDocument plan;
        fill(plan, seed);
        std::mt19937 engine(static_cast<unsigned>(seed));
        for (int round = 0; round < 40 && !QTest::currentTestFailed(); ++round) {
            // The copy takes over the wishes and the scores, half of them out of date.
            changeSomething(plan, engine);
            KWDocument copy(plan);
            changeSomething(copy, engine);
            copy.recalculateScores();
            checkStoredScores(copy);
            plan.recalculateScores();
            checkStoredScores(plan);
        }
    }

    void contributionsAgreeWithThePlainScorerOnEverySeatForEveryGuest_data() { addSeeds(); }
    void contributionsAgreeWithThePlainScorerOnEverySeatForEveryGuest()
    {
        QFETCH(int, seed);
        KWDocument plan;
        fill(plan, seed);
        for (const KWTable *table : plan.tables()) {
            const PlainScorer scorer(plan, table);
            for (int seat = 0; seat < table->seatCount(); ++seat) {
                for (const KWGuest *guest : plan.guests())
                    QCOMPARE(plan.seatContribution(table, seat, guest), scorer.points(seat, guest));
            }
        }
    }

    /// Without this, the comparisons above might have had nothing to compare.
    void thePlansHoldEveryCase()
    {
        QSet<int> shapes;
        QSet<int> sizes;
        QMap<QString, int> cases;
        for (int seed = 1; seed <= 48; ++seed) {
            KWDocument plan;
            fill(plan, seed);
            for (const KWTable *table : plan.tables()) {
                shapes.insert(table->shape());
                sizes.insert(table->seatCount());
                cases[s("seated")] += table->seatedCount();
                cases[s("empty")] += table->emptySeatCount();
                for (int seat = 0; seat < table->seatCount(); ++seat) {
                    for (int entry = 0; entry < KWScore::EntryCount; ++entry) {
                        if (plan.seatScore(table, seat, entry) != 0)
                            ++cases[s("entry %1").arg(entry)];
                    }
                }
            }
            cases[s("waiting")] += plan.unseatedGuestCount(true);
        }
        QCOMPARE(shapes.size(), int(KWTable::ShapeCount));
        QVERIFY(sizes.contains(1) && sizes.contains(2) && sizes.contains(10));
        for (const char *name : {"seated", "empty", "waiting"})
            QVERIFY2(cases.value(s(name)) > 300, name);
        for (int entry = 0; entry < KWScore::EntryCount; ++entry)
            QVERIFY2(cases.value(s("entry %1").arg(entry)) > 50, qPrintable(s("%1").arg(entry)));
    }
};

REGISTER_TEST(TestRandomScores)
#include "tst_kwscore_random.moc"
