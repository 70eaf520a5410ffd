#include "gui/appearance/kwcolourpreview.h"
#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwwebpage.h"
#include "support/gui/coloursdialogtest.h"
#include "support/gui/fakemainwindow.h"
#include "support/registeredtest.h"

#include <QDesktopServices>

namespace {

using Mode = KWColoursAndFontsDlgImpl::Mode;
constexpr auto FloorPlan = KWColoursAndFontsDlgImpl::FloorPlan;
constexpr auto TableChart = KWColoursAndFontsDlgImpl::TableChart;
constexpr auto GuestChart = KWColoursAndFontsDlgImpl::GuestChart;

/// All colours and fonts of a plan.
QString described(const KWDocument &plan)
{
    QStringList texts;
    for (const QColor &colour : {plan.floorplanColourTables(), plan.floorplanColourTablesEdge(),
                                 plan.floorplanColourSeats(), plan.floorplanColourSeatsEdge(),
                                 plan.floorplanColourInside(), plan.floorplanColourOutside(),
                                 plan.floorplanColourSeatsText(), plan.floorplanColourTableText(),
                                 plan.floorplanColourSelected(), plan.tableChartColourBackground(),
                                 plan.tableChartColourText(), plan.guestChartColourBackground(),
                                 plan.guestChartColourText()})
        texts.append(rgb(colour));
    for (const QFont &used : {plan.floorPlanFont(), plan.tableChartFont(), plan.guestChartFont()})
        texts.append(QString::number(used.pointSize()));
    return texts.join(u' ');
}

const QString filled =
    QStringLiteral("1,2,3 4,5,6 7,8,9 10,11,12 13,14,15 16,17,18 19,20,21 22,23,24 25,26,27 "
                   "31,32,33 34,35,36 41,42,43 44,45,46 12 13 14");

const QList<const char *> ofCharts{"m_chartBackgroundLabel", "m_chartBackgroundColourButton",
                                   "m_chartTextLabel", "m_chartTextColourButton"};
const QList<const char *> ofFloorPlan{"m_insideLabel",
                                      "m_outsideLabel",
                                      "m_textLabel",
                                      "m_tableLabel",
                                      "m_tablesColourButton",
                                      "m_tableEdgeColourButton",
                                      "m_tableTextColourButton",
                                      "m_seatLabel",
                                      "m_seatsColourButton",
                                      "m_seatEdgeColourButton",
                                      "m_seatTextColourButton",
                                      "m_drawAreaLabel",
                                      "m_insideColourButton",
                                      "m_outsideColourButton",
                                      "m_selectedLabel",
                                      "m_selectedColourButton"};

void modeRows()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("floor plan") << FloorPlan;
    QTest::newRow("table chart") << TableChart;
    QTest::newRow("guest chart") << GuestChart;
}

/// Takes the place of the user's browser while it lives.
class FakeBrowser : public QObject
{
    Q_OBJECT

public:
    FakeBrowser() { QDesktopServices::setUrlHandler(s("file"), this, "open"); }
    ~FakeBrowser() override { QDesktopServices::unsetUrlHandler(s("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};
} // namespace

class TestKWColoursAndFontsDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_insideLabel", "Inside", ""},
            {"m_outsideLabel", "Outside", ""},
            {"m_textLabel", "Text", ""},
            {"m_seatLabel", "Seat:", ""},
            {"m_tableLabel", "Table:", ""},
            {"m_drawAreaLabel", "Drawing area:", ""},
            {"m_selectedLabel", "Selected:", ""},
            {"m_chartBackgroundLabel", "Background:", ""},
            {"m_chartTextLabel", "Text:", ""},
            {"m_seatsColourButton", "", "Change seat shape colour"},
            {"m_seatEdgeColourButton", "", "Change seat edge colour"},
            {"m_seatTextColourButton", "", "Change seat text colour"},
            {"m_tablesColourButton", "", "Change table shape colour"},
            {"m_tableEdgeColourButton", "", "Change table edge colour"},
            {"m_tableTextColourButton", "", "Change table text colour"},
            {"m_insideColourButton", "", "Change drawing area background colour"},
            {"m_outsideColourButton", "", "Change outside drawing area colour"},
            {"m_selectedColourButton", "", "Change selected (highlight) colour"},
            {"m_chartBackgroundColourButton", "", "Change background colour"},
            {"m_chartTextColourButton", "", "Change text colour"},
            {"m_fontButton", "&Font...", "Change font", "Alt+F"},
            {"m_moreFontsButton", "More fonts", "Show Ambrelune fonts web page"},
            {"m_defaultButton", "&Default", "Revert to default fonts and colours", "Alt+D"},
            {"m_themesGroupBox", "Themes", ""},
            {"m_themeListBox", "", "Available themes"},
            {"m_loadThemeButton", "Load", "Load selected theme"},
            {"m_saveThemeButton", "Save", "Save current as new theme"},
            {"m_deleteThemeButton", "Del", "Delete selected theme", "Del"},
            {"m_previewGroupBox", "Preview", ""},
            {"m_okButton", "&OK", "Accept changes and close window", "Alt+O"},
            {"m_cancelButton", "&Cancel", "Discard changes and close window", "Alt+C"},
            {"m_helpButton", "&Help", "Context sensitive help", "Alt+H"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWDocument plan;
        compareFormRow(ColoursDialog(plan));
    }

    void theDialogIsMadeAsAllAre_data() { modeRows(); }

    void theDialogIsMadeAsAllAre()
    {
        QFETCH(Mode, mode);
        KWDocument plan;
        ColoursDialog dialog(plan, mode);
        QCOMPARE(dialog.windowTitle(), s("Fonts and colours"));
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.findChild<KWStyleHelper *>());
        QVERIFY(showActive(dialog));
        const auto help = [&](const std::function<void()> &act) { return topicAskedFor(act); };
        QCOMPARE(help([&] { dialog.click("m_helpButton"); }), s("Fonts_and_colours_window.htm"));
        QCOMPARE(help([&] { QTest::keyClick(&dialog, Qt::Key_F1); }),
                 s("Fonts_and_colours_window.htm"));
    }

    void eachModeHidesWhatItDoesNotUse_data() { modeRows(); }

    void eachModeHidesWhatItDoesNotUse()
    {
        QFETCH(Mode, mode);
        KWDocument plan;
        const ColoursDialog dialog(plan, mode);
        for (const char *name : ofCharts)
            QCOMPARE(child<QWidget>(dialog, name)->isVisibleTo(&dialog), mode != FloorPlan);
        for (const char *name : ofFloorPlan)
            QCOMPARE(child<QWidget>(dialog, name)->isVisibleTo(&dialog), mode == FloorPlan);
        for (const char *name : {"m_fontButton", "m_moreFontsButton", "m_defaultButton",
                                 "m_themeListBox", "m_previewGroupBox", "m_frame"})
            QVERIFY(child<QWidget>(dialog, name)->isVisibleTo(&dialog));
    }

    void theButtonsShowTheColoursOfThePlan()
    {
        KWDocument plan;
        fill(plan);
        QCOMPARE(ColoursDialog(plan).shownFloorPlan(),
                 s("1,2,3 4,5,6 7,8,9 10,11,12 13,14,15 16,17,18 19,20,21 22,23,24 25,26,27"));
        QCOMPARE(ColoursDialog(plan, TableChart).shownChart(), s("31,32,33 34,35,36"));
        QCOMPARE(ColoursDialog(plan, GuestChart).shownChart(), s("41,42,43 44,45,46"));
    }

    void aPlanWithoutASelectedColourIsGivenTheHighlight()
    {
        KWDocument plan;
        plan.setFloorplanColourSelected(QColor());
        const ColoursDialog dialog(plan);
        QCOMPARE(dialog.colour("m_selectedColourButton")->colour(), KWColours::highlightColour());
        QCOMPARE(plan.floorplanColourSelected(), KWColours::highlightColour());
    }

    void applyTakesAnUndoPointWritesThePlanAndAccepts_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QString>("after");
        QTest::newRow("floor plan") << FloorPlan
                                    << s("2,2,2 3,3,3 0,0,0 1,1,1 4,4,4 5,5,5 6,6,6 7,7,7 8,8,8 "
                                         "31,32,33 34,35,36 41,42,43 44,45,46 20 13 14");
        QTest::newRow("table chart")
            << TableChart
            << s("1,2,3 4,5,6 7,8,9 10,11,12 13,14,15 16,17,18 19,20,21 22,23,24 25,26,27 "
                 "9,9,9 10,10,10 41,42,43 44,45,46 12 20 14");
        QTest::newRow("guest chart")
            << GuestChart
            << s("1,2,3 4,5,6 7,8,9 10,11,12 13,14,15 16,17,18 19,20,21 22,23,24 25,26,27 "
                 "31,32,33 34,35,36 9,9,9 10,10,10 12 13 20");
    }

    void applyTakesAnUndoPointWritesThePlanAndAccepts()
    {
        QFETCH(Mode, mode);
        QFETCH(QString, after);
        struct Window : FakeMainWindow
        {
            QString atUndo;
            void saveUndoState(const QString &label) override
            {
                FakeMainWindow::saveUndoState(label);
                atUndo = described(*document());
            }
        } window;
        KWDocument &plan = *window.document();
        fill(plan);
        plan.setModified(false);
        const QSignalSpy modified(&plan, &KWDocument::eventModified);
        ColoursDialog dialog(plan, mode);
        QVERIFY(showActive(dialog));
        change(dialog);
        QCOMPARE(described(plan), filled);
        QCOMPARE(window.undoLabels, QStringList());
        dialog.click("m_okButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(window.undoLabels, QStringList{s("Change colours and fonts")});
        QCOMPARE(window.atUndo, filled);
        QCOMPARE(described(plan), after);
        // The plan asks to be saved.
        QVERIFY(plan.isModified());
        QCOMPARE(modified.size(), 1);
    }

    void okWithoutAChangeLeavesThePlanUnmodified_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::newRow("floor plan") << FloorPlan;
        QTest::newRow("table chart") << TableChart;
        QTest::newRow("guest chart") << GuestChart;
    }

    void okWithoutAChangeLeavesThePlanUnmodified()
    {
        QFETCH(Mode, mode);
        for (const bool isNew : {true, false}) {
            FakeMainWindow window;
            KWDocument &plan = *window.document();
            if (!isNew)
                fill(plan);
            plan.setModified(false);
            const QSignalSpy modified(&plan, &KWDocument::eventModified);
            ColoursDialog dialog(plan, mode);
            dialog.apply();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(window.undoLabels, QStringList{s("Change colours and fonts")});
            QVERIFY(!plan.isModified());
            QCOMPARE(modified.size(), 0);
        }
    }

    void aFontAloneIsAChange()
    {
        FakeMainWindow window;
        KWDocument &plan = *window.document();
        plan.setModified(false);
        ColoursDialog dialog(plan);
        ScriptedPrompts prompts;
        prompts.answerFont(serif(33));
        dialog.changeFont();
        dialog.apply();
        QVERIFY(plan.isModified());
        QCOMPARE(plan.floorPlanFont().pointSize(), 33);
    }

    void enterAppliesToo()
    {
        FakeMainWindow window;
        ColoursDialog dialog(*window.document());
        QVERIFY(showActive(dialog));
        dialog.colour("m_seatsColourButton")->setColour(Qt::red);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(window.document()->floorplanColourSeats(), QColor(Qt::red));
    }

    void enterOnAButtonPressesIt()
    {
        FakeMainWindow window;
        ColoursDialog dialog(*window.document());
        QVERIFY(showActive(dialog));
        dialog.colour("m_seatsColourButton")->setColour(Qt::red);
        auto *button = child<QPushButton>(dialog, "m_defaultButton");
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.colour("m_seatsColourButton")->colour(), QColor(Qt::white));
        QCOMPARE(window.undoLabels, QStringList());
    }

    void withoutAMainWindowThePlanIsWrittenAllTheSame()
    {
        KWDocument plan;
        ColoursDialog dialog(plan);
        dialog.colour("m_seatsColourButton")->setColour(Qt::red);
        dialog.apply();
        QCOMPARE(plan.floorplanColourSeats(), QColor(Qt::red));
    }

    void cancelLeavesThePlan_data() { modeRows(); }

    void cancelLeavesThePlan()
    {
        QFETCH(Mode, mode);
        FakeMainWindow window;
        fill(*window.document());
        for (const bool byKey : {false, true}) {
            ColoursDialog dialog(*window.document(), mode);
            QVERIFY(showActive(dialog));
            change(dialog);
            if (byKey)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.click("m_cancelButton");
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.result(), int(QDialog::Rejected));
        }
        QCOMPARE(described(*window.document()), filled);
        QCOMPARE(window.undoLabels, QStringList());
    }

    void theDefaultsAreThoseOfANewPlan()
    {
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan);
        dialog.click("m_defaultButton");
        QCOMPARE(dialog.shownFloorPlan(),
                 s("255,255,255 0,0,0 255,255,255 0,0,0 255,255,255 160,160,164 0,0,0 0,0,0 ") +
                     rgb(KWColours::highlightColour()));
        QCOMPARE(described(plan), filled);
        dialog.apply();
        QCOMPARE(plan.floorPlanFont(), QFont());

        const KWDocument fresh;
        QCOMPARE(plan.floorplanColourOutside(), fresh.floorplanColourOutside());
        QCOMPARE(plan.floorplanColourTablesEdge(), fresh.floorplanColourTablesEdge());
    }

    void theDefaultsOfAChartAreBlackOnWhite_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::newRow("table chart") << TableChart;
        QTest::newRow("guest chart") << GuestChart;
    }

    void theDefaultsOfAChartAreBlackOnWhite()
    {
        QFETCH(Mode, mode);
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan, mode);
        dialog.click("m_defaultButton");
        QCOMPARE(dialog.shownChart(), s("255,255,255 0,0,0"));
        QCOMPARE(textView(dialog)->palette().color(QPalette::Base), QColor(Qt::white));
        dialog.apply();
        QCOMPARE(mode == TableChart ? plan.tableChartFont() : plan.guestChartFont(), QFont());
    }

    void anAcceptedFontReplacesTheOneThereIs_data() { modeRows(); }

    void anAcceptedFontReplacesTheOneThereIs()
    {
        QFETCH(Mode, mode);
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan, mode);
        QVERIFY(showActive(dialog));
        QWidget *frame = child<QFrame>(dialog, "m_frame");
        const QImage before = frame->grab().toImage();
        ScriptedPrompts prompts;
        prompts.answerFont(serif(30));
        dialog.click("m_fontButton");
        QVERIFY(frame->grab().toImage() != before);
        prompts.answerFont(std::nullopt);
        dialog.click("m_fontButton");
        dialog.apply();
        const QList<QFont> fonts{plan.floorPlanFont(), plan.tableChartFont(),
                                 plan.guestChartFont()};
        QCOMPARE(fonts.at(mode).pointSize(), 30);
    }

    void theFontWindowBeginsWithThePresentFont()
    {
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan);
        QVERIFY(showActive(dialog));
        ModalUser user;
        user.onDialog<QFontDialog>([](QFontDialog &fonts) {
            QCOMPARE(fonts.currentFont().pointSize(), 12);
            fonts.reject();
        });
        dialog.click("m_fontButton");
    }

    void moreFontsShowsThePageOfFonts()
    {
        const FakeBrowser browser;
        KWDocument plan;
        ColoursDialog dialog(plan);
        dialog.click("m_moreFontsButton");
        QVERIFY(QFileInfo(webPage(s("fonts"))).isFile());
        QCOMPARE(browser.opened, QList<QUrl>{QUrl::fromLocalFile(webPage(s("fonts")))});
    }

    void aNewLanguageTranslatesTheFormAndThePreview()
    {
        KWDocument plan;
        fill(plan);
        const ColoursDialog floorPlan(plan);
        const ColoursDialog chart(plan, TableChart);
        const QStringList themes = floorPlan.themes();
        const BracketTranslator translator;
        QTRY_COMPARE(floorPlan.windowTitle(), s("[Fonts and colours]"));
        QCOMPARE(floorPlan.findChild<KWColourPreview *>()->toolTip(), s("[Floor plan preview]"));
        QCOMPARE(floorPlan.themes(), themes);
        QCOMPARE(child<QPushButton>(floorPlan, "m_deleteThemeButton")->shortcut(),
                 QKeySequence(Qt::Key_Delete));
        QTRY_COMPARE(textView(chart)->toolTip(), s("[Chart preview]"));
        QVERIFY(textView(chart)->toPlainText().startsWith(s("[table")));
        QTextCursor cursor(textView(chart)->document());
        cursor.movePosition(QTextCursor::End);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(34, 35, 36));
    }

private:
    /// Another value for each button and the font.
    static void change(ColoursDialog &dialog)
    {
        const QList<const char *> buttons{
            "m_seatsColourButton",           "m_seatEdgeColourButton",  "m_tablesColourButton",
            "m_tableEdgeColourButton",       "m_insideColourButton",    "m_outsideColourButton",
            "m_seatTextColourButton",        "m_tableTextColourButton", "m_selectedColourButton",
            "m_chartBackgroundColourButton", "m_chartTextColourButton"};
        for (int i = 0; i < buttons.size(); ++i)
            dialog.colour(buttons.at(i))->setColour(QColor(i, i, i));
        ScriptedPrompts prompts;
        prompts.answerFont(serif(20));
        dialog.changeFont();
    }
};

REGISTER_TEST(TestKWColoursAndFontsDlgImpl)
#include "tst_kwcoloursandfontsdlgimpl.moc"
