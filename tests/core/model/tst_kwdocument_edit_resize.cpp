#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
/// A circular table "T" of eight seats with a guest on each of some of them, named after the seat.
struct Eight
{
    KWDocument plan;
    KWGroup *group = plan.addGroup({}, s("group"), {});
    KWTable *table = addTable(plan, "T", KWTable::Circular, 8);
    StepLog log{plan};

    explicit Eight(const QList<int> &seats)
    {
        for (const int seat : seats) {
            const QByteArray name = 'G' + QByteArray::number(seat);
            plan.assignGuest(addGuest(plan, {.name = name.constData()}, group), table, seat, false);
        }
        plan.recalculateScores();
        log.take();
    }
};

const QStringList scores = steps({"eventScoreChange(T)", "eventScoreChange()"});

/// The steps of resizing "T" when these guests are reported.
QStringList resizing(const QString &guests = {}, bool rescored = false)
{
    QStringList result = steps({"eventEditTable(T)", "modified"});
    if (rescored)
        result += scores;
    for (const QString &name : guests.split(u' ', Qt::SkipEmptyParts))
        result.append(s("eventEditGuest(%1)").arg(name));
    return result + steps({"eventModified()"});
}

/// What editTable() does after a change: it reports the table.
const QStringList edited = steps({"eventEditTable(T)", "eventModified()"});

const QList<int> allSeats{0, 1, 2, 3, 4, 5, 6, 7};
} // namespace

class TestEditResize : public QObject
{
    Q_OBJECT

private slots:
    void shrinkingKeepsAsManyGuestsAsThereIsRoomFor_data()
    {
        QTest::addColumn<QList<int>>("seats");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("reported");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *what, const QList<int> &seats, int count,
                            const char *reported, const char *after) {
            QTest::newRow(what) << seats << count << s(reported) << s(after);
        };
        row("guests on 0, 6 and 7 close up", {0, 6, 7}, 4, "G0 G6 G7", "G0 - G6 G7");
        row("a full table loses the guests of seats 4 to 7", allSeats, 4, "G7 G6 G5 G4",
            "G0 G1 G2 G3");
        row("guests close up and the last still fall off", {0, 1, 2, 3, 4, 7}, 4,
            "G0 G1 G2 G3 G7 G4", "G0 G1 G2 G3");
        row("guests who fit already stay", {0, 3}, 4, "", "G0 - - G3");
        row("nobody is seated", {}, 4, "", "- - - -");
        row("to no seats", {0, 1}, 0, "G1 G0", "");
        row("a negative count means none", {0, 1}, -3, "G1 G0", "");
    }
    void shrinkingKeepsAsManyGuestsAsThereIsRoomFor()
    {
        QFETCH(QList<int>, seats);
        QFETCH(int, count);
        QFETCH(QString, reported);
        QFETCH(QString, after);
        Eight eight(seats);
        eight.plan.resizeTable(eight.table, count, false);
        QCOMPARE(eight.log.take(), resizing(reported));
        QCOMPARE(seating(*eight.table), after);
        QCOMPARE(eight.table->seatScores().size(), eight.table->seatCount());
        QCOMPARE(eight.plan.guestCount(), seats.size());
        for (const KWGuest *guest : eight.plan.guests())
            QCOMPARE(eight.plan.findGuest(guest), after.split(u' ').contains(guest->displayName()));
    }

    void growingLeavesAllGuestsAndAddsEmptySeatsAtTheEnd()
    {
        Eight eight({0, 7});
        const QList<KWSeatScore> before = eight.table->seatScores();
        eight.plan.resizeTable(eight.table, 10, false);
        QCOMPARE(eight.log.take(), resizing());
        QCOMPARE(seating(*eight.table), s("G0 - - - - - - G7 - -"));
        QCOMPARE(eight.table->seatScores(), before + QList<KWSeatScore>(2, KWSeatScore{}));
        eight.plan.resizeTable(eight.table, 5000, false);
        QCOMPARE(eight.table->seatCount(), 1000);
    }

    void aRescoreComesBeforeTheGuestsAreReported_data() { rescoreRows(); }
    void aRescoreComesBeforeTheGuestsAreReported()
    {
        QFETCH(bool, rescore);
        Eight eight({0, 6});
        QCOMPARE(eight.table->score(), -18);
        eight.plan.setAffinity(eight.plan.guestAt(0), eight.plan.guestAt(1), KWScore::Loves, false);
        eight.log.take();
        eight.plan.resizeTable(eight.table, 2, rescore);
        QCOMPARE(eight.log.take(), resizing(s("G0 G6"), rescore));
        QCOMPARE(eight.table->score(), rescore ? 80 : -18);
    }

    void resizingByTheSidesStoresThemAndReportsTwice_data() { rescoreRows(); }
    void resizingByTheSidesStoresThemAndReportsTwice()
    {
        QFETCH(bool, rescore);
        Eight eight(allSeats);
        eight.plan.resizeRectangular(eight.table, 2, 1, rescore);
        QCOMPARE(eight.log.take(), resizing(s("G7 G6"), rescore) + steps({"eventModified()"}));
        QCOMPARE(eight.table->sides(), KWTable::Sides({2, 1, 0, 0}));
        QCOMPARE(seating(*eight.table), s("G0 G1 G2 G3 G4 G5"));

        eight.plan.resizeCustom(eight.table, 1, 2, 0, 1, rescore);
        QCOMPARE(eight.log.take(), resizing(s("G5 G4"), rescore) + steps({"eventModified()"}));
        QCOMPARE(eight.table->sides(), KWTable::Sides({1, 2, 0, 1}));
        QCOMPARE(seating(*eight.table), s("G0 G1 G2 G3"));
    }

    void sideCountsAreBroughtIntoTheirRange()
    {
        Eight eight({});
        eight.plan.resizeRectangular(eight.table, -1, 3, false);
        QCOMPARE(eight.table->sides(), KWTable::Sides({0, 3, 0, 0}));
        QCOMPARE(eight.table->seatCount(), 6);
        eight.plan.resizeCustom(eight.table, 1001, -5, 2, 1000, false);
        QCOMPARE(eight.table->sides(), KWTable::Sides({1000, 0, 2, 1000}));
        QCOMPARE(eight.table->seatCount(), 2002);
    }

    void editingNameOrNotesDoesNotRescore()
    {
        Eight eight({0});
        eight.plan.editTable(eight.table, s("U"), KWTable::Circular, 8, 0, 0, 0, {});
        QCOMPARE(eight.log.take(), steps({"eventEditTable(U)", "modified", "eventModified()"}));
        QCOMPARE(eight.table->name(), s("U"));
        eight.plan.editTable(eight.table, s("U"), KWTable::Circular, 8, 0, 0, 0, s("by the wall"));
        QCOMPARE(eight.log.take(), steps({"eventEditTable(U)", "modified", "eventModified()"}));
        QCOMPARE(eight.table->notes(), s("by the wall"));
    }

    void editingTheShapeRescoresLast()
    {
        Eight eight({0, 7});
        QCOMPARE(eight.table->score(), 0);
        eight.plan.editTable(eight.table, s("T"), KWTable::HeadBottom, 8, 0, 0, 0, {});
        QCOMPARE(eight.log.take(),
                 steps({"eventEditTable(T)", "modified", "eventModified()"}) + scores);
        QCOMPARE(eight.table->shape(), int(KWTable::HeadBottom));
        QCOMPARE(eight.table->score(), -18);
        QCOMPARE(seating(*eight.table), s("G0 - - - - - - G7"));
    }

    void editingTheSeatsResizesThenReportsThenRescores_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<QList<int>>("counts");
        QTest::addColumn<QStringList>("resized");
        QTest::addColumn<KWTable::Sides>("sides");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *what, int shape, const QList<int> &counts,
                            const QStringList &resized, const KWTable::Sides &sides,
                            const char *after) {
            QTest::newRow(what) << shape << counts << resized << sides << s(after);
        };
        const QStringList again = steps({"eventModified()"});
        row("circular, the other counts ignored", KWTable::Circular, {4, 9, 9, 9},
            resizing(s("G0 G6 G7")), {}, "G0 - G6 G7");
        row("head", KWTable::HeadLeft, {3, 0, 0, 0}, resizing(s("G0 G6 G7")), {}, "G0 G6 G7");
        row("rectangular", KWTable::Rectangular, {1, 1, 9, 9}, resizing(s("G0 G6 G7")) + again,
            {1, 1, 0, 0}, "G0 - G6 G7");
        row("rectangular of as many seats", KWTable::Rectangular, {3, 1, 0, 0}, resizing() + again,
            {3, 1, 0, 0}, "G0 - - - - - G6 G7");
        row("custom", KWTable::Custom, {1, 0, 0, 2}, resizing(s("G0 G6 G7")) + again, {1, 0, 0, 2},
            "G0 G6 G7");
        row("custom of as many seats", KWTable::Custom, {1, 2, 3, 2}, resizing() + again,
            {1, 2, 3, 2}, "G0 - - - - - G6 G7");
        row("a negative count", KWTable::Circular, {-4, 0, 0, 0}, resizing(s("G7 G6 G0")), {}, "");
    }
    void editingTheSeatsResizesThenReportsThenRescores()
    {
        QFETCH(int, shape);
        QFETCH(QList<int>, counts);
        QFETCH(QStringList, resized);
        QFETCH(KWTable::Sides, sides);
        QFETCH(QString, after);
        Eight eight({0, 6, 7});
        const auto edit = [&] {
            eight.plan.editTable(eight.table, s("T"), shape, counts[0], counts[1], counts[2],
                                 counts[3], {});
        };
        edit();
        QCOMPARE(eight.log.take(), resized + edited + scores);
        QCOMPARE(eight.table->shape(), shape);
        QVERIFY(eight.table->sides() == sides);
        QCOMPARE(seating(*eight.table), after);
        edit();
        QCOMPARE(eight.log.take(), QStringList());
    }

    void eachSideCountAloneIsADifference_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<int>("side");
        for (int side = 0; side < 4; ++side) {
            const QByteArray name = QByteArray::number(side);
            QTest::newRow("custom " + name) << int(KWTable::Custom) << side;
            if (side < 2)
                QTest::newRow("rectangular " + name) << int(KWTable::Rectangular) << side;
        }
    }
    void eachSideCountAloneIsADifference()
    {
        QFETCH(int, shape);
        QFETCH(int, side);
        KWDocument plan;
        KWTable *table = plan.addTable(shape, s("T"), 2, 2, 2, 2, {}, {});
        StepLog log(plan);
        KWTable::Sides counts{2, 2, 2, 2};
        const auto edit = [&] {
            plan.editTable(table, s("T"), shape, counts[0], counts[1], counts[2], counts[3], {});
        };
        edit();
        QCOMPARE(log.take(), QStringList());
        ++counts.at(static_cast<std::size_t>(side));
        edit();
        QCOMPARE(log.take(), resizing() + steps({"eventModified()"}) + edited + scores);
        QCOMPARE(table->seatCount(), shape == KWTable::Custom ? 9 : 10);
    }

    void countsOutOfRangeEqualTheirBound()
    {
        KWDocument plan;
        KWTable *round = addTable(plan, "T", KWTable::Circular, 0);
        KWTable *custom = addCustom(plan, "T", 0, 1000, 0, 2);
        StepLog log(plan);
        plan.editTable(round, s("T"), KWTable::Circular, -1, 0, 0, 0, {});
        plan.editTable(custom, s("T"), KWTable::Custom, -1, 1001, -20, 2, {});
        QCOMPARE(log.take(), QStringList());
    }

    void aTableThatChangedShapeAndBackGetsTheSeatsOfItsCounts_data()
    {
        QTest::addColumn<int>("shape");
        QTest::newRow("rectangular") << int(KWTable::Rectangular);
        QTest::newRow("custom") << int(KWTable::Custom);
    }
    void aTableThatChangedShapeAndBackGetsTheSeatsOfItsCounts()
    {
        QFETCH(int, shape);
        KWDocument plan;
        KWTable *table = plan.addTable(shape, s("T"), 2, 1, 2, 1, {}, {});
        plan.setTableShape(table, KWTable::Circular);
        plan.resizeTable(table, 3, false);
        plan.setTableShape(table, shape);
        StepLog log(plan);
        plan.editTable(table, s("T"), shape, 2, 1, 2, 1, {});
        QCOMPARE(log.take(), resizing() + steps({"eventModified()"}) + edited + scores);
        QCOMPARE(table->seatCount(), 6);
    }

    void sidesThatTheNewShapeDoesNotUseAreZeroed()
    {
        KWDocument plan;
        KWTable *table = addCustom(plan, "T", 1, 2, 3, 4);
        plan.editTable(table, s("T"), KWTable::Rectangular, 1, 2, 3, 4, {});
        QVERIFY(table->sides() == KWTable::Sides({1, 2, 0, 0}));
        QCOMPARE(table->seatCount(), 6);
        plan.editTable(table, s("T"), KWTable::HeadTop, 6, 0, 0, 0, {});
        QVERIFY(table->sides() == KWTable::Sides({0, 0, 0, 0}));
        QCOMPARE(table->seatCount(), 6);
    }

    void nameNotesShapeAndSeatsTogetherAreReportedOnce()
    {
        Eight eight({0, 6, 7});
        eight.plan.editTable(eight.table, s("U"), KWTable::HeadTop, 3, 0, 0, 0, s("new"));
        QCOMPARE(eight.log.take(),
                 steps({"eventEditTable(U)", "modified", "eventEditGuest(G0)", "eventEditGuest(G6)",
                        "eventEditGuest(G7)", "eventModified()", "eventEditTable(U)",
                        "eventModified()", "eventScoreChange(U)", "eventScoreChange()"}));
        QCOMPARE(eight.table->notes(), s("new"));
    }
};

REGISTER_TEST(TestEditResize)
#include "tst_kwdocument_edit_resize.moc"
