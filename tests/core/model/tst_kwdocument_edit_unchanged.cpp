#include "editedplan.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <functional>

// An operation that finds nothing to change does nothing and fires nothing.

using Operation = std::function<void(EditedPlan &)>;
Q_DECLARE_METATYPE(Operation)

class TestDocumentEditUnchanged : public QObject
{
    Q_OBJECT

private slots:
    void nothingToChangeFiresNothing_data()
    {
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &operation) {
            QTest::newRow(name) << operation;
        };
        row("the wish that stands",
            [](EditedPlan &p) { p.plan.setAffinity(p.ann, p.bob, KWScore::Loves, true); });
        row("no wish where there is none",
            [](EditedPlan &p) { p.plan.setAffinity(p.ann, p.cid, KWScore::Neutral, true); });
        row("as many seats", [](EditedPlan &p) { p.plan.resizeTable(p.top, 4, true); });
        row("the same two sides",
            [](EditedPlan &p) { p.plan.resizeRectangular(p.plan.tableAt(2), 3, 1, true); });
        row("the same four sides",
            [](EditedPlan &p) { p.plan.resizeCustom(p.plan.tableAt(3), 1, 2, 3, 4, true); });
        row("where the table stands",
            [](EditedPlan &p) { p.plan.moveTable(p.plan.tableAt(2), 0, 0); });
        row("in front of the table behind it",
            [](EditedPlan &p) { p.plan.moveTableBefore(p.top, p.side); });
        row("in front of itself", [](EditedPlan &p) { p.plan.moveTableBefore(p.top, p.top); });
        row("the last member to the end of the group",
            [](EditedPlan &p) { p.plan.moveGuestToGroup(p.smiths, p.cid); });
    }
    void nothingToChangeFiresNothing()
    {
        QFETCH(Operation, operation);
        EditedPlan edited;
        addRectangular(edited.plan, "rectangular", 3, 1);
        addCustom(edited.plan, "custom", 1, 2, 3, 4);
        edited.plan.setAffinity(edited.ann, edited.bob, KWScore::Loves, true);
        const QByteArray before = contents(edited.plan);
        edited.log.take();
        operation(edited);
        QCOMPARE(edited.log.take(), QStringList());
        QCOMPARE(contents(edited.plan), before);
    }

    void theSameWishInTheOtherOrderIsAChange()
    {
        EditedPlan edited;
        edited.plan.setAffinity(edited.ann, edited.bob, KWScore::Loves, false);
        edited.log.take();
        edited.plan.setAffinity(edited.bob, edited.ann, KWScore::Loves, false);
        QCOMPARE(edited.log.take(),
                 steps({"modified", "eventEditAffinity(Bob,Ann)", "eventModified()"}));
        QCOMPARE(edited.plan.affinities().constFirst().first, edited.bob);
    }

    void otherSidesWithAsManySeatsAreAChange()
    {
        EditedPlan edited;
        KWTable *table = addRectangular(edited.plan, "T", 3, 1);
        edited.log.take();
        edited.plan.resizeRectangular(table, 1, 3, false);
        QCOMPARE(edited.log.take(),
                 steps({"eventEditTable(T)", "modified", "eventModified()", "eventModified()"}));
        QCOMPARE(table->seatsAcross(), 1);
        QCOMPARE(table->seatsDown(), 3);
    }

    void sidesThatAreNoLongerUsedAreReported()
    {
        EditedPlan edited;
        KWTable *table = addRectangular(edited.plan, "T", 3, 1);
        edited.plan.setTableShape(table, KWTable::Circular);
        edited.log.take();
        edited.plan.editTable(table, s("T"), KWTable::Circular, 8, 0, 0, 0, {});
        QCOMPARE(edited.log.take().mid(0, 3),
                 steps({"eventEditTable(T)", "modified", "eventModified()"}));
        QCOMPARE(table->sides(), KWTable::Sides({0, 0, 0, 0}));
    }
};

REGISTER_TEST(TestDocumentEditUnchanged)
#include "tst_kwdocument_edit_unchanged.moc"
