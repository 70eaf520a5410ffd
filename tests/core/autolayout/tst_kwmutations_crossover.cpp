#include "moveoutcomes.h"
#include "support/registeredtest.h"

#include <QtTest>

/// Taking over a table of another candidate: every outcome that it can have.
class TestCrossover : public QObject
{
    Q_OBJECT

private slots:
    void aWholeTableIsTakenOver_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<QString>("childSeats");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const char *drawing, const char *childSeats,
                            const QStringList &expected) {
            QTest::newRow(name) << s(drawing) << s(childSeats) << expected;
        };
        row("whichever table is drawn", "ring A B | ring C D", "D C | B A", {s("A B | C D")});
        row("seat by seat", "ring A B C | head D E F", "C A B | D F E",
            {s("A B C | D F E"), s("C A B | D E F")});
        row("displaced guests swap", "ring A B | ring C D | ring E", "C E | A D | B",
            {s("A B | C D | E"), s("A E | C D | B"), s("C B | A D | E")});
        row("displaced by the unseated, unseated", "ring A - | wait B C", "B C", {s("A C")});
        row("empty seats leave the child's guests", "ring A - C | ring - - | wait B", "- B - | A C",
            {s("A B C | - -")});
        row("empty tables are passed over", "ring - - | ring A B | ring - -", "A B | - - | - -",
            {s("- - | A B | - -")});
        row("tables with a locked guest are passed over", "ring A! B | ring C D", "A D | B C",
            {s("A B | C D")});
        row("only tables with locked guests or nobody", "ring A! B | ring - -", "A - | B -",
            {s("failed")});
        row("tables without seats", "ring | ring | wait A", "|", {s("failed")});
        row("no tables", "wait A", "", {s("failed")});
    }
    void aWholeTableIsTakenOver()
    {
        QFETCH(const QString, drawing);
        QFETCH(const QString, childSeats);
        const KWDocument first = drawnPlan(drawing);
        const QString firstSeats = seating(first);
        KWDocument child(first);
        reseat(child, childSeats);
        const Move move = [&first](KWDocument &plan) {
            return KWMutations::crossoverTable(first, plan);
        };
        QTEST(outcomes(child, move, s("->crossover")), "expected");
        QCOMPARE(seating(first), firstSeats);
        QCOMPARE(first.history(), s("0"));
    }

    void guestsCorrespondByTheirPosition()
    {
        const KWDocument first = drawnPlan("ring A B | wait C");
        KWDocument child = drawnPlan("ring - - | wait X Y Z");
        QVERIFY(KWMutations::crossoverTable(first, child));
        QCOMPARE(seatingLine(child), s("X Y"));
    }

    void theWalkStartsAtARandomTable()
    {
        const KWDocument first = drawnPlan("ring A | ring B | ring C | ring D");
        KWDocument child(first);
        reseat(child, s("- | - | - | -"));
        const Move move = [&first](KWDocument &plan) {
            return KWMutations::crossoverTable(first, plan);
        };
        QCOMPARE(outcomes(child, move, s("->crossover")),
                 (QStringList{s("- | - | - | D"), s("- | - | C | -"), s("- | B | - | -"),
                              s("A | - | - | -")}));
    }
};

REGISTER_TEST(TestCrossover)
#include "tst_kwmutations_crossover.moc"
