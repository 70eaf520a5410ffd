#include "core/model/kwplantext.h"
#include "planfile.h"
#include "support/registeredtest.h"

#include <QtTest>

namespace {
enum Kind { Integer, Flag, Size, Text, Date, Font, Colour };

QString shown(int value)
{
    return QString::number(value);
}
QString shown(bool value)
{
    return value ? s("1") : s("0");
}
QString shown(double value)
{
    return QString::number(value, 'g', 10);
}
QString shown(const QString &value)
{
    return value;
}
QString shown(const QDate &value)
{
    return value.toString(Qt::ISODate);
}
QString shown(const QFont &value)
{
    return s("%1 %2").arg(value.family()).arg(value.pointSizeF());
}
QString shown(const QColor &value)
{
    return value.isValid() ? value.name() : s("invalid");
}

/// A setting of the file: what it is when its element is missing, and what a plan holds of it.
struct Setting
{
    const char *key;
    Kind kind;
    QString absent;
    QString (*value)(const Plan &plan);
};

#define DOCUMENT(key, kind, absent, getter)                                                        \
    Setting                                                                                        \
    {                                                                                              \
#key, kind, absent, [](const Plan &plan) { return shown(plan.document.getter()); }         \
    }
#define VIEW(key, kind, absent)                                                                    \
    Setting                                                                                        \
    {                                                                                              \
#key, kind, s(absent), [](const Plan &plan) { return shown(plan.views.key); }              \
    }

QList<Setting> settings()
{
    const QString none;
    const QString zero = s("0");
    const QString black = s("#000000");
    const QString white = s("#ffffff");
    const QString today = shown(QDate::currentDate());
    const QString usualFont = shown(QFont());
    return {
        DOCUMENT(event, Text, none, event),
        DOCUMENT(venue, Text, none, venue),
        DOCUMENT(date, Date, today, date),
        DOCUMENT(fixed_cost, Integer, zero, fixedCost),
        DOCUMENT(adult_cost, Integer, zero, adultCost),
        DOCUMENT(child_cost, Integer, zero, childCost),
        DOCUMENT(notes, Text, none, notes),
        DOCUMENT(room_x_size, Size, s("20"), roomXSize),
        DOCUMENT(room_y_size, Size, s("20"), roomYSize),
        DOCUMENT(chair_size, Size, s("0.6000000238"), chairSize),
        DOCUMENT(show_grid, Flag, zero, showGrid),
        DOCUMENT(units, Integer, zero, units),
        VIEW(table_chart_cols, Integer, "1"),
        VIEW(table_chart_show_notes, Flag, "0"),
        VIEW(table_chart_show_meal, Flag, "0"),
        VIEW(table_chart_show_seat_numbers, Flag, "0"),
        VIEW(table_chart_name_order, Integer, "0"),
        VIEW(guest_chart_cols, Integer, "1"),
        VIEW(guest_chart_show_notes, Flag, "0"),
        VIEW(guest_chart_show_meal, Flag, "0"),
        VIEW(guest_chart_show_seat_numbers, Flag, "0"),
        VIEW(guest_chart_name_order, Integer, "0"),
        VIEW(affinity_name_order, Integer, "1"),
        VIEW(schematic_name_order, Integer, "0"),
        VIEW(schematic_show_score, Flag, "0"),
        VIEW(floor_plan_name_order, Integer, "0"),
        VIEW(floor_plan_show_seats, Integer, "0"),
        VIEW(floor_plan_show_gender, Flag, "0"),
        VIEW(floor_plan_show_age, Flag, "0"),
        VIEW(floor_plan_show_vip, Flag, "0"),
        VIEW(floor_plan_show_groups, Flag, "0"),
        VIEW(floor_plan_show_locked, Flag, "0"),
        VIEW(guests_show_display_name, Flag, "1"),
        VIEW(guests_show_last_name, Flag, "1"),
        VIEW(guests_show_vip, Flag, "1"),
        VIEW(guests_show_title, Flag, "1"),
        VIEW(guests_show_assigned, Flag, "1"),
        VIEW(guests_show_accepted, Flag, "1"),
        VIEW(guests_show_first_name, Flag, "1"),
        VIEW(guests_show_locked, Flag, "1"),
        VIEW(guests_show_notes, Flag, "1"),
        VIEW(guests_show_meal, Flag, "1"),
        VIEW(groups_show_display_name, Flag, "1"),
        VIEW(groups_show_last_name, Flag, "1"),
        VIEW(groups_show_vip, Flag, "1"),
        VIEW(groups_show_title, Flag, "1"),
        VIEW(groups_show_assigned, Flag, "1"),
        VIEW(groups_show_accepted, Flag, "1"),
        VIEW(groups_show_first_name, Flag, "1"),
        VIEW(groups_show_meal, Flag, "1"),
        VIEW(groups_show_locked, Flag, "1"),
        VIEW(groups_show_notes, Flag, "1"),
        DOCUMENT(print_header_text, Text, none, printHeaderText),
        DOCUMENT(print_header_font, Font, usualFont, printHeaderFont),
        DOCUMENT(print_header_colour, Colour, black, printHeaderColour),
        DOCUMENT(print_footer_text, Text, none, printFooterText),
        DOCUMENT(print_footer_font, Font, usualFont, printFooterFont),
        DOCUMENT(print_footer_colour, Colour, black, printFooterColour),
        DOCUMENT(print_margin, Integer, s("10"), printMargin),
        DOCUMENT(print_orientation, Flag, s("1"), printOrientation),
        DOCUMENT(header_position, Integer, zero, headerPosition),
        DOCUMENT(footer_position, Integer, zero, footerPosition),
        DOCUMENT(floorplan_colour_seats, Colour, white, floorplanColourSeats),
        DOCUMENT(floorplan_colour_seats_edge, Colour, black, floorplanColourSeatsEdge),
        DOCUMENT(floorplan_colour_tables, Colour, white, floorplanColourTables),
        DOCUMENT(floorplan_colour_tables_edge, Colour, black, floorplanColourTablesEdge),
        DOCUMENT(floorplan_colour_inside, Colour, white, floorplanColourInside),
        DOCUMENT(floorplan_colour_outside, Colour, s("#a0a0a4"), floorplanColourOutside),
        DOCUMENT(floorplan_colour_seats_text, Colour, black, floorplanColourSeatsText),
        DOCUMENT(floorplan_colour_table_text, Colour, black, floorplanColourTableText),
        DOCUMENT(floor_plan_font, Font, usualFont, floorPlanFont),
        DOCUMENT(floorplan_colour_selected, Colour, s("#ff0000"), floorplanColourSelected),
        DOCUMENT(table_chart_font, Font, usualFont, tableChartFont),
        DOCUMENT(table_chart_colour_text, Colour, black, tableChartColourText),
        DOCUMENT(table_chart_colour_background, Colour, white, tableChartColourBackground),
        DOCUMENT(guest_chart_font, Font, usualFont, guestChartFont),
        DOCUMENT(guest_chart_colour_text, Colour, black, guestChartColourText),
        DOCUMENT(guest_chart_colour_background, Colour, white, guestChartColourBackground),
    };
}

#undef DOCUMENT
#undef VIEW

/// What a setting is when its element has no value: an empty text, as its kind reads it.
QString withoutValue(const Setting &setting)
{
    switch (setting.kind) {
    case Integer:
    case Flag:
        return s("0");
    case Colour:
        return s("#ffffff");
    default:
        return setting.absent;
    }
}

/// A value that no setting has by itself: as it is written, and as it is shown.
struct Sample
{
    QString written;
    QString shown;
};

Sample sampleOf(const Setting &setting)
{
    switch (setting.kind) {
    case Integer:
        return {s("-7"), s("-7")};
    case Flag:
        return setting.absent == s("1") ? Sample{s("0"), s("0")} : Sample{s("1"), s("1")};
    case Size:
        return {s("12.25"), s("12.25")};
    case Text:
        return {s("%3CCaf%C3%A9%2C%20%22Ann%22%0A%3E"), s("<Café, \"Ann\"\n>")};
    case Date:
        return {s("Sat%20Mar%2013%202027"), s("2027-03-13")};
    case Font:
        return {s("Courier%2C33%2C-1%2C5%2C75%2C1%2C0%2C0%2C0%2C0"), s("Courier 33")};
    case Colour:
        return {s("1%2C20%2C255"), s("#0114ff")};
    }
    return {};
}

QByteArray element(const char *key, const QString &value)
{
    return s("<%1 value=\"%2\"/>\n").arg(s(key), value).toUtf8();
}

/// "key = value" for every setting of a plan, as far as it differs from what is expected.
QStringList differences(const Plan &plan, const QMap<QByteArray, QString> &expected)
{
    QStringList result;
    for (const Setting &setting : settings()) {
        const QString value = setting.value(plan);
        if (value != expected.value(setting.key, setting.absent))
            result.append(s(setting.key) + s(" = ") + value);
    }
    return result;
}
} // namespace

class TestPlanFileSettings : public QObject
{
    Q_OBJECT

private slots:
    void fileWithOnlyAVersionIsAPlanWithEverySettingAtItsDefault()
    {
        const PlanOf plan("<version value=\"2\"/>");
        QCOMPARE(plan.result, 0);
        QVERIFY(!plan.versionDiffers);
        QCOMPARE(differences(plan, {}), QStringList());
        QVERIFY(plan.document.isEmpty());
        QCOMPARE(plan.document.groupCount(), 1);
        QCOMPARE(plan.document.groupAt(0)->name(), s("all"));
    }

    void settingIsReadAndWrittenByItsKey_data() { addSettings(); }

    void settingIsReadAndWrittenByItsKey()
    {
        const Setting setting = fetched();
        const Sample sample = sampleOf(setting);
        const PlanOf plan(element(setting.key, sample.written));
        QCOMPARE(plan.result, 0);
        QCOMPARE(differences(plan, {{setting.key, sample.shown}}), QStringList());
        QCOMPARE(settingIn(plan.text(), s(setting.key)), sample.written);
    }

    void settingWithoutAValueIsReadAsAnEmptyText_data() { addSettings(); }

    void settingWithoutAValueIsReadAsAnEmptyText()
    {
        const Setting setting = fetched();
        for (const QByteArray &text :
             {'<' + QByteArray(setting.key) + "/>", element(setting.key, {})}) {
            const PlanOf plan(text);
            QCOMPARE(plan.result, 0);
            QCOMPARE(differences(plan, {{setting.key, withoutValue(setting)}}), QStringList());
        }
    }

    void allSettingsComeBackTogether()
    {
        QByteArray text;
        QMap<QByteArray, QString> expected;
        for (const Setting &setting : settings()) {
            const Sample sample = sampleOf(setting);
            text += element(setting.key, sample.written);
            expected.insert(setting.key, sample.shown);
        }
        const PlanOf plan(text);
        QCOMPARE(plan.result, 0);
        QCOMPARE(differences(plan, expected), QStringList());
        Plan again;
        again.loadText(plan.text());
        QCOMPARE(differences(again, expected), QStringList());
        QCOMPARE(again.text(), plan.text());
    }

    void settingsStandInTheirOrder()
    {
        Plan plan;
        plan.document.setFloorplanColourSelected(Qt::blue);
        QStringList expected;
        for (const Setting &setting : settings())
            expected.append(s("root/") + s(setting.key));
        QStringList written;
        for (const PlanElement &element : elementsOf(plan.text()).mid(2, expected.size()))
            written.append(element.path);
        QCOMPARE(written, expected);
        QCOMPARE(written.size(), 78);
    }

    void ofTwoEqualSettingsTheFirstCounts()
    {
        const PlanOf plan("<event value=\"first\"/><event value=\"second\"/>"
                          "<venue/><venue value=\"second\"/>"
                          "<version value=\"2\"/><version value=\"3\"/>");
        QCOMPARE(plan.document.event(), s("first"));
        QCOMPARE(plan.document.venue(), QString());
        QVERIFY(!plan.versionDiffers);
    }

    void chairSizePassesThroughSinglePrecision()
    {
        const PlanOf plan("<chair_size value=\"0.7\"/>");
        QCOMPARE(plan.document.chairSize(), double(0.7F));
        QVERIFY(plan.document.chairSize() != 0.7);
        QCOMPARE(PlanOf("").document.chairSize(), double(0.6F));
    }

    void absentFontsOfThePrintAreDefaultsAndTheOthersStay()
    {
        const QFont font(s("Courier"), 33);
        Plan plan;
        plan.document.setPrintHeaderFont(font);
        plan.document.setPrintFooterFont(font);
        plan.document.setFloorPlanFont(font);
        plan.document.setTableChartFont(font);
        plan.document.setGuestChartFont(font);
        plan.loadText(planText("<guest_chart_font value=\"\"/>"));
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.document.printHeaderFont(), QFont());
        QCOMPARE(plan.document.printFooterFont(), QFont());
        QCOMPARE(plan.document.floorPlanFont(), font);
        QCOMPARE(plan.document.tableChartFont(), font);
        QCOMPARE(plan.document.guestChartFont(), font);
    }

    void fontThatCannotBeReadIsADefaultFont()
    {
        Plan plan;
        plan.document.setFloorPlanFont(QFont(s("Courier"), 33));
        plan.loadText(planText("<floor_plan_font value=\"Courier,33,1\"/>"));
        QCOMPARE(plan.document.floorPlanFont(), QFont());
    }

    void loadingResetsWhatTheLastPlanHad()
    {
        QByteArray text;
        for (const Setting &setting : settings()) {
            if (setting.kind != Font)
                text += element(setting.key, sampleOf(setting).written);
        }
        Plan plan;
        plan.loadText(planText(text));
        QVERIFY(!differences(plan, {}).isEmpty());
        plan.loadText(planText(""));
        QCOMPARE(differences(plan, {}), QStringList());
    }

    void absentFooterAndSelectionColourComeFromTheHooks()
    {
        const HooksGuard guard;
        modelHooks().printFooter = [] { return s("printed at home"); };
        modelHooks().selectionColour = [] { return QColor(Qt::darkCyan); };
        const PlanOf plan("");
        QCOMPARE(plan.document.printFooterText(), s("printed at home"));
        QCOMPARE(plan.document.floorplanColourSelected(), QColor(Qt::darkCyan));
        QCOMPARE(settingIn(plan.text(), s("floorplan_colour_selected")), QString());

        const PlanOf other("<print_footer_text/><floorplan_colour_selected value=\"1,2,3\"/>");
        QCOMPARE(other.document.printFooterText(), QString());
        QCOMPARE(other.document.floorplanColourSelected(), QColor(1, 2, 3));
        QCOMPARE(settingIn(other.text(), s("floorplan_colour_selected")), s("1%2C2%2C3"));
    }

    void aNewPlanIsOfTheVersionThatIsWritten()
    {
        PlanOf plan("<version value=\"1\"/>");
        QCOMPARE(plan.document.fileVersion(), 1);
        plan.document.clear();
        QCOMPARE(plan.document.fileVersion(), 2);
    }

    void otherVersionsLoadFullyAndAreFlagged_data()
    {
        QTest::addColumn<QByteArray>("version");
        QTest::addColumn<bool>("differs");

        QTest::newRow("absent") << QByteArray() << false;
        QTest::newRow("no value") << QByteArray("<version/>") << false;
        QTest::newRow("empty") << QByteArray("<version value=\"\"/>") << false;
        QTest::newRow("1") << QByteArray("<version value=\"1\"/>") << true;
        QTest::newRow("2") << QByteArray("<version value=\"2\"/>") << false;
        QTest::newRow("3") << QByteArray("<version value=\"3\"/>") << true;
        QTest::newRow("text") << QByteArray("<version value=\"two\"/>") << true;
        QTest::newRow("2.0") << QByteArray("<version value=\"2.0\"/>") << true;
    }

    void otherVersionsLoadFullyAndAreFlagged()
    {
        QFETCH(QByteArray, version);
        QFETCH(bool, differs);
        const PlanOf plan(version + "<event value=\"Party\"/><guest age=\"adult\"/>");
        QCOMPARE(plan.result, 0);
        QCOMPARE(plan.versionDiffers, differs);
        QCOMPARE(plan.document.event(), s("Party"));
        QCOMPARE(plan.document.guestCount(), 1);
        QCOMPARE(settingIn(plan.text(), s("version")), s("2"));
    }

private:
    static void addSettings()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const Setting &setting : settings())
            QTest::newRow(setting.key) << index++;
    }

    static Setting fetched()
    {
        QFETCH(int, index);
        return settings().at(index);
    }
};

REGISTER_TEST(TestPlanFileSettings)
#include "tst_kwplanfile_settings.moc"
