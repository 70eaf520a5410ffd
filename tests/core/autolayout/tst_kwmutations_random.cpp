#include "core/autolayout/kwgeneticsolver.h"
#include "moveoutcomes.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {
struct NamedMove
{
    const char *name;
    Move move;
    QString mark;
    /// So many more guests may sit afterwards; never fewer.
    int moreSeated = 0;
};

QList<NamedMove> moves()
{
    const auto together = [](int value) {
        return [value](KWDocument &plan) { return KWMutations::mutateTogether(plan, value); };
    };
    const auto apart = [](int value) {
        return [value](KWDocument &plan) { return KWMutations::mutateApart(plan, value); };
    };
    return {{"guest", KWMutations::mutateGuest, s("->GuestM")},
            {"run", KWMutations::mutateMultiGuest, s("->MultiGuestM")},
            {"member", KWMutations::mutateMember, s("->MemberM")},
            {"empty", KWMutations::mutateEmpty, s("->EmptyM"), 1},
            {"loves", together(KWScore::Loves), {}},
            {"likes", together(KWScore::Likes), {}},
            {"dislikes", apart(KWScore::Dislikes), {}},
            {"hates", apart(KWScore::Hates), {}}};
}

qsizetype seated(const QString &seats)
{
    return seats.count(u'G');
}

/// True if every guest of the table has the same seat in the text; its empty seats do not matter.
bool holdsGuestsOf(const KWTable &table, const QString &seats)
{
    const QStringList before = wordsOf(seating(table));
    const QStringList after = wordsOf(seats);
    return std::ranges::equal(before, after, [](const QString &guest, const QString &now) {
        return guest == u"-" || guest == now;
    });
}

/// A plan with its guests on seats by chance, whatever their wishes.
void startOn(KWDocument &plan, const RandomPlan &shape)
{
    fillRandomly(plan, shape);
    std::mt19937 engine(shape.seed);
    const auto draw = [&](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); };
    for (KWGuest *guest : plan.guests()) {
        KWTable *table = plan.tableAt(draw(plan.tableCount()));
        const int seat = draw(table->seatCount());
        if (!guest->isLocked() && !plan.seatHoldsLockedGuest(table, seat))
            plan.assignGuest(guest, table, seat, false);
    }
    plan.recalculateScores();
}
} // namespace

/// What holds for every move on plans of all kinds.
class TestMovesOnRandomPlans : public QObject
{
    Q_OBJECT

private slots:
    void mutationsTouchOnlyWhatTheyMay_data()
    {
        QTest::addColumn<RandomPlan>("shape");
        QTest::addColumn<int>("number");
        const QList<RandomPlan> shapes{
            {.seed = 1},
            {.wishes = 400, .seed = 2},
            {.seats = 30, .wishes = 200, .seed = 3},
            {.guests = 20, .seats = 60, .wishes = 150, .seed = 4},
            {.guests = 30, .seats = 40, .wishes = 300, .locked = 20, .seed = 5}};
        for (const RandomPlan &shape : shapes) {
            for (int number = 0; number < moves().size(); ++number) {
                // With as many guests as seats, the move to an empty seat is not made.
                if (number != 3 || shape.guests < shape.seats)
                    QTest::addRow("%s on plan %u", moves().at(number).name, shape.seed)
                        << shape << number;
            }
        }
    }
    void mutationsTouchOnlyWhatTheyMay()
    {
        QFETCH(const RandomPlan, shape);
        QFETCH(const int, number);
        KWDocument plan;
        startOn(plan, shape);
        const KWGeneticSolver solver(plan, 2, 60, 20, 20, 0.5F, 1.0F, 2.0F);
        QVERIFY(solver.isMutationAvailable(number));

        const NamedMove named = moves().at(number);
        const QStringList found = outcomes(plan, named.move, named.mark, 200);
        QVERIFY2(found.size() > 3, qPrintable(QString::number(found.size())));
        for (const QString &result : found) {
            QVERIFY2(!result.contains(u':'), qPrintable(result));
            const qsizetype more =
                result == s("failed") ? 0 : seated(result) - plan.seatedGuestCount();
            QVERIFY2(more >= 0 && more <= named.moreSeated, qPrintable(result));
        }
    }

    void crossoverTouchesOnlyWhatItMay_data()
    {
        QTest::addColumn<RandomPlan>("shape");
        for (unsigned seed = 1; seed <= 4; ++seed) {
            QTest::addRow("room for all %u", seed) << RandomPlan{.seed = seed};
            QTest::addRow("few seats %u", seed) << RandomPlan{.seats = 30, .seed = seed};
        }
    }
    void crossoverTouchesOnlyWhatItMay()
    {
        QFETCH(const RandomPlan, shape);
        KWDocument first;
        startOn(first, shape);
        KWDocument child(first);
        child.randomLayout();
        const Move move = [&first](KWDocument &plan) {
            return KWMutations::crossoverTable(first, plan);
        };
        for (const QString &result : outcomes(child, move, s("->crossover"), 100)) {
            QVERIFY2(!result.contains(u':'), qPrintable(result));
            const QStringList tables = result.split(s(" | "));
            const auto isTakenOver = [&](const KWTable *table) {
                return table->seatedCount() > 0 && !first.tableHasLockedGuest(table) &&
                       holdsGuestsOf(*table, tables.at(first.indexOfTable(table)));
            };
            QVERIFY2(std::ranges::any_of(first.tables(), isTakenOver), qPrintable(result));
        }
    }
};

REGISTER_TEST(TestMovesOnRandomPlans)
#include "tst_kwmutations_random.moc"
