#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

namespace {
const QStringList tableReported = steps({"eventEditTable(Top)", "modified", "eventModified()"});

/// Four tables to put in order, and the names in the order they stand in.
struct FourTables
{
    KWDocument plan;
    QList<KWTable *> tables{addTable(plan, "A", 0, 1), addTable(plan, "B", 0, 1),
                            addTable(plan, "C", 0, 1), addTable(plan, "D", 0, 1)};
    StepLog log{plan};

    QString order() const
    {
        QString names;
        for (int i = 0; i < plan.tableCount(); ++i)
            names += plan.tableAt(i)->name();
        return names;
    }
};
} // namespace

class TestEditTables : public QObject
{
    Q_OBJECT

private slots:
    void addingATableStoresAllAndReports_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<QList<int>>("sides");
        QTest::addColumn<int>("seats");
        const QList<int> none{0, 0, 0, 0};
        QTest::newRow("circular") << int(KWTable::Circular) << none << 5;
        QTest::newRow("rectangular") << int(KWTable::Rectangular) << QList<int>{5, 2, 0, 0} << 14;
        QTest::newRow("head at top") << int(KWTable::HeadTop) << none << 5;
        QTest::newRow("head at left") << int(KWTable::HeadLeft) << none << 5;
        QTest::newRow("custom") << int(KWTable::Custom) << QList<int>{5, 2, 3, 1} << 11;
        QTest::newRow("unknown") << int(KWTable::ShapeCount) << none << 0;
    }
    void addingATableStoresAllAndReports()
    {
        QFETCH(int, shape);
        QFETCH(QList<int>, sides);
        QFETCH(int, seats);
        EditedPlan party;
        KWTable *table =
            party.plan.addTable(shape, s("New"), 5, 2, 3, 1, QPoint(7, -8), s("near the door"));
        QCOMPARE(party.log.take(), steps({"modified", "eventNewTable(New)", "eventModified()"}));
        QCOMPARE(party.plan.tables(), QList<KWTable *>({party.top, party.side, table}));
        QCOMPARE(table->shape(), shape);
        QCOMPARE(table->name(), s("New"));
        QCOMPARE(QList<int>({table->seatsAcross(), table->seatsDown(), table->seatsAcross2(),
                             table->seatsDown2()}),
                 sides);
        QCOMPARE(table->position(), QPoint(7, -8));
        QCOMPARE(table->notes(), s("near the door"));
        QCOMPARE(table->seatCount(), seats);
        QCOMPARE(table->emptySeatCount(), seats);
        QCOMPARE(table->score(), 0);
        QCOMPARE(table->seatScores(), QList<KWSeatScore>(seats, KWSeatScore{}));
    }

    void addedTablesHaveNoFewerThanNoneAndNoMoreThanAThousandSeatsASide()
    {
        KWDocument plan;
        QCOMPARE(addTable(plan, "T", KWTable::Circular, -1)->seatCount(), 0);
        QCOMPARE(addTable(plan, "T", KWTable::HeadTop, 1001)->seatCount(), 1000);
        QCOMPARE(addRectangular(plan, "T", -5, 2)->seatCount(), 4);
        const KWTable *custom = addCustom(plan, "T", 2000, -1, 3, 4);
        QCOMPARE(custom->seatCount(), 1007);
        QCOMPARE(custom->sides(), KWTable::Sides({1000, 0, 3, 4}));
    }

    void deletingATableUnseatsItsGuests_data() { rescoreRows(); }
    void deletingATableUnseatsItsGuests()
    {
        QFETCH(bool, rescore);
        EditedPlan party;
        party.plan.deleteTable(party.top, rescore);
        const QStringList scores = steps({"eventScoreChange(Side)", "eventScoreChange()"});
        QCOMPARE(party.log.take(), steps({"eventBeforeDeleteTable(Top)", "eventEditGuest(Ann)",
                                          "eventEditGuest(Bob)", "modified"}) +
                                       (rescore ? scores : QStringList()) +
                                       steps({"eventAfterDeleteTable()", "eventModified()"}));
        QCOMPARE(party.plan.tables(), QList<KWTable *>({party.side}));
        QVERIFY(!party.plan.findGuest(party.ann));
        QVERIFY(!party.plan.findGuest(party.bob));
        QVERIFY(party.plan.findGuest(party.cid));
        QCOMPARE(party.plan.guestCount(), 4);
    }

    void aTableIsInTheListUntilItsGuestsAreOffItsSeats()
    {
        EditedPlan party;
        QStringList seen;
        const auto look = [&] {
            seen.append(s("%1 tables, %2 seated")
                            .arg(QString::number(party.plan.tableCount()),
                                 QString::number(party.plan.seatedGuestCount())));
        };
        connect(&party.plan, &KWDocument::eventBeforeDeleteTable, this, look);
        connect(&party.plan, &KWDocument::eventEditGuest, this, look);
        connect(&party.plan, &KWDocument::eventAfterDeleteTable, this, look);
        party.plan.deleteTable(party.top, false);
        QCOMPARE(seen, steps({"2 tables, 3 seated", "2 tables, 2 seated", "2 tables, 1 seated",
                              "1 tables, 1 seated"}));
    }

    void aNameIsStoredIfItDiffers()
    {
        EditedPlan party;
        party.plan.setTableName(party.top, s("Best"));
        QCOMPARE(party.log.take(), steps({"eventEditTable(Best)", "modified", "eventModified()"}));
        QCOMPARE(party.top->name(), s("Best"));
        party.plan.setTableName(party.top, s("Best"));
        QCOMPARE(party.log.take(), QStringList());
    }

    void aShapeIsStoredIfItDiffersWithoutRescore()
    {
        EditedPlan party;
        party.plan.assignGuest(party.bob, party.top, 3, true);
        party.log.take();
        party.plan.setTableShape(party.top, KWTable::HeadLeft);
        QCOMPARE(party.log.take(), tableReported);
        QCOMPARE(party.top->shape(), int(KWTable::HeadLeft));
        QCOMPARE(seating(*party.top), s("Ann - - Bob"));
        QCOMPARE(party.top->score(), 4);
        party.plan.setTableShape(party.top, KWTable::HeadLeft);
        QCOMPARE(party.log.take(), QStringList());
    }

    void lockingATableReportsTheGuestsWhoseLockDiffers()
    {
        EditedPlan party;
        party.plan.assignGuest(party.dan, party.top, 3, false);
        party.plan.setGuestLocked(party.bob, true);
        party.log.take();
        party.plan.setTableLocked(party.top, true);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Ann)", "eventEditGuest(Dan)", "modified",
                                          "eventModified()"}));
        QVERIFY(party.ann->isLocked() && party.bob->isLocked() && party.dan->isLocked());
        QVERIFY(!party.cid->isLocked());
        party.plan.setTableLocked(party.top, true);
        QCOMPARE(party.log.take(), QStringList());

        party.plan.setTableLocked(party.top, false);
        QCOMPARE(party.log.take(), steps({"eventEditGuest(Ann)", "eventEditGuest(Bob)",
                                          "eventEditGuest(Dan)", "modified", "eventModified()"}));
        QVERIFY(!party.ann->isLocked() && !party.bob->isLocked() && !party.dan->isLocked());
    }

    void lockingAnEmptyTableDoesNothing()
    {
        EditedPlan party;
        party.plan.unassignGuest(party.cid, false);
        party.log.take();
        party.plan.setTableLocked(party.side, true);
        QCOMPARE(party.log.take(), QStringList());
    }

    void rotatingReportsTheTableAndItsGuestsInSeatOrderWithoutRescore_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<QList<int>>("counts");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *what, int shape, const QList<int> &counts,
                            const char *before, const char *after) {
            QTest::newRow(what) << shape << counts << s(before) << s(after);
        };
        row("circular", KWTable::Circular, {6, 0, 0, 0}, "Ann Bob - Dan - -", "- Ann Bob - Dan -");
        row("circular, round the end", KWTable::Circular, {6, 0, 0, 0}, "Ann Bob - - - Dan",
            "Dan Ann Bob - - -");
        row("head", KWTable::HeadTop, {6, 0, 0, 0}, "Ann Bob - Dan - -", "Ann Bob - Dan - -");
        row("rectangular", KWTable::Rectangular, {1, 2, 0, 0}, "Ann - Bob - - Dan",
            "- Dan Ann - Bob -");
        row("custom", KWTable::Custom, {1, 1, 1, 3}, "Ann - Bob - - Dan", "- - Dan Ann - Bob");
    }
    void rotatingReportsTheTableAndItsGuestsInSeatOrderWithoutRescore()
    {
        QFETCH(int, shape);
        QFETCH(QList<int>, counts);
        QFETCH(QString, before);
        QFETCH(QString, after);
        EditedPlan party;
        KWTable *table = party.plan.addTable(shape, s("New"), counts[0], counts[1], counts[2],
                                             counts[3], {}, {});
        const QStringList names = before.split(u' ');
        for (KWGuest *guest : {party.ann, party.bob, party.dan}) {
            const qsizetype seat = names.indexOf(guest->displayName());
            party.plan.assignGuest(guest, table, static_cast<int>(seat), false);
        }
        QCOMPARE(seating(*table), before);
        party.plan.recalculateScores();
        const QList<KWSeatScore> scores = table->seatScores();
        party.log.take();

        party.plan.rotateTable(table);
        QStringList expected = steps({"eventEditTable(New)"});
        for (const QString &name : after.split(u' ')) {
            if (name != s("-"))
                expected.append(s("eventEditGuest(%1)").arg(name));
        }
        QCOMPARE(party.log.take(), expected + steps({"modified", "eventModified()"}));
        QCOMPARE(seating(*table), after);
        QCOMPARE(table->seatScores(), scores);
    }

    void rotatingTurnsShapeAndSides()
    {
        EditedPlan party;
        party.plan.rotateTable(party.side);
        QCOMPARE(party.side->shape(), int(KWTable::HeadRight));
        KWTable *rectangular = addRectangular(party.plan, "R", 3, 1);
        party.plan.rotateTable(rectangular);
        QCOMPARE(rectangular->sides(), KWTable::Sides({1, 3, 0, 0}));
        KWTable *custom = addCustom(party.plan, "C", 1, 2, 3, 4);
        party.plan.rotateTable(custom);
        QCOMPARE(custom->sides(), KWTable::Sides({4, 1, 2, 3}));
    }

    void movingATableMarksThePlanAndFiresNothing()
    {
        EditedPlan party;
        party.plan.moveTable(party.top, 120, -30);
        QCOMPARE(party.log.take(), steps({"modified"}));
        QCOMPARE(party.top->position(), QPoint(120, -30));
    }

    void aTableMovesToThePlaceOfTheOther_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("order");
        QTest::newRow("up to the first") << 3 << 0 << s("DABC");
        QTest::newRow("up") << 3 << 1 << s("ADBC");
        QTest::newRow("up by one") << 2 << 1 << s("ACBD");
        QTest::newRow("down") << 0 << 2 << s("BACD");
        QTest::newRow("down before the last") << 0 << 3 << s("BCAD");
    }
    void aTableMovesToThePlaceOfTheOther()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, order);
        FourTables four;
        KWTable *table = four.tables.at(from);
        KWTable *other = four.tables.at(to);
        four.plan.moveTableBefore(table, other);
        QCOMPARE(four.log.take(),
                 QStringList({s("eventReorderTables(%1,%2)").arg(table->name(), other->name()),
                              s("modified"), s("eventModified()")}));
        QCOMPARE(four.order(), order);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(four.plan.indexOfTable(four.plan.tableAt(i)), i);
    }

    void aTableDoesNotMoveBeforeItself()
    {
        FourTables four;
        four.plan.moveTableBefore(four.tables.at(1), four.tables.at(1));
        QCOMPARE(four.log.take(), QStringList());
        QCOMPARE(four.order(), s("ABCD"));
    }

    void nullAndStrangersAreRefused_data()
    {
        using Operation = std::function<void(KWDocument &, KWTable *)>;
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &op) { QTest::newRow(name) << op; };
        row("deleteTable", [](auto &plan, auto *table) { plan.deleteTable(table, true); });
        row("setTableName", [](auto &plan, auto *table) { plan.setTableName(table, s("X")); });
        row("setTableShape", [](auto &plan, auto *table) { plan.setTableShape(table, 5); });
        row("setTableLocked", [](auto &plan, auto *table) { plan.setTableLocked(table, true); });
        row("editTable", [](auto &plan, auto *table) {
            plan.editTable(table, s("X"), KWTable::Custom, 1, 2, 3, 4, s("X"));
        });
        row("resizeTable", [](auto &plan, auto *table) { plan.resizeTable(table, 1, true); });
        row("resizeRectangular",
            [](auto &plan, auto *table) { plan.resizeRectangular(table, 1, 2, true); });
        row("resizeCustom",
            [](auto &plan, auto *table) { plan.resizeCustom(table, 1, 2, 3, 4, true); });
        row("rotateTable", [](auto &plan, auto *table) { plan.rotateTable(table); });
        row("moveTable", [](auto &plan, auto *table) { plan.moveTable(table, 3, 4); });
        row("moveTableBefore: table",
            [](auto &plan, auto *table) { plan.moveTableBefore(table, plan.tableAt(1)); });
        row("moveTableBefore: other",
            [](auto &plan, auto *table) { plan.moveTableBefore(plan.tableAt(1), table); });
    }
    void nullAndStrangersAreRefused()
    {
        using Operation = std::function<void(KWDocument &, KWTable *)>;
        QFETCH(Operation, operation);
        EditedPlan party;
        EditedPlan other;
        operation(party.plan, nullptr);
        operation(party.plan, other.top);
        QCOMPARE(party.log.take(), QStringList());
        QCOMPARE(other.log.take(), QStringList());
        QCOMPARE(contents(party.plan), contents(EditedPlan().plan));
        QCOMPARE(contents(other.plan), contents(EditedPlan().plan));
    }
};

REGISTER_TEST(TestEditTables)
#include "tst_kwdocument_edit_tables.moc"
