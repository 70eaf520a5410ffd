#include "moveoutcomes.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
using PairMove = bool (*)(KWDocument &, int);

/// Compares the outcomes on the row's drawing, in which "wish" stands for either of two values.
void compareOutcomes(PairMove move, const QHash<QString, int> &values)
{
    QFETCH(const QString, drawing);
    QFETCH(const QStringList, expected);
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const KWDocument plan = drawnPlan(QString(drawing).replace(s("wish"), value.key()));
        QCOMPARE(outcomes(plan, [&](KWDocument &child) { return move(child, value.value()); }, {}),
                 expected);
    }
}
} // namespace

/// The moves that are drawn from pairs with a proximity value. They leave no mark.
class TestPairMutations : public QObject
{
    Q_OBJECT

private slots:
    void aPairIsMadeNeighbours_data()
    {
        const auto row = outcomeRows();
        row("either guest goes to either side", "ring A B C D | wish A C",
            {"D B C A", "B A C D", "A C B D", "A B D C"});
        row("round the end of a ring", "ring A B C D | wish D B",
            {"B A C D", "A C B D", "A B D C", "D B C A"});
        row("the mover is no neighbour to displace", "ring A B C D | wish A B",
            {"failed", "C B A D", "A D C B"});
        row("at the ends of a head table there is one side", "head A B C | wish A C",
            {"A C B", "B A C"});
        row("within a head table there are two", "head A B C D E | wish A C",
            {"B A C D E", "D B C A E", "A C B D E"});
        row("from another table", "ring A B | head C D E | wish A D",
            {"C B | A D E", "E B | C D A", "A D | C B E"});
        row("an unseated mover displaces a guest", "ring A B C | wait D | wish A D",
            {"failed", "A D C", "A B D"});
        row("both unseated", "ring A | wait B C | wish B C", {"failed"});
        row("a locked mover stays and the roles stay", "ring A! B C D | wish A C",
            {"failed", "A C B D", "A B D C"});
        row("an unseated locked mover stays", "ring A B C | wait D! | wish A D", {"failed"});
        row("both locked", "ring A! B C! D | wish A C", {"failed"});
        row("locked neighbours stay", "ring A B! C D! | wish A C", {"failed"});
        row("a head table of one seat has no seat beside", "head A | ring B C | wish A B",
            {"failed", "C | B A"});
        row("on a ring of one it is the anchor's own", "ring A | ring B C | wish A B",
            {"B | A C", "C | B A"});
        row("on a ring of one with a locked anchor", "ring A! | ring B! C | wait D | wish A D",
            {"failed"});
        row("no pair", "ring A B C D", {"failed"});
        row("pairs of other values", "ring A B C D | dislikes A C | hates B D", {"failed"});
    }
    void aPairIsMadeNeighbours() { compareOutcomes(KWMutations::mutateTogether, together()); }

    void aPairWhoseAnchorHasEmptySeatsBesideFailsThoughASeatIsFree_data()
    {
        const auto row = outcomeRows();
        row("both sides empty", "ring - A - - B - | wish A B", {"failed"});
        row("a side empty", "ring - A - C B | wish A B", {"failed", "- C - A B"});
        row("ends of a head table", "head A - - B | wish A B", {"failed"});
    }
    void aPairWhoseAnchorHasEmptySeatsBesideFailsThoughASeatIsFree()
    {
        compareOutcomes(KWMutations::mutateTogether, together());
    }

    void pairsAreTriedInTurnUntilOneSucceeds_data()
    {
        const auto row = outcomeRows();
        row("a hopeless pair first", "ring P! Q! | ring A B C D | wish P Q | wish A C",
            {"P Q | D B C A", "P Q | B A C D", "P Q | A C B D", "P Q | A B D C"});
        row("a hopeless pair last", "ring A B C D | ring P! Q! | wish P Q | wish A C",
            {"D B C A | P Q", "B A C D | P Q", "A C B D | P Q", "A B D C | P Q"});
        row("one success is enough", "ring A B C D | ring E F G H | wish A C | wish E G",
            {"D B C A | E F G H", "B A C D | E F G H", "A C B D | E F G H", "A B D C | E F G H",
             "A B C D | H F G E", "A B C D | F E G H", "A B C D | E G F H", "A B C D | E F H G"});
        row("hopeless pairs only", "ring P! Q! | ring A | wait B C! | wish P Q | wish B C",
            {"failed"});
    }
    void pairsAreTriedInTurnUntilOneSucceeds()
    {
        compareOutcomes(KWMutations::mutateTogether, together());
    }

    void aPairIsParted_data()
    {
        const auto row = outcomeRows();
        row("either guest changes places", "ring A B | head C D | wish A B",
            {"C B | A D", "D B | C A", "A C | B D", "A D | C B"});
        row("or takes an empty seat", "ring A B | ring - | wish A B", {"- B | A", "A - | B"});
        row("any other table", "ring A B | ring C | ring D | wish A B",
            {"C B | A | D", "D B | C | A", "A C | B | D", "A D | C | B"});
        row("who need not be neighbours", "ring A C B D | ring - | wish A B",
            {"- C B D | A", "A C - D | B"});
        row("already parted", "ring A C | ring B D | wish A B", {"failed"});
        row("one waits", "ring A C | ring D | wait B | wish A B", {"failed"});
        row("both wait", "ring C | ring D | wait A B | wish A B", {"failed"});
        row("a locked mover stays and the roles stay", "ring A! B | ring C | wish A B",
            {"failed", "A C | B"});
        row("both locked", "ring A! B! | ring C | wish A B", {"failed"});
        row("a table without seats", "ring A B | ring | wish A B", {"failed"});
        row("a table without seats among others", "ring A B | ring | ring C | wish A B",
            {"failed", "C B |  | A", "A C |  | B"});
        row("a locked guest is not displaced", "ring A B | ring C! | wish A B", {"failed"});
        row("a locked guest among others", "ring A B | ring C! D | wish A B",
            {"failed", "D B | C A", "A D | C B"});
        row("no pair", "ring A B | ring C", {"failed"});
        row("pairs of other values", "ring A B | ring C | loves A B | likes A B", {"failed"});
    }
    void aPairIsParted() { compareOutcomes(KWMutations::mutateApart, apart()); }

    void partingTriesPairsInTurnUntilOneSucceeds_data()
    {
        const auto row = outcomeRows();
        row("a hopeless pair first", "ring P! Q! A B | ring - | wish P Q | wish A B",
            {"P Q - B | A", "P Q A - | B"});
        row("a hopeless pair last", "ring A B P! Q! | ring - | wish P Q | wish A B",
            {"- B P Q | A", "A - P Q | B"});
        row("one success is enough", "ring A B C D | ring - - | wish A B | wish C D",
            {"- B C D | A -", "- B C D | - A", "A - C D | B -", "A - C D | - B", "A B - D | C -",
             "A B - D | - C", "A B C - | D -", "A B C - | - D"});
    }
    void partingTriesPairsInTurnUntilOneSucceeds()
    {
        compareOutcomes(KWMutations::mutateApart, apart());
    }

    void aDrawOfNoughtMakesTheFirstTheMoverAndTakesTheSeatBehind()
    {
        const KWDocument plan = drawnPlan("ring A B C D E | loves A D");
        QSet<QString> found;
        for (unsigned i = 1; i <= 50; ++i) {
            const FixedSeed seed(i);
            randomNumber(1); // the pair
            const bool firstMoves = randomNumber(2) == 0;
            const bool behind = randomNumber(2) == 0;
            seedRandomNumbers();
            KWDocument child(plan);
            QVERIFY(KWMutations::mutateTogether(child, KWScore::Loves));
            const QString expected = firstMoves ? (behind ? s("E B C D A") : s("C B A D E"))
                                                : (behind ? s("A D C B E") : s("A B C E D"));
            QCOMPARE(seatingLine(child), expected);
            found.insert(expected);
        }
        QCOMPARE(found.size(), 4);
    }

private:
    static QHash<QString, int> together()
    {
        return {{s("loves"), KWScore::Loves}, {s("likes"), KWScore::Likes}};
    }
    static QHash<QString, int> apart()
    {
        return {{s("dislikes"), KWScore::Dislikes}, {s("hates"), KWScore::Hates}};
    }
};

REGISTER_TEST(TestPairMutations)
#include "tst_kwmutations_pairs.moc"
