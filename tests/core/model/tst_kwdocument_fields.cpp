#include "core/model/kwplansettings.h"
#include "editedplan.h"
#include "support/registeredtest.h"

#include <QGuiApplication>
#include <QtTest>

#include <functional>

namespace {
using Plan = KWDocument;

/// What clear() makes of a field.
enum Clearing { Reset, Black, Kept };

/// A field of a plan, what a new plan has in it, and another value to put there.
struct FieldCase
{
    QString key;
    Clearing clearing;
    QVariant fresh;
    QVariant other;
    std::function<QVariant(const Plan &)> get;
    std::function<void(Plan &)> setOther;
    /// The setter marks the plan as modified and says so.
    bool reports = false;
};

template <typename Value, typename Argument>
FieldCase field(const char *key, Clearing clearing, Value (Plan::*get)() const,
                void (Plan::*set)(Argument), const Value &fresh, const Value &other)
{
    return {s(key),
            clearing,
            QVariant::fromValue(fresh),
            QVariant::fromValue(other),
            [get](const Plan &plan) { return QVariant::fromValue((plan.*get)()); },
            [set, other](Plan &plan) { (plan.*set)(other); }};
}

template <typename Value, typename Argument>
FieldCase fact(const char *key, Value (Plan::*get)() const, void (Plan::*set)(Argument),
               const Value &fresh, const Value &other)
{
    FieldCase result = field(key, Reset, get, set, fresh, other);
    result.reports = true;
    return result;
}

FieldCase size(const char *key, double (Plan::*get)(int) const, void (Plan::*set)(double, int),
               double fresh, double other)
{
    return {s(key),
            Reset,
            fresh,
            other,
            [get](const Plan &plan) { return (plan.*get)(KWPlanFields::Metres); },
            [set, other](Plan &plan) { (plan.*set)(other, KWPlanFields::Metres); }};
}

QFont fontOfSize(int points)
{
    return QFont(s("Helvetica"), points);
}

FieldCase font(const char *key, Clearing clearing, QFont (Plan::*get)() const,
               void (Plan::*set)(const QFont &), int other)
{
    return field(key, clearing, get, set, QGuiApplication::font(), fontOfSize(other));
}

FieldCase colour(const char *key, QColor (Plan::*get)() const, void (Plan::*set)(const QColor &),
                 const QColor &fresh, int other)
{
    return field(key, Kept, get, set, fresh, QColor(other, other, other));
}

FieldCase printColour(const char *key, QColor (Plan::*get)() const,
                      void (Plan::*set)(const QColor &), int other)
{
    return field(key, Black, get, set, QColor(), QColor(other, other, other));
}

QList<FieldCase> allFields()
{
    const QString empty;
    return {
        fact("event", &Plan::event, &Plan::setEvent, empty, s("Wedding")),
        fact("venue", &Plan::venue, &Plan::setVenue, empty, s("Castle")),
        fact("date", &Plan::date, &Plan::setDate, QDate::currentDate(), QDate(1999, 12, 31)),
        fact("fixed_cost", &Plan::fixedCost, &Plan::setFixedCost, 0, 500),
        fact("adult_cost", &Plan::adultCost, &Plan::setAdultCost, 0, 40),
        fact("child_cost", &Plan::childCost, &Plan::setChildCost, 0, 15),
        fact("notes", &Plan::notes, &Plan::setNotes, empty, s("bring cake")),
        size("room_x_size", &Plan::roomXSize, &Plan::setRoomXSize, 20.0, 12.5),
        size("room_y_size", &Plan::roomYSize, &Plan::setRoomYSize, 20.0, 8.25),
        size("chair_size", &Plan::chairSize, &Plan::setChairSize, double(0.6F), 0.75),
        field("show_grid", Kept, &Plan::showGrid, &Plan::setShowGrid, false, true),
        field("units", Kept, &Plan::units, &Plan::setUnits, 0, 1),
        field("print_header_text", Reset, &Plan::printHeaderText, &Plan::setPrintHeaderText, empty,
              s("Head")),
        font("print_header_font", Reset, &Plan::printHeaderFont, &Plan::setPrintHeaderFont, 31),
        printColour("print_header_colour", &Plan::printHeaderColour, &Plan::setPrintHeaderColour,
                    1),
        field("print_footer_text", Reset, &Plan::printFooterText, &Plan::setPrintFooterText, empty,
              s("Foot")),
        font("print_footer_font", Reset, &Plan::printFooterFont, &Plan::setPrintFooterFont, 32),
        printColour("print_footer_colour", &Plan::printFooterColour, &Plan::setPrintFooterColour,
                    2),
        field("print_margin", Reset, &Plan::printMargin, &Plan::setPrintMargin, 10, 25),
        field("print_orientation", Reset, &Plan::printOrientation, &Plan::setPrintOrientation, true,
              false),
        field("header_position", Reset, &Plan::headerPosition, &Plan::setHeaderPosition, 0, 2),
        field("footer_position", Reset, &Plan::footerPosition, &Plan::setFooterPosition, 0, 1),
        colour("floorplan_colour_seats", &Plan::floorplanColourSeats,
               &Plan::setFloorplanColourSeats, Qt::white, 3),
        colour("floorplan_colour_seats_edge", &Plan::floorplanColourSeatsEdge,
               &Plan::setFloorplanColourSeatsEdge, Qt::black, 4),
        colour("floorplan_colour_tables", &Plan::floorplanColourTables,
               &Plan::setFloorplanColourTables, Qt::white, 5),
        colour("floorplan_colour_tables_edge", &Plan::floorplanColourTablesEdge,
               &Plan::setFloorplanColourTablesEdge, Qt::black, 6),
        colour("floorplan_colour_inside", &Plan::floorplanColourInside,
               &Plan::setFloorplanColourInside, Qt::white, 7),
        colour("floorplan_colour_outside", &Plan::floorplanColourOutside,
               &Plan::setFloorplanColourOutside, Qt::gray, 8),
        colour("floorplan_colour_seats_text", &Plan::floorplanColourSeatsText,
               &Plan::setFloorplanColourSeatsText, Qt::black, 9),
        colour("floorplan_colour_table_text", &Plan::floorplanColourTableText,
               &Plan::setFloorplanColourTableText, Qt::black, 10),
        font("floor_plan_font", Kept, &Plan::floorPlanFont, &Plan::setFloorPlanFont, 33),
        colour("floorplan_colour_selected", &Plan::floorplanColourSelected,
               &Plan::setFloorplanColourSelected, QColor(), 11),
        font("table_chart_font", Kept, &Plan::tableChartFont, &Plan::setTableChartFont, 34),
        colour("table_chart_colour_text", &Plan::tableChartColourText,
               &Plan::setTableChartColourText, Qt::black, 12),
        colour("table_chart_colour_background", &Plan::tableChartColourBackground,
               &Plan::setTableChartColourBackground, Qt::white, 13),
        font("guest_chart_font", Kept, &Plan::guestChartFont, &Plan::setGuestChartFont, 35),
        colour("guest_chart_colour_text", &Plan::guestChartColourText,
               &Plan::setGuestChartColourText, Qt::black, 14),
        colour("guest_chart_colour_background", &Plan::guestChartColourBackground,
               &Plan::setGuestChartColourBackground, Qt::white, 15),
    };
}

struct IsPlanField
{
    template <typename Value>
    bool operator()(Value KWPlanFields::*) const
    {
        return true;
    }
    template <typename Value>
    bool operator()(Value KWViewSettings::*) const
    {
        return false;
    }
};

QStringList keysOfPlanFields()
{
    QStringList keys;
    for (const KWPlanSetting &setting : planSettings()) {
        if (std::visit(IsPlanField(), setting.target))
            keys.append(setting.key);
    }
    return keys;
}
} // namespace

class TestFields : public QObject
{
    Q_OBJECT

    QList<FieldCase> m_fields;

    void fieldRows()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < m_fields.size(); ++i)
            QTest::newRow(qPrintable(m_fields.at(i).key)) << i;
    }
    /// All fields in table order, by their getters.
    QVariantList values(const Plan &plan) const
    {
        QVariantList result;
        for (const FieldCase &field : m_fields)
            result.append(field.get(plan));
        return result;
    }
    void setAll(Plan &plan) const
    {
        for (const FieldCase &field : m_fields)
            field.setOther(plan);
    }

private slots:
    void initTestCase() { m_fields = allFields(); }

    void theTableHereHasEveryField()
    {
        QStringList keys;
        for (const FieldCase &field : m_fields)
            keys.append(field.key);
        QCOMPARE(keys, keysOfPlanFields());
    }

    void aNewPlanHasNothingInItsListsAndNoFile()
    {
        const Plan plan;
        QVERIFY(!plan.isModified());
        QCOMPARE(plan.tableCount(), 0);
        QCOMPARE(plan.guestCount(), 0);
        QCOMPARE(plan.groupCount(), 0);
        QCOMPARE(plan.affinityCount(), 0);
        QVERIFY(plan.fileName().isNull());
        QCOMPARE(plan.history(), s("0"));
        QVERIFY(!plan.abortRequested());
    }

    void aNewPlanHasTheDefaultOfTheField_data() { fieldRows(); }
    void aNewPlanHasTheDefaultOfTheField()
    {
        QFETCH(int, index);
        const FieldCase &field = m_fields.at(index);
        QCOMPARE(field.get(Plan()), field.fresh);
        QVERIFY(field.fresh != field.other);
    }

    void theSetterChangesThisFieldAlone_data() { fieldRows(); }
    void theSetterChangesThisFieldAlone()
    {
        QFETCH(int, index);
        const FieldCase &field = m_fields.at(index);
        const QStringList reported =
            field.reports ? steps({"modified", "eventModified()"}) : QStringList();
        Plan plan;
        QVariantList expected = values(plan);
        expected[index] = field.other;
        StepLog log(plan);
        field.setOther(plan);
        QCOMPARE(log.take(), reported);
        QCOMPARE(values(plan), expected);
        // The facts of the event are not compared before they are reported.
        field.setOther(plan);
        QCOMPARE(log.take(), reported);
    }

    void theValueIsThereWhenItIsReported_data() { fieldRows(); }
    void theValueIsThereWhenItIsReported()
    {
        QFETCH(int, index);
        const FieldCase &field = m_fields.at(index);
        Plan plan;
        QVariantList seen;
        connect(&plan, &Plan::eventModified, this, [&] { seen.append(field.get(plan)); });
        field.setOther(plan);
        QCOMPARE(seen, field.reports ? QVariantList{field.other} : QVariantList());
    }

    void theOtherSettersReportNothing()
    {
        Plan plan;
        StepLog log(plan);
        plan.setFileName(s("/tmp/a.kw"));
        plan.setHistory(s("3"));
        plan.appendHistory(s("swap"));
        plan.appendHistory(s("100%2"));
        plan.setAbortRequested(true);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(plan.fileName(), s("/tmp/a.kw"));
        QCOMPARE(plan.history(), s("3->swap->100%2"));
        QVERIFY(plan.abortRequested());
    }

    void theModifiedFlagIsSetAndLoweredSilently()
    {
        Plan plan;
        EventLog log(plan);
        plan.setModified(true);
        QVERIFY(plan.isModified());
        plan.setModified(false);
        QVERIFY(!plan.isModified());
        QCOMPARE(log.take(), QStringList());
    }

    void sizesInFeetAreKeptInMetres()
    {
        Plan plan;
        QCOMPARE(plan.roomXSize(KWPlanFields::Feet), 20.0 * 3.281);
        plan.setRoomXSize(65.62, KWPlanFields::Feet);
        plan.setRoomYSize(32.81, KWPlanFields::Feet);
        plan.setChairSize(3.281, KWPlanFields::Feet);
        QCOMPARE(plan.roomXSize(), 65.62 / 3.281);
        QCOMPARE(plan.roomYSize(), 32.81 / 3.281);
        QCOMPARE(plan.chairSize(), 1.0);
        QCOMPARE(plan.roomYSize(KWPlanFields::Feet), 32.81);
        QCOMPARE(plan.chairSize(KWPlanFields::Feet), 3.281);
        // The unit for display is the caller's to hand in.
        plan.setUnits(KWPlanFields::Feet);
        QCOMPARE(plan.chairSize(), 1.0);
    }

    void copyingTakesOverEveryField()
    {
        Plan source;
        setAll(source);
        source.setFileName(s("/tmp/a.kw"));
        source.setHistory(s("7->swap"));
        QVariantList expected;
        for (const FieldCase &field : m_fields)
            expected.append(field.other);

        const Plan copy(source);
        Plan assigned;
        assigned = source;
        for (const Plan *plan : {&copy, &std::as_const(assigned)}) {
            QCOMPARE(values(*plan), expected);
            QCOMPARE(plan->fileName(), s("/tmp/a.kw"));
            QCOMPARE(plan->history(), s("7->swap"));
        }
    }

    void copyingDoesNotTakeOverARequestToAbort()
    {
        Plan source;
        source.setAbortRequested(true);
        QVERIFY(!Plan(source).abortRequested());

        Plan target;
        target.setAbortRequested(true);
        target = Plan();
        QVERIFY(target.abortRequested());
    }

    void clearResetsTheFieldOrLeavesIt_data() { fieldRows(); }
    void clearResetsTheFieldOrLeavesIt()
    {
        QFETCH(int, index);
        const FieldCase &field = m_fields.at(index);
        Plan plan;
        setAll(plan);
        plan.clear();
        const QHash<Clearing, QVariant> expected{
            {Reset, field.fresh}, {Black, QColor(Qt::black)}, {Kept, field.other}};
        QCOMPARE(field.get(plan), expected.value(field.clearing));
    }
};

REGISTER_TEST(TestFields)
#include "tst_kwdocument_fields.moc"
