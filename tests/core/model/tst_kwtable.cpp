#include "seatedtable.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
using Sides = KWTable::Sides;

/// Every way of seating guests A, B, ... on the seats of a table.
QStringList allPatterns(int seats)
{
    QStringList result;
    for (unsigned bits = 0; bits < 1U << static_cast<unsigned>(seats); ++bits) {
        QString pattern;
        for (int seat = 0; seat < seats; ++seat)
            pattern += bits >> static_cast<unsigned>(seat) & 1U ? QChar(u'A' + seat) : QChar(u'-');
        result.append(pattern);
    }
    return result;
}

/// The first seat from which the most empty seats follow, each counted on its own.
int longestGap(const QString &pattern)
{
    const QString twice = pattern + pattern;
    qsizetype most = 0;
    int best = 0;
    for (int seat = 0; seat < pattern.size(); ++seat) {
        qsizetype empty = 0;
        while (empty < pattern.size() && twice.at(seat + empty) == u'-')
            ++empty;
        if (empty > most) {
            most = empty;
            best = seat;
        }
    }
    return best;
}

/// A pattern after compacting, gap by gap.
QString closedUp(QString pattern, qsizetype count)
{
    const qsizetype target = std::max(count, QString(pattern).remove(u'-').size());
    const auto guest = [](QChar c) { return c != u'-'; };
    for (;;) {
        const auto last = std::find_if(pattern.crbegin(), pattern.crend(), guest);
        const qsizetype behind = pattern.crend() - last;
        if (behind <= target)
            return pattern;
        pattern.insert(behind, u'-');
        pattern.remove(pattern.indexOf(u'-'), 1);
    }
}

/// Seat entries that differ from seat to seat.
QList<KWSeatScore> someScores(int seats)
{
    QList<KWSeatScore> result;
    for (int seat = 0; seat < seats; ++seat)
        result.append({seat, 0, 0, 0, 0, -9, seat - 9});
    return result;
}
} // namespace

class TestTable : public QObject
{
    Q_OBJECT

private slots:
    void countsMeanWhatTheShapeSays_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<Sides>("counts");
        QTest::addColumn<int>("seats");
        QTest::addColumn<Sides>("sides");
        const auto row = [](const char *name, int shape, Sides counts, int seats, Sides sides) {
            QTest::newRow(name) << shape << counts << seats << sides;
        };
        row("circular", 0, {8, 3, 2, 1}, 8, {});
        row("rectangular", 1, {3, 1, 7, 9}, 8, {3, 1, 0, 0});
        row("head, top", 2, {6, 3, 2, 1}, 6, {});
        row("head, right", 3, {6, 3, 2, 1}, 6, {});
        row("head, bottom", 4, {6, 3, 2, 1}, 6, {});
        row("head, left", 5, {6, 3, 2, 1}, 6, {});
        row("custom", 6, {4, 1, 2, 3}, 10, {4, 1, 2, 3});
        row("unknown shape", 7, {4, 1, 2, 3}, 0, {});
        row("negative shape", -1, {4, 1, 2, 3}, 0, {});
        row("no seats", 0, {}, 0, {});
        row("a negative seat count is 0", 0, {-5}, 0, {});
        row("a negative head count is 0", 5, {-1}, 0, {});
        row("a negative side is 0", 1, {3, -1}, 6, {3, 0, 0, 0});
        row("negative sides of a custom table are 0", 6, {-4, 1, -2, 3}, 4, {0, 1, 0, 3});
        row("a seat count above 1000 is 1000", 0, {1001}, 1000, {});
        row("a side above 1000 is 1000", 1, {1001, 2}, 2004, {1000, 2, 0, 0});
        row("sides of a custom table, too", 6, {5000, 1000, 2147483647, 1}, 3001,
            {1000, 1000, 1000, 1});
    }
    void countsMeanWhatTheShapeSays()
    {
        QFETCH(int, shape);
        QFETCH(Sides, counts);
        const Seated seated(shape, {}, counts);
        QTEST(seated.table.seatCount(), "seats");
        QTEST(seated.table.sides(), "sides");
        QCOMPARE(seated.table.seatsAcross(), seated.table.sides()[0]);
        QCOMPARE(seated.table.seatsDown(), seated.table.sides()[1]);
        QCOMPARE(seated.table.seatsAcross2(), seated.table.sides()[2]);
        QCOMPARE(seated.table.seatsDown2(), seated.table.sides()[3]);
    }

    void aNewTableIsEmptyAndUnscored()
    {
        const KWTable table(KWTable::HeadLeft, s("Top"), 3, 0, 0, 0, {40, -7}, s("near the door"));
        QCOMPARE(table.name(), s("Top"));
        QCOMPARE(table.shape(), 5);
        QCOMPARE(table.position(), QPoint(40, -7));
        QCOMPARE(table.notes(), s("near the door"));
        QCOMPARE(seating(table), s("- - -"));
        QCOMPARE(table.seatedCount(), 0);
        QCOMPARE(table.emptySeatCount(), 3);
        QCOMPARE(table.score(), 0);
        QCOMPARE(table.seatScores(), QList<KWSeatScore>(3, KWSeatScore{}));
    }

    void aCopyHasTheScoresButNoGuests()
    {
        Seated seated(KWTable::Custom, s("AB--C-"), {3, 1, 2, 0});
        KWTable &table = seated.table;
        table.setNotes(s("near the door"));
        table.setPosition({3, 4});
        table.setScores(someScores(6), 17);
        const KWTable copy(table);
        QCOMPARE(copy.name(), s("T"));
        QCOMPARE(copy.notes(), s("near the door"));
        QCOMPARE(copy.shape(), int(KWTable::Custom));
        QCOMPARE(copy.sides(), (Sides{3, 1, 2, 0}));
        QCOMPARE(copy.position(), QPoint(3, 4));
        QCOMPARE(copy.seatScores(), someScores(6));
        QCOMPARE(copy.score(), 17);
        QCOMPARE(seating(copy), s("- - - - - -"));
        QCOMPARE(copy.seatedCount(), 0);
        QCOMPARE(seated.pattern(), s("AB--C-"));
    }

    void settersChangeTheirFieldOnly()
    {
        Seated seated(KWTable::Rectangular, s("AB--C-"), {2, 1});
        KWTable &table = seated.table;
        table.setName(s("Second"));
        table.setShape(KWTable::HeadTop);
        QCOMPARE(table.name(), s("Second"));
        QCOMPARE(table.shape(), 2);
        QCOMPARE(table.sides(), (Sides{2, 1, 0, 0}));
        table.setSides({-1, 4, 1001, 2});
        QCOMPARE(table.sides(), (Sides{0, 4, 1000, 2}));
        QCOMPARE(seated.pattern(), s("AB--C-"));
    }

    void seatsOfHeadTablesFormALine()
    {
        const QList<bool> head{false, false, true, true, true, true, false, false};
        for (int shape = 0; shape < head.size(); ++shape)
            QCOMPARE(Seated({}, shape).table.isHead(), head.at(shape));
        QVERIFY(!Seated({}, -1).table.isHead());
    }

    void puttingAGuestOnASeatChangesThatSeatOnly()
    {
        Seated seated(s("A-C-"));
        KWTable &table = seated.table;
        QCOMPARE(table.guest(0)->displayName(), s("A"));
        QVERIFY(!table.guest(1));
        KWGuest *c = table.guest(2);
        table.setGuest(2, nullptr);
        QCOMPARE(seated.pattern(), s("A---"));
        table.setGuest(0, c);
        QCOMPARE(seated.pattern(), s("C---"));
        QCOMPARE(table.seatedCount(), 1);
        QCOMPARE(table.emptySeatCount(), 3);
        table.setGuest(0, c);
        QCOMPARE(seated.pattern(), s("C---"));
        QCOMPARE(table.seatedCount(), 1);
        table.setGuest(3, nullptr);
        QCOMPARE(table.seatedCount(), 1);
    }

    void aSeatThatDoesNotExistIsIgnored()
    {
        Seated seated(s("A-"));
        KWTable &table = seated.table;
        for (int seat : {-1, 2, 1000}) {
            table.setGuest(seat, table.guest(0));
            QVERIFY(!table.guest(seat));
        }
        QCOMPARE(seated.pattern(), s("A-"));
        QCOMPARE(table.seatedCount(), 1);
    }

    void allGuestsAreLockedIfThereAreAny_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("locked");
        QTest::newRow("no seats") << s("") << false;
        QTest::newRow("empty") << s("---") << false;
        QTest::newRow("one locked") << s("-a-") << true;
        QTest::newRow("all seats locked") << s("abc") << true;
        QTest::newRow("one of two") << s("a-B") << false;
        QTest::newRow("none") << s("AB-") << false;
    }
    void allGuestsAreLockedIfThereAreAny()
    {
        QFETCH(QString, pattern);
        QTEST(Seated(pattern).table.allGuestsLocked(), "locked");
    }

    void rotatingMovesTheGuestsUp_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<Sides>("counts");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<Sides>("sides");
        const auto row = [](const char *name, int shape, Sides counts, const char *before,
                            const char *after, Sides sides) {
            QTest::newRow(name) << shape << counts << s(before) << s(after) << sides;
        };
        row("circular, by one", 0, {5}, "A-B-C", "CA-B-", {});
        row("circular without seats", 0, {0}, "", "", {});
        row("3 across and 1 down, by one", 1, {3, 1}, "AB----C-", "-AB----C", {1, 3, 0, 0});
        row("1 across and 3 down, by three", 1, {1, 3}, "AB----C-", "-C-AB---", {3, 1, 0, 0});
        row("none down", 1, {3, 0}, "AB--C-", "AB--C-", {0, 3, 0, 0});
        row("custom, by down 2", 6, {3, 1, 2, 4}, "A--B-C---D", "---DA--B-C", {4, 3, 1, 2});
        row("custom, none down 2", 6, {3, 1, 2, 0}, "A--B-C", "A--B-C", {0, 3, 1, 2});
        row("custom, one side only", 6, {0, 0, 0, 3}, "AB-", "AB-", {3, 0, 0, 0});
        row("unknown shape", 7, {4}, "", "", {});
    }
    void rotatingMovesTheGuestsUp()
    {
        QFETCH(int, shape);
        QFETCH(Sides, counts);
        QFETCH(QString, before);
        Seated seated(shape, before, counts);
        seated.table.rotate();
        QTEST(seated.pattern(), "after");
        QTEST(seated.table.sides(), "sides");
        QCOMPARE(seated.table.shape(), shape);
    }

    void rotatingAHeadTableFourTimesGivesTheSameTable()
    {
        Seated seated(s("A-B-"), KWTable::HeadTop);
        for (int shape : {3, 4, 5, 2}) {
            seated.table.rotate();
            QCOMPARE(seated.table.shape(), shape);
            QCOMPARE(seated.pattern(), s("A-B-"));
            QCOMPARE(seated.table.sides(), Sides{});
        }
    }

    void rotatingASidedTableFourTimesGivesTheSameTable()
    {
        for (int shape : {KWTable::Rectangular, KWTable::Custom}) {
            const Sides counts = shape == KWTable::Custom ? Sides{3, 1, 2, 4} : Sides{3, 2, 0, 0};
            Seated seated(shape, s("A--B-C---D"), counts);
            for (int i = 0; i < 4; ++i)
                seated.table.rotate();
            QCOMPARE(seated.pattern(), s("A--B-C---D"));
            QCOMPARE(seated.table.sides(), counts);
        }
    }

    void rotatingLeavesTheScores()
    {
        Seated seated(s("A-B-"));
        seated.table.setScores(someScores(4), 17);
        seated.table.rotate();
        QCOMPARE(seated.pattern(), s("-A-B"));
        QCOMPARE(seated.table.seatScores(), someScores(4));
        QCOMPARE(seated.table.score(), 17);
    }

    void aGuestDeletedAfterAMoveLeavesTheNewSeatEmpty()
    {
        Seated rotated(s("AB--"));
        rotated.table.rotate();
        rotated.deleteGuest('A');
        QCOMPARE(rotated.pattern(), s("--B-"));
        Seated compacted(s("A--BC"));
        QVERIFY(compacted.table.compactSeats(3));
        compacted.deleteGuest('B');
        QCOMPARE(compacted.pattern(), s("A-C--"));
        Seated swapped(s("A-B"));
        KWGuest *b = swapped.table.guest(2);
        swapped.table.setGuest(2, swapped.table.guest(0));
        swapped.table.setGuest(0, b);
        QCOMPARE(swapped.pattern(), s("B-A"));
        swapped.deleteGuest('A');
        QCOMPARE(swapped.pattern(), s("B--"));
    }

    void theLargestGapIsCountedRoundTheTable_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<int>("seat");
        QTest::newRow("no seats") << s("") << 0;
        QTest::newRow("empty") << s("----") << 0;
        QTest::newRow("full") << s("ABCD") << 0;
        QTest::newRow("guests on 0 and 1 of 8") << s("AB------") << 2;
        QTest::newRow("guests on 2 and 3 of 8 wrap") << s("--AB----") << 4;
        QTest::newRow("the first of equals") << s("A--B--C--") << 1;
        QTest::newRow("a later, longer one") << s("A-B--C-") << 3;
        QTest::newRow("one empty seat") << s("AB-D") << 2;
        QTest::newRow("the last seat and the first") << s("-A-B-") << 4;
    }
    void theLargestGapIsCountedRoundTheTable()
    {
        QFETCH(QString, pattern);
        QTEST(Seated(pattern).table.firstSeatOfLargestGap(), "seat");
        QTEST(Seated(pattern, KWTable::HeadTop).table.firstSeatOfLargestGap(), "seat");
    }

    void theLargestGapAgreesWithACountFromEverySeat()
    {
        for (int seats = 1; seats <= 8; ++seats) {
            for (const QString &pattern : allPatterns(seats)) {
                QVERIFY2(Seated(pattern).table.firstSeatOfLargestGap() == longestGap(pattern),
                         qPrintable(pattern));
            }
        }
    }

    void guestsCloseUpIfSomebodySitsBeyondTheTarget_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *name, const char *before, int count, const char *after) {
            QTest::newRow(name) << s(before) << count << s(after);
        };
        row("guests on 0, 6 and 7 of 8, to 4", "A-----BC", 4, "A-BC----");
        row("no more gaps close than must, the first ones", "-A-B-C--", 5, "A-B-C---");
        row("pairs who are kept apart stay so", "AB--CD----EF", 11, "AB-CD----EF-");
        row("all sit below the target", "A-B-----", 4, "A-B-----");
        row("all sit in the first seats", "ABC-----", 3, "ABC-----");
        row("the seat before the target", "---A----", 4, "---A----");
        row("the seat at the target", "----A---", 4, "---A----");
        row("more guests than the count", "A-B-C-D-", 2, "ABCD----");
        row("more guests than the count, closed up", "ABCD----", 2, "ABCD----");
        row("full", "ABCD", 2, "ABCD");
        row("to nothing", "--A-", 0, "A---");
        row("a negative count", "--A-", -3, "A---");
        row("as many as there are", "---A", 4, "---A");
        row("more than there are", "---A", 9, "---A");
        row("nobody", "----", 2, "----");
        row("locked guests move, too", "---aB", 2, "aB---");
        row("no seats", "", 0, "");
    }
    void guestsCloseUpIfSomebodySitsBeyondTheTarget()
    {
        QFETCH(QString, before);
        QFETCH(int, count);
        QFETCH(QString, after);
        Seated seated(before);
        QCOMPARE(seated.table.compactSeats(count), before != after);
        QCOMPARE(seated.pattern(), after);
        QCOMPARE(seated.table.seatCount(), int(before.size()));
    }

    void closingUpMovesTheFirstGapBehindTheLastGuestUntilAllFit()
    {
        for (const QString &pattern : allPatterns(8)) {
            for (int count = 0; count <= 8; ++count) {
                const QString expected = closedUp(pattern, count);
                Seated seated(pattern);
                QCOMPARE(seated.table.compactSeats(count), expected != pattern);
                QCOMPARE(seated.pattern(), expected);
            }
        }
    }

    void changingTheSeatCountChangesTheEnd()
    {
        Seated seated(s("A-BC"));
        KWTable &table = seated.table;
        table.setScores(someScores(4), 17);
        table.setSeatCount(6);
        QCOMPARE(seated.pattern(), s("A-BC--"));
        QCOMPARE(table.seatScores(), someScores(4) + QList<KWSeatScore>(2, KWSeatScore{}));
        table.setSeatCount(3);
        QCOMPARE(seated.pattern(), s("A-B"));
        QCOMPARE(table.seatScores(), someScores(3));
        QCOMPARE(table.seatedCount(), 2);
        table.setSeatCount(-1);
        QCOMPARE(table.seatCount(), 0);
        QCOMPARE(table.seatedCount(), 0);
        QCOMPARE(table.emptySeatCount(), 0);
    }
};

REGISTER_TEST(TestTable)
#include "tst_kwtable.moc"
