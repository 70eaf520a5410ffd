#include "core/model/kwdocument.h"
#include "gui/appearance/kwplancolours.h"
#include "support/gui/themeshelf.h"
#include "support/registeredtest.h"

using namespace KWPlanColours;

namespace {

/// The colours that charts have no use for, as in a new plan, with the two that they have.
KWColours chartColours(const QColor &background, const QColor &text, int fontSize)
{
    KWColours colours;
    colours.inside = background;
    colours.tableText = text;
    colours.font.setPointSize(fontSize);
    return colours;
}
} // namespace

class TestKWPlanColours : public QObject
{
    Q_OBJECT

private slots:
    void aNewPlanHasTheDefaults()
    {
        KWColours expected;
        const KWDocument plan;
        for (const Mode mode : {FloorPlan, TableChart, GuestChart}) {
            expected.font = mode == FloorPlan    ? plan.floorPlanFont()
                            : mode == TableChart ? plan.tableChartFont()
                                                 : plan.guestChartFont();
            QCOMPARE(described(coloursOf(plan, mode)), described(expected));
        }
    }

    void whatWasSetIsReadAndTheOtherPicturesStay()
    {
        KWDocument plan;
        const KWColours table = chartColours(Qt::red, Qt::blue, 21);
        const KWColours guest = chartColours(Qt::cyan, Qt::yellow, 22);
        setColours(plan, TableChart, table);
        setColours(plan, GuestChart, guest);
        QVERIFY(coloursOf(plan, TableChart) == table);
        QVERIFY(coloursOf(plan, GuestChart) == guest);
        QCOMPARE(plan.floorplanColourInside(), QColor(Qt::white));
        setColours(plan, FloorPlan, manyColours());
        QVERIFY(coloursOf(plan, FloorPlan) == manyColours());
        QCOMPARE(coloursOf(plan, TableChart).inside, QColor(Qt::red));
        QCOMPARE(coloursOf(plan, GuestChart).tableText, QColor(Qt::yellow));
    }

    void theSelectedColourIsThePlansInEveryModeOrElseTheApplications()
    {
        KWDocument plan;
        for (const Mode mode : {FloorPlan, TableChart, GuestChart}) {
            plan.setFloorplanColourSelected(QColor());
            QCOMPARE(coloursOf(plan, mode).selected, KWColours::highlightColour());
            QVERIFY(!plan.floorplanColourSelected().isValid());
            plan.setFloorplanColourSelected(Qt::green);
            QCOMPARE(coloursOf(plan, mode).selected, QColor(Qt::green));
        }
    }

    void aChartLeavesTheSelectedColourOfThePlan()
    {
        KWDocument plan;
        plan.setFloorplanColourSelected(Qt::green);
        setColours(plan, TableChart, manyColours());
        QCOMPARE(plan.floorplanColourSelected(), QColor(Qt::green));
    }
};

REGISTER_TEST(TestKWPlanColours)
#include "tst_kwplancolours.moc"
