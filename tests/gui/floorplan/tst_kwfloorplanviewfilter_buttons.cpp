#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"
#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "gui/framework/kwcolourbutton.h"
#include "support/gui/hintlog.h"
#include "support/gui/modaluser.h"
#include "support/gui/panelplan.h"
#include "support/registeredtest.h"

// The buttons of the panel.

namespace {

/// The buttons that are held, and the lines that they show.
struct HoldRow
{
    const char *button;
    const char *lines;
};

const QList<HoldRow> &holdRows()
{
    static const QList<HoldRow> rows{
        {"m_nextToButton", "#ff0000 #ff0000"},
        {"m_nearToButton", "#ff00ff"},
        {"m_notNextToButton", "#a0a0a4"},
        {"m_notNearToButton", "#000000"},
        {"m_allButton", "#000000 #a0a0a4 #ff0000 #ff0000 #ff00ff"},
        {"m_conflictsButton", "#000000 #a0a0a4 #ff0000 #ff00ff"},
    };
    return rows;
}

using Loss = std::function<void(PanelPlan &, QToolButton *)>;
} // namespace

Q_DECLARE_METATYPE(Loss)

class TestKWFloorPlanViewFilterButtons : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void aHeldButtonShowsItsLinesUntilItIsReleased_data();
    void aHeldButtonShowsItsLinesUntilItIsReleased();
    void theSpaceBarHoldsAButtonToo();
    void aReleaseRemovesTheLinesOfAnotherButtonToo();
    void linesGoWithWhatTakesTheButtonAway_data();
    void linesGoWithWhatTakesTheButtonAway();
    void linesComeBackWithThePointer();
    void holdingAButtonIsNoChangeOfThePlan();
    void theButtonForConflictsTellsHowManyThereAre();

    void aZoomButtonAtItsLimitLeavesTheKeysToThePlan();
    void theZoomButtonsAndCtrlAndTheWheelKeepToTheLimits();
    void theZoomButtonsFollowTheSizeOfTheWindow();
    void theZoomButtonsFollowTheRoom();
    void theZoomButtonsFollowThePlan();
    void theCentreButtonShowsAllTables();

    void rotateIsEnabledOnlyWithATableSelected();
    void rotateTurnsTheTableAfterAnUndoPoint();

    void theDimensionsResizeTheRoom();
    void cancelledDimensionsLeavePlanAndCanvasAsTheyWere();

    void theColoursAreShownAtOnce_data();
    void theColoursAreShownAtOnce();
};

void TestKWFloorPlanViewFilterButtons::aZoomButtonAtItsLimitLeavesTheKeysToThePlan()
{
    PanelPlan shown;
    QToolButton *zoomIn = shown.button("m_zoomInButton");
    zoomIn->setFocus();
    for (int i = 0; i < 50 && zoomIn->isEnabled(); ++i)
        QTest::keyClick(zoomIn, Qt::Key_Space);
    QVERIFY(!zoomIn->isEnabled());
    QVERIFY(!shown.button("m_zoomOutButton")->hasFocus());
}

void TestKWFloorPlanViewFilterButtons::aHeldButtonShowsItsLinesUntilItIsReleased_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("lines");
    for (const HoldRow &row : holdRows())
        QTest::newRow(row.button) << s(row.button) << s(row.lines);
}

void TestKWFloorPlanViewFilterButtons::aHeldButtonShowsItsLinesUntilItIsReleased()
{
    QFETCH(QString, name);
    PanelPlan shown;
    shown.seatWishes();
    QTest::mousePress(shown.button(name), Qt::LeftButton);
    QTEST(shown.lines(), "lines");
    QTest::mouseRelease(shown.button(name), Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterButtons::theSpaceBarHoldsAButtonToo()
{
    PanelPlan shown;
    shown.seatWishes();
    QToolButton *button = shown.button("m_nearToButton");
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Space);
    QCOMPARE(shown.lines(), s("#ff00ff"));
    QTest::keyRelease(button, Qt::Key_Space);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterButtons::aReleaseRemovesTheLinesOfAnotherButtonToo()
{
    PanelPlan shown;
    shown.seatWishes();
    shown.panel.showHatesAffinity();
    QTest::mousePress(shown.button("m_nearToButton"), Qt::LeftButton);
    QCOMPARE(shown.lines(), s("#000000 #ff00ff"));
    QTest::mouseRelease(shown.button("m_nearToButton"), Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterButtons::linesGoWithWhatTakesTheButtonAway_data()
{
    QTest::addColumn<Loss>("lose");
    QTest::newRow("the pointer leaves it") << Loss([](PanelPlan &, QToolButton *button) {
        QMouseEvent move(QEvent::MouseMove, QPointF(-9, -9), button->mapToGlobal(QPointF(-9, -9)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &move);
    });
    QTest::newRow("the window loses the focus") << Loss([](PanelPlan &shown, QToolButton *) {
        shown.view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.view));
    });
    QTest::newRow("it is disabled")
        << Loss([](PanelPlan &, QToolButton *button) { button->setEnabled(false); });
    QTest::newRow("it is hidden") << Loss([](PanelPlan &, QToolButton *button) { button->hide(); });
    QTest::newRow("the panel is hidden")
        << Loss([](PanelPlan &shown, QToolButton *) { shown.panel.hide(); });
    QTest::newRow("a dialog comes up") << Loss([](PanelPlan &shown, QToolButton *) {
        ModalUser user;
        user.onDialog<QDialog>([&shown](QDialog &dialog) {
            QCOMPARE(shown.lines(), QString());
            dialog.reject();
        });
        shown.panel.changeDimensions();
    });
}

void TestKWFloorPlanViewFilterButtons::linesGoWithWhatTakesTheButtonAway()
{
    QFETCH(Loss, lose);
    PanelPlan shown;
    shown.seatWishes();
    QToolButton *button = shown.button("m_conflictsButton");
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(!shown.lines().isEmpty());
    lose(shown, button);
    QCOMPARE(shown.lines(), QString());
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterButtons::linesComeBackWithThePointer()
{
    PanelPlan shown;
    shown.seatWishes();
    QToolButton *button = shown.button("m_nearToButton");
    QTest::mousePress(button, Qt::LeftButton);
    for (const QPointF &place : {QPointF(-9, -9), QPointF(button->rect().center())}) {
        QMouseEvent move(QEvent::MouseMove, place, button->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &move);
    }
    QCOMPARE(shown.lines(), s("#ff00ff"));
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterButtons::holdingAButtonIsNoChangeOfThePlan()
{
    PanelPlan shown;
    shown.seatWishes();
    for (const HoldRow &row : holdRows())
        shown.click(row.button);
    QVERIFY(!shown.plan.isModified());
    QCOMPARE(shown.window.undoLabels, QStringList());
}

void TestKWFloorPlanViewFilterButtons::theButtonForConflictsTellsHowManyThereAre()
{
    PanelPlan shown;
    shown.seatWishes();
    const HintLog log(&shown.panel);
    QTest::mousePress(shown.button("m_nearToButton"), Qt::LeftButton);
    QTest::mouseRelease(shown.button("m_nearToButton"), Qt::LeftButton);
    QCOMPARE(log.hints, QStringList());
    addGuest(shown.plan, {"Kim"});
    QTest::mousePress(shown.button("m_conflictsButton"), Qt::LeftButton);
    QCOMPARE(log.hints, QStringList{s("4 of 5 wishes are not met, 1 guest has no seat")});
    QTest::mouseRelease(shown.button("m_conflictsButton"), Qt::LeftButton);
    QCOMPARE(log.hints.last(), QString());
    addGuest(shown.plan, {"Lou"});
    for (const auto &[a, b] : {std::pair(0, 1), std::pair(2, 3), std::pair(4, 5)})
        shown.plan.setAffinity(shown.plan.guestAt(a), shown.plan.guestAt(b), KWScore::Neutral,
                               false);
    QTest::mousePress(shown.button("m_conflictsButton"), Qt::LeftButton);
    QCOMPARE(log.hints.last(), s("1 of 2 wishes is not met, 2 guests have no seat"));
    QTest::mouseRelease(shown.button("m_conflictsButton"), Qt::LeftButton);
}

void TestKWFloorPlanViewFilterButtons::theZoomButtonsAndCtrlAndTheWheelKeepToTheLimits()
{
    const auto byButton = [](PanelPlan &shown, bool in) {
        shown.click(in ? "m_zoomInButton" : "m_zoomOutButton");
    };
    const auto byWheel = [](PanelPlan &shown, bool in) {
        const QPointF place(50, 50);
        QWidget *viewport = shown.view.viewport();
        QWheelEvent wheel(place, viewport->mapToGlobal(place), {}, {0, in ? 120 : -120},
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport, &wheel);
    };
    for (const std::function<void(PanelPlan &, bool)> &zoom :
         {std::function<void(PanelPlan &, bool)>(byButton),
          std::function<void(PanelPlan &, bool)>(byWheel)}) {
        PanelPlan shown;
        // 2000 by 1600 units at 0.3 fit into 800 by 600 pixels.
        QCOMPARE(shown.zoomButtons(), s("in"));
        zoom(shown, true);
        QCOMPARE(shown.view.zoom(), 0.3 * 1.3);
        QCOMPARE(shown.zoomButtons(), s("in out"));
        for (int i = 0; i < 20; ++i)
            zoom(shown, true);
        QVERIFY(shown.view.zoom() >= 3 && shown.view.zoom() < 3 * 1.3);
        QCOMPARE(shown.zoomButtons(), s("out"));
        zoom(shown, false);
        QCOMPARE(shown.zoomButtons(), s("in out"));
        for (int i = 0; i < 20; ++i)
            zoom(shown, false);
        QCOMPARE(shown.zoomButtons(), s("in"));
        QVERIFY(2000 * shown.view.zoom() <= 800 && 1600 * shown.view.zoom() <= 600);
        QVERIFY(!shown.plan.isModified());
    }
}

void TestKWFloorPlanViewFilterButtons::theZoomButtonsFollowTheSizeOfTheWindow()
{
    PanelPlan shown;
    QCOMPARE(shown.zoomButtons(), s("in"));
    shown.view.resize(500, 600);
    QTRY_COMPARE(shown.zoomButtons(), s("in out"));
    shown.view.resize(800, 600);
    QTRY_COMPARE(shown.zoomButtons(), s("in"));
    shown.view.resize(800, 400);
    QTRY_COMPARE(shown.zoomButtons(), s("in out"));
}

void TestKWFloorPlanViewFilterButtons::theZoomButtonsFollowTheRoom()
{
    PanelPlan shown;
    shown.plan.setRoomXSize(20);
    shown.canvas.resizeToRoom();
    QCOMPARE(shown.zoomButtons(), s("in out"));
    shown.plan.setRoomXSize(10);
    shown.canvas.resizeToRoom();
    QCOMPARE(shown.zoomButtons(), s("in"));
}

void TestKWFloorPlanViewFilterButtons::theZoomButtonsFollowThePlan()
{
    PanelPlan shown;
    shown.plan.setRoomYSize(20);
    shown.plan.announceRefresh();
    QCOMPARE(shown.zoomButtons(), s("in out"));
}

void TestKWFloorPlanViewFilterButtons::theCentreButtonShowsAllTables()
{
    PanelPlan shown;
    shown.table("A", KWTable::Circular, 4, {400, 300});
    shown.click("m_zoomCentreButton");
    // One table fills the view, far beyond what the button for it allows.
    QVERIFY(shown.view.zoom() > 1);
    QCOMPARE(shown.zoomButtons(), s("in out"));
    shown.table("B", KWTable::Circular, 4, {1600, 1200});
    shown.click("m_zoomCentreButton");
    const QRect seen = shown.view.mapFromScene(shown.canvas.itemBounds(0)).boundingRect();
    QVERIFY(shown.view.viewport()->rect().adjusted(-2, -2, 2, 2).contains(seen));
}

void TestKWFloorPlanViewFilterButtons::rotateIsEnabledOnlyWithATableSelected()
{
    PanelPlan shown;
    KWTable *table = shown.table("T", KWTable::Circular, 4, {600, 500});
    shown.seat("Ann", table, 0);
    const QToolButton *rotate = shown.button("m_rotateButton");
    QVERIFY(!rotate->isEnabled());
    shown.ShownPlan::click(shown.placeOf(table));
    QVERIFY(rotate->isEnabled());
    shown.ShownPlan::click(shown.placeOf(table, 0));
    QVERIFY(!rotate->isEnabled());
    shown.view.showTable(table);
    QVERIFY(rotate->isEnabled());
    shown.ShownPlan::click(shown.placeOf(QPointF(1900, 1500)));
    QVERIFY(!rotate->isEnabled());
    shown.view.showTable(table);
    shown.plan.announceRefresh();
    QVERIFY(!rotate->isEnabled());
    shown.view.showTable(table);
    shown.plan.deleteTable(table, true);
    QVERIFY(!rotate->isEnabled());
    KWTable *other = shown.table("O", KWTable::Circular, 4, {600, 500});
    shown.view.showTable(other);
    shown.plan.clear();
    QVERIFY(!rotate->isEnabled());
}

void TestKWFloorPlanViewFilterButtons::rotateTurnsTheTableAfterAnUndoPoint()
{
    PanelPlan shown;
    KWTable *table = shown.table("T", KWTable::HeadTop, 3, {600, 500});
    shown.view.showTable(table);
    shown.click("m_rotateButton");
    QCOMPARE(shown.window.undoLabels, QStringList{s("Rotate")});
    QCOMPARE(table->shape(), int(KWTable::HeadRight));
    // And again, since the table stays selected.
    shown.click("m_rotateButton");
    QCOMPARE(table->shape(), int(KWTable::HeadBottom));
}

void TestKWFloorPlanViewFilterButtons::theDimensionsResizeTheRoom()
{
    PanelPlan shown;
    ModalUser user;
    user.onDialog<KWDimensionsDlgImpl>([](KWDimensionsDlgImpl &dialog) {
        child<QLineEdit>(dialog, "m_xEdit")->setText(s("25"));
        dialog.accept();
    });
    shown.click("m_dimensionsButton");
    QCOMPARE(shown.window.undoLabels, QStringList{s("Change dimensions")});
    QCOMPARE(shown.canvas.canvasSize(), QSize(5000, 1600));
    QCOMPARE(shown.view.sceneRect().size(), QSizeF(5000, 1600));
    QCOMPARE(shown.zoomButtons(), s("in out"));
}

void TestKWFloorPlanViewFilterButtons::cancelledDimensionsLeavePlanAndCanvasAsTheyWere()
{
    PanelPlan shown;
    ModalUser user;
    user.onDialog<KWDimensionsDlgImpl>([](KWDimensionsDlgImpl &dialog) {
        child<QLineEdit>(dialog, "m_xEdit")->setText(s("25"));
        dialog.reject();
    });
    shown.click("m_dimensionsButton");
    QCOMPARE(shown.window.undoLabels, QStringList());
    QCOMPARE(shown.plan.roomXSize(), 10.);
    QVERIFY(!shown.plan.isModified());
    QCOMPARE(shown.canvas.canvasSize(), QSize(2000, 1600));
}

void TestKWFloorPlanViewFilterButtons::theColoursAreShownAtOnce_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void TestKWFloorPlanViewFilterButtons::theColoursAreShownAtOnce()
{
    QFETCH(bool, isAccepted);
    PanelPlan shown;
    const QBrush before = shown.canvas.backgroundBrush();
    ModalUser user;
    user.onDialog<KWColoursAndFontsDlgImpl>([isAccepted](KWColoursAndFontsDlgImpl &dialog) {
        child<KWColourButton>(dialog, "m_outsideColourButton")->setColour(Qt::green);
        isAccepted ? dialog.apply() : dialog.reject();
    });
    shown.click("m_coloursButton");
    QCOMPARE(shown.canvas.backgroundBrush(), isAccepted ? QBrush(Qt::green) : before);
    QCOMPARE(shown.plan.isModified(), isAccepted);
}

REGISTER_TEST(TestKWFloorPlanViewFilterButtons)
#include "tst_kwfloorplanviewfilter_buttons.moc"
