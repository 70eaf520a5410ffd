#include "canvasplan.h"
#include "dialogchecks.h"
#include "dialogtest.h"
#include "guestform.h"
#include "kwcolourbutton.h"
#include "kwcoloursandfontsdlgimpl.h"
#include "kwdimensionsdlgimpl.h"
#include "kwfloorplantext.h"
#include "kwfloorplanviewfilterimpl.h"
#include "kwviewandfilter.h"
#include "modaluser.h"
#include "shownplan.h"

using Panel = KWFloorPlanViewFilterImpl;
using Choices = Panel::Choices;

namespace {

/// The panel, unfolded, in a window of its own, with the floor plan in another.
struct PanelPlan : ShownPlan
{
    Panel panel{nullptr, &view};
    QComboBox *names = child<QComboBox>(panel, "m_nameOrderComboBox");
    QComboBox *seats = child<QComboBox>(panel, "m_seatsComboBox");

    PanelPlan()
    {
        panel.expand();
        panel.show();
        panel.activateWindow();
        if (!QTest::qWaitForWindowActive(&panel))
            qFatal("no keys");
        plan.setModified(false);
    }
    ~PanelPlan() { resetSeats(canvas); }

    QToolButton *button(const QString &name) { return child<QToolButton>(panel, name); }
    QToolButton *button(const char *name) { return child<QToolButton>(panel, name); }
    QCheckBox *box(const char *name) { return child<QCheckBox>(panel, name); }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// Where the hand of a person clicks on a check box.
    void check(const char *name)
    {
        QTest::mouseClick(box(name), Qt::LeftButton, {}, {8, box(name)->height() / 2});
    }

    /// "gender age" of the boxes for which that is so.
    QString boxes(const std::function<bool(const QCheckBox *)> &holds)
    {
        QStringList all;
        for (const char *name : {"gender", "age", "groups", "vip", "locked"}) {
            if (holds(box(qPrintable(s("m_%1CheckBox").arg(s(name))))))
                all.append(s(name));
        }
        return all.join(u' ');
    }
    QString checked()
    {
        return boxes([](const QCheckBox *box) { return box->isChecked(); });
    }
    QString enabled()
    {
        return boxes([](const QCheckBox *box) { return box->isEnabled(); });
    }

    /// "in out" of the zoom buttons that can be pressed.
    QString zoomButtons()
    {
        QStringList all;
        if (button("m_zoomInButton")->isEnabled())
            all.append(s("in"));
        if (button("m_zoomOutButton")->isEnabled())
            all.append(s("out"));
        return all.join(u' ');
    }

    /// A pair for each wish that is not met, and one that sits next to each other as it should.
    void seatWishes()
    {
        KWTable *first = table("A", KWTable::Circular, 8, {500, 400});
        KWTable *second = table("B", KWTable::Circular, 8, {1300, 400});
        const auto pair = [this](const char *a, KWTable *tableA, int seatA, const char *b,
                                 KWTable *tableB, int seatB, int value) {
            plan.setAffinity(seat(a, tableA, seatA), seat(b, tableB, seatB), value, false);
        };
        pair("Ann", first, 0, "Bob", second, 0, KWScore::Loves);
        pair("Cleo", first, 1, "Dan", second, 1, KWScore::Likes);
        pair("Eva", first, 2, "Fred", first, 3, KWScore::Dislikes);
        pair("Gil", second, 2, "Hal", second, 4, KWScore::Hates);
        pair("Ida", first, 5, "Jo", first, 6, KWScore::Loves);
        plan.setModified(false);
    }
    QString lines() const { return lineColours(canvas); }
};

/// "gender age" of what the floor plan shows.
QString shownFlags()
{
    const KWCanvas::Display &display = KWCanvas::display();
    QStringList names;
    const auto note = [&names](bool on, const char *name) {
        if (on)
            names.append(s(name));
    };
    note(display.showGender, "gender");
    note(display.showAge, "age");
    note(display.showGroups, "groups");
    note(display.showVIP, "vip");
    note(display.showLocked, "locked");
    return names.join(u' ');
}

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

class TestKWFloorPlanViewFilterImpl : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void thePanelIsAsListed_data();
    void thePanelIsAsListed();
    void theNamesHaveTheirOrdersAndSeatReference();
    void theSeatsHaveTheirDisplays();
    void whatIsNoSeatDisplayIsTheFirst();
    void everyButtonHasAPictureAndAName();
    void thePanelIsWellMade_data();
    void thePanelIsWellMade();
    void theChoicesAreFoldedAwayAtFirst();
    void theButtonsUnfoldAndFoldThePanelAndKeepTheFocus();

    void anOrderOfNamesGoesToTheFloorPlanAndChangesThePlan();
    void seatReferenceShowsNumbersFrom1OnAllSeatsAlsoEmptyOnes();
    void aBoxShowsItsFlagAndChangesThePlan_data();
    void aBoxShowsItsFlagAndChangesThePlan();
    void checkingGroupsWhileGenderIsCheckedUnchecksGender();
    void checkingGenderWhileGroupsIsCheckedUnchecksGroups();
    void aSeatDisplayGreysWhatItDoesNotShow_data();
    void aSeatDisplayGreysWhatItDoesNotShow();
    void noneUnchecksAndGreysAllAndCircularEnablesThemUnchecked();
    void everyChoiceOfSeatsChangesThePlan();
    void theWheelPassesOverTheBoxes();

    void aHeldButtonShowsItsLinesUntilItIsReleased_data();
    void aHeldButtonShowsItsLinesUntilItIsReleased();
    void theSpaceBarHoldsAButtonToo();
    void aReleaseRemovesTheLinesOfAnotherButtonToo();
    void linesGoWithWhatTakesTheButtonAway_data();
    void linesGoWithWhatTakesTheButtonAway();
    void linesComeBackWithThePointer();
    void holdingAButtonIsNoChangeOfThePlan();

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
    void whatWasSavedIsShownWithoutChangingThePlan();
    void aSavedSeatDisplayGreysWhatItDoesNotShow();
    void savedValuesThatAreNoneBecomeTheFirst();
    void genderAndGroupsOfAFileAreBothShown();
    void whatIsRestoredIsToldToNobody();

    void theSlotsWithoutAnEffectSaySo();
    void aLanguageChangeBringsTheTextsAgainAndKeepsTheChoices();
    void thePanelMayGoBeforeOrAfterTheFloorPlan();
};

void TestKWFloorPlanViewFilterImpl::thePanelIsAsListed_data()
{
    addFormRows({
        {"m_nameOrderLabel", "&Guest name:", ""},
        {"m_nameOrderComboBox", "", "Guest name format"},
        {"m_seatsLabel", "&Seats:", ""},
        {"m_seatsComboBox", "", ""},
        {"m_nextToButton", "", "Hold down show 'next to' affinity"},
        {"m_nearToButton", "", "Hold down to show 'near to' affinity"},
        {"m_notNextToButton", "", "Hold down to show 'not next to' affinity"},
        {"m_notNearToButton", "", "Hold down to show 'not near to' affinity"},
        {"m_allButton", "", "Hold down to show all affinities"},
        {"m_conflictsButton", "", "Hold down to show guests not optimally seated"},
        {"m_genderCheckBox", "gender", "Show gender of guests<br>blue=male, pink=female"},
        {"m_ageCheckBox", "age", "Show age of guests<br>small=child"},
        {"m_groupsCheckBox", "groups",
         "Show guest groups<br>each group has a different colour combination (up to 256 groups)"},
        {"m_vipCheckBox", "VIP", "Show VIP status of guests"},
        {"m_lockedCheckBox", "locked", "Show locked status"},
        {"m_zoomInButton", "", "Zoom in"},
        {"m_zoomOutButton", "", "Zoom out"},
        {"m_zoomCentreButton", "", "Show all tables"},
        {"m_rotateButton", "", "Rotate the selected table"},
        {"m_dimensionsButton", "", "Change the size of the room and of the seats"},
        {"m_coloursButton", "", "Change the colours and the font"},
    });
}

void TestKWFloorPlanViewFilterImpl::thePanelIsAsListed()
{
    PanelPlan shown;
    QFETCH(QString, name);
    const auto *widget = child<QWidget>(shown.panel, name);
    QTEST(widget->property("text").toString(), "text");
    QTEST(widget->toolTip(), "tip");
}

void TestKWFloorPlanViewFilterImpl::theNamesHaveTheirOrdersAndSeatReference()
{
    PanelPlan shown;
    QCOMPARE(GuestForm::entries(shown.names),
             (QStringList{s("DisplayName"), s("Last, First"), s("Last, F."), s("First Last"),
                          s("F. Last"), s("Title First Last"), s("Title F. Last"),
                          s("Seat reference")}));
    QCOMPARE(child<QLabel>(shown.panel, "m_nameOrderLabel")->buddy(), shown.names);
}

void TestKWFloorPlanViewFilterImpl::theSeatsHaveTheirDisplays()
{
    PanelPlan shown;
    QCOMPARE(GuestForm::entries(shown.seats),
             (QStringList{s("circular+name"), s("circular"), s("name only"), s("none")}));
    QCOMPARE(child<QLabel>(shown.panel, "m_seatsLabel")->buddy(), shown.seats);
    for (const KWCanvas::SeatDisplay display :
         {KWCanvas::CircularName, KWCanvas::Circular, KWCanvas::NameOnly, KWCanvas::None}) {
        QCOMPARE(Panel::indexOf(display), int(display));
        QCOMPARE(Panel::seatDisplayOf(display), display);
    }
}

void TestKWFloorPlanViewFilterImpl::whatIsNoSeatDisplayIsTheFirst()
{
    for (const int index : {-1, 4, 1000})
        QCOMPARE(Panel::seatDisplayOf(index), KWCanvas::CircularName);
    QCOMPARE(Panel::indexOf(static_cast<KWCanvas::SeatDisplay>(9)), 0);
}

void TestKWFloorPlanViewFilterImpl::everyButtonHasAPictureAndAName()
{
    PanelPlan shown;
    const auto buttons = shown.panel.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 14);
    for (const QToolButton *button : buttons) {
        QVERIFY2(!button->icon().isNull() || button->arrowType() != Qt::NoArrow,
                 qPrintable(button->objectName()));
        QCOMPARE(button->accessibleName(), button->toolTip());
        // A click leaves the focus in the floor plan.
        QCOMPARE(button->focusPolicy(), Qt::TabFocus);
    }
}

void TestKWFloorPlanViewFilterImpl::thePanelIsWellMade_data()
{
    QTest::addColumn<bool>("folded");
    QTest::addColumn<double>("font");
    QTest::newRow("folded") << true << 1.;
    QTest::newRow("unfolded") << false << 1.;
    QTest::newRow("unfolded, large font") << false << 1.5;
}

void TestKWFloorPlanViewFilterImpl::thePanelIsWellMade()
{
    QFETCH(bool, folded);
    QFETCH(double, font);
    PanelPlan shown;
    QFont large = shown.panel.font();
    large.setPointSizeF(large.pointSizeF() * font);
    shown.panel.setFont(large);
    if (folded)
        shown.panel.collapse();
    QCoreApplication::processEvents();
    shown.panel.resize(shown.panel.minimumSizeHint());
    for (const auto check :
         {DialogChecks::unnamedFields, DialogChecks::backwardTabs, DialogChecks::mnemonicClashes,
          DialogChecks::cutTexts, DialogChecks::strayWidgets, DialogChecks::raggedColumns})
        QCOMPARE(check(&shown.panel), QStringList());
    // It leaves room for the list beside it in the smallest window that the program comes up with.
    QVERIFY(shown.panel.width() <= qRound(480 * font));
}

void TestKWFloorPlanViewFilterImpl::theChoicesAreFoldedAwayAtFirst()
{
    ShownPlan shown;
    Panel panel(nullptr, &shown.view);
    panel.show();
    QStringList visible;
    for (const QWidget *widget :
         panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (widget->isVisible())
            visible.append(widget->objectName());
    }
    visible.sort();
    QCOMPARE(visible,
             (QStringList{s("m_allButton"), s("m_conflictsButton"), s("m_expandButton"),
                          s("m_nearToButton"), s("m_nextToButton"), s("m_notNearToButton"),
                          s("m_notNextToButton"), s("m_rotateButton"), s("m_zoomCentreButton"),
                          s("m_zoomInButton"), s("m_zoomOutButton")}));
}

void TestKWFloorPlanViewFilterImpl::theButtonsUnfoldAndFoldThePanelAndKeepTheFocus()
{
    PanelPlan shown;
    QToolButton *expand = shown.button("m_expandButton");
    QToolButton *collapse = shown.button("m_collapseButton");
    QVERIFY(!expand->isVisible());
    shown.click("m_collapseButton");
    QVERIFY(!collapse->isVisible());
    QVERIFY(!shown.names->isVisible());
    QVERIFY(!shown.box("m_lockedCheckBox")->isVisible());
    QVERIFY(!shown.button("m_dimensionsButton")->isVisible());
    expand->setFocus();
    QTest::keyClick(expand, Qt::Key_Space);
    QVERIFY(collapse->hasFocus());
    QVERIFY(!expand->isVisible());
    for (const QWidget *widget :
         shown.panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        QVERIFY2(widget->isVisible() || widget == expand, qPrintable(widget->objectName()));
    QTest::keyClick(collapse, Qt::Key_Space);
    QVERIFY(expand->hasFocus());
    QTest::keyClick(expand, Qt::Key_Space);
    shown.names->setFocus();
    shown.click("m_collapseButton");
    QVERIFY(expand->hasFocus());
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aZoomButtonAtItsLimitLeavesTheKeysToThePlan()
{
    PanelPlan shown;
    QToolButton *zoomIn = shown.button("m_zoomInButton");
    zoomIn->setFocus();
    for (int i = 0; i < 50 && zoomIn->isEnabled(); ++i)
        QTest::keyClick(zoomIn, Qt::Key_Space);
    QVERIFY(!zoomIn->isEnabled());
    QVERIFY(!shown.button("m_zoomOutButton")->hasFocus());
}

void TestKWFloorPlanViewFilterImpl::anOrderOfNamesGoesToTheFloorPlanAndChangesThePlan()
{
    PanelPlan shown;
    GuestForm::pick(shown.names, "F. Last");
    QCOMPARE(shown.canvas.nameOrder(), 4);
    QVERIFY(shown.plan.isModified());
    shown.plan.setModified(false);
    // The same again is no change.
    GuestForm::pick(shown.names, "F. Last");
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::seatReferenceShowsNumbersFrom1OnAllSeatsAlsoEmptyOnes()
{
    PanelPlan shown;
    KWTable *table = shown.table("T", KWTable::Circular, 3, {500, 400});
    shown.seat("Ann", table, 1);
    GuestForm::pick(shown.names, "Seat reference");
    QCOMPARE(shown.canvas.nameOrder(), 7);
    QStringList texts;
    for (int seat = 0; seat < 3; ++seat)
        texts.append(KWFloorPlanText::seatText(*table, seat, shown.canvas.nameOrder()));
    QCOMPARE(texts.join(u' '), s("1 2 3"));
    QVERIFY(shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aBoxShowsItsFlagAndChangesThePlan_data()
{
    QTest::addColumn<QString>("flag");
    for (const char *flag : {"gender", "age", "groups", "vip", "locked"})
        QTest::newRow(flag) << s(flag);
}

void TestKWFloorPlanViewFilterImpl::aBoxShowsItsFlagAndChangesThePlan()
{
    QFETCH(QString, flag);
    PanelPlan shown;
    const QByteArray name = s("m_%1CheckBox").arg(flag).toLatin1();
    shown.check(name);
    QCOMPARE(shownFlags(), flag);
    QVERIFY(shown.plan.isModified());
    shown.plan.setModified(false);
    shown.check(name);
    QCOMPARE(shownFlags(), QString());
    QVERIFY(shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::checkingGroupsWhileGenderIsCheckedUnchecksGender()
{
    PanelPlan shown;
    shown.check("m_genderCheckBox");
    shown.check("m_ageCheckBox");
    shown.check("m_groupsCheckBox");
    QCOMPARE(shown.checked(), s("age groups"));
    QCOMPARE(shownFlags(), s("age groups"));
}

void TestKWFloorPlanViewFilterImpl::checkingGenderWhileGroupsIsCheckedUnchecksGroups()
{
    PanelPlan shown;
    shown.check("m_groupsCheckBox");
    shown.check("m_genderCheckBox");
    QCOMPARE(shown.checked(), s("gender"));
    QCOMPARE(shownFlags(), s("gender"));
    // Unchecking the one does not check the other.
    shown.check("m_genderCheckBox");
    QCOMPARE(shown.checked(), QString());
}

void TestKWFloorPlanViewFilterImpl::aSeatDisplayGreysWhatItDoesNotShow_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("left");
    const QString all = s("gender age groups vip locked");
    QTest::newRow("circular") << s("circular") << 1 << all << s("age groups vip locked");
    QTest::newRow("name only") << s("name only") << 2 << s("vip locked") << s("vip locked");
    QTest::newRow("none") << s("none") << 3 << QString() << QString();
}

void TestKWFloorPlanViewFilterImpl::aSeatDisplayGreysWhatItDoesNotShow()
{
    QFETCH(QString, display);
    QFETCH(QString, left);
    PanelPlan shown;
    for (const char *box :
         {"m_groupsCheckBox", "m_ageCheckBox", "m_vipCheckBox", "m_lockedCheckBox"})
        shown.check(box);
    GuestForm::pick(shown.seats, qPrintable(display));
    QTEST(int(KWCanvas::display().seats), "number");
    QTEST(shown.enabled(), "enabled");
    QCOMPARE(shown.checked(), left);
    QCOMPARE(shownFlags(), left);
    GuestForm::pick(shown.seats, "circular+name");
    QCOMPARE(KWCanvas::display().seats, KWCanvas::CircularName);
    QCOMPARE(shown.enabled(), s("gender age groups vip locked"));
    QCOMPARE(shown.checked(), left);
}

void TestKWFloorPlanViewFilterImpl::noneUnchecksAndGreysAllAndCircularEnablesThemUnchecked()
{
    PanelPlan shown;
    for (const char *box :
         {"m_genderCheckBox", "m_ageCheckBox", "m_vipCheckBox", "m_lockedCheckBox"})
        shown.check(box);
    GuestForm::pick(shown.seats, "none");
    QCOMPARE(shown.checked(), QString());
    QCOMPARE(shown.enabled(), QString());
    QCOMPARE(shownFlags(), QString());
    GuestForm::pick(shown.seats, "circular");
    QCOMPARE(shown.checked(), QString());
    QCOMPARE(shown.enabled(), s("gender age groups vip locked"));
}

void TestKWFloorPlanViewFilterImpl::everyChoiceOfSeatsChangesThePlan()
{
    PanelPlan shown;
    for (const char *display : {"circular", "name only", "none", "circular+name"}) {
        shown.plan.setModified(false);
        GuestForm::pick(shown.seats, display);
        QVERIFY2(shown.plan.isModified(), display);
    }
}

void TestKWFloorPlanViewFilterImpl::theWheelPassesOverTheBoxes()
{
    PanelPlan shown;
    for (QComboBox *box : {shown.names, shown.seats}) {
        const QPointF place(box->rect().center());
        QWheelEvent wheel(place, box->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
        QCOMPARE(box->currentIndex(), 0);
    }
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aHeldButtonShowsItsLinesUntilItIsReleased_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("lines");
    for (const HoldRow &row : holdRows())
        QTest::newRow(row.button) << s(row.button) << s(row.lines);
}

void TestKWFloorPlanViewFilterImpl::aHeldButtonShowsItsLinesUntilItIsReleased()
{
    QFETCH(QString, name);
    PanelPlan shown;
    shown.seatWishes();
    QTest::mousePress(shown.button(name), Qt::LeftButton);
    QTEST(shown.lines(), "lines");
    QTest::mouseRelease(shown.button(name), Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterImpl::theSpaceBarHoldsAButtonToo()
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

void TestKWFloorPlanViewFilterImpl::aReleaseRemovesTheLinesOfAnotherButtonToo()
{
    PanelPlan shown;
    shown.seatWishes();
    shown.panel.showHatesAffinity();
    QTest::mousePress(shown.button("m_nearToButton"), Qt::LeftButton);
    QCOMPARE(shown.lines(), s("#000000 #ff00ff"));
    QTest::mouseRelease(shown.button("m_nearToButton"), Qt::LeftButton);
    QCOMPARE(shown.lines(), QString());
}

void TestKWFloorPlanViewFilterImpl::linesGoWithWhatTakesTheButtonAway_data()
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

void TestKWFloorPlanViewFilterImpl::linesGoWithWhatTakesTheButtonAway()
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

void TestKWFloorPlanViewFilterImpl::linesComeBackWithThePointer()
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

void TestKWFloorPlanViewFilterImpl::holdingAButtonIsNoChangeOfThePlan()
{
    PanelPlan shown;
    shown.seatWishes();
    for (const HoldRow &row : holdRows())
        shown.click(row.button);
    QVERIFY(!shown.plan.isModified());
    QCOMPARE(shown.window.undoLabels, QStringList());
}

void TestKWFloorPlanViewFilterImpl::theZoomButtonsAndCtrlAndTheWheelKeepToTheLimits()
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

void TestKWFloorPlanViewFilterImpl::theZoomButtonsFollowTheSizeOfTheWindow()
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

void TestKWFloorPlanViewFilterImpl::theZoomButtonsFollowTheRoom()
{
    PanelPlan shown;
    shown.plan.setRoomXSize(20);
    shown.canvas.resizeToRoom();
    QCOMPARE(shown.zoomButtons(), s("in out"));
    shown.plan.setRoomXSize(10);
    shown.canvas.resizeToRoom();
    QCOMPARE(shown.zoomButtons(), s("in"));
}

void TestKWFloorPlanViewFilterImpl::theZoomButtonsFollowThePlan()
{
    PanelPlan shown;
    shown.plan.setRoomYSize(20);
    shown.plan.announceRefresh();
    QCOMPARE(shown.zoomButtons(), s("in out"));
}

void TestKWFloorPlanViewFilterImpl::theCentreButtonShowsAllTables()
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

void TestKWFloorPlanViewFilterImpl::rotateIsEnabledOnlyWithATableSelected()
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

void TestKWFloorPlanViewFilterImpl::rotateTurnsTheTableAfterAnUndoPoint()
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

void TestKWFloorPlanViewFilterImpl::theDimensionsResizeTheRoom()
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

void TestKWFloorPlanViewFilterImpl::cancelledDimensionsLeavePlanAndCanvasAsTheyWere()
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

void TestKWFloorPlanViewFilterImpl::theColoursAreShownAtOnce_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void TestKWFloorPlanViewFilterImpl::theColoursAreShownAtOnce()
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

void TestKWFloorPlanViewFilterImpl::whatWasSavedIsShownWithoutChangingThePlan()
{
    PanelPlan shown;
    shown.panel.setChoices(
        {.nameOrder = 7, .seats = KWCanvas::Circular, .gender = true, .vip = true, .locked = true});
    QVERIFY(!shown.plan.isModified());
    QCOMPARE(shown.names->currentText(), s("Seat reference"));
    QCOMPARE(shown.canvas.nameOrder(), 7);
    QCOMPARE(shown.seats->currentText(), s("circular"));
    QCOMPARE(KWCanvas::display().seats, KWCanvas::Circular);
    QCOMPARE(shown.checked(), s("gender vip locked"));
    QCOMPARE(shownFlags(), s("gender vip locked"));
    const Choices now = shown.panel.choices();
    QCOMPARE(now.nameOrder, 7);
    QCOMPARE(now.seats, KWCanvas::Circular);
    QVERIFY(now.gender && now.vip && now.locked && !now.age && !now.groups);
    shown.panel.setChoices({.age = true, .groups = true});
    QCOMPARE(shown.names->currentIndex(), 0);
    QCOMPARE(KWCanvas::display().seats, KWCanvas::CircularName);
    QCOMPARE(shown.checked(), s("age groups"));
    QCOMPARE(shownFlags(), s("age groups"));
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aSavedSeatDisplayGreysWhatItDoesNotShow()
{
    PanelPlan shown;
    shown.panel.setChoices({.seats = KWCanvas::None});
    QCOMPARE(shown.enabled(), QString());
    shown.panel.setChoices({.seats = KWCanvas::NameOnly});
    QCOMPARE(shown.enabled(), s("vip locked"));
    shown.panel.setChoices({});
    QCOMPARE(shown.enabled(), s("gender age groups vip locked"));
}

void TestKWFloorPlanViewFilterImpl::savedValuesThatAreNoneBecomeTheFirst()
{
    PanelPlan shown;
    for (const int order : {-1, 8, 1000}) {
        shown.panel.setChoices({.nameOrder = 3});
        shown.panel.setChoices({.nameOrder = order});
        QCOMPARE(shown.names->currentIndex(), 0);
        QCOMPARE(shown.canvas.nameOrder(), 0);
    }
}

void TestKWFloorPlanViewFilterImpl::genderAndGroupsOfAFileAreBothShown()
{
    PanelPlan shown;
    shown.panel.setChoices({.gender = true, .groups = true});
    QCOMPARE(shown.checked(), s("gender groups"));
    QCOMPARE(shownFlags(), s("gender groups"));
    shown.check("m_genderCheckBox");
    shown.check("m_genderCheckBox");
    QCOMPARE(shown.checked(), s("gender"));
}

void TestKWFloorPlanViewFilterImpl::whatIsRestoredIsToldToNobody()
{
    PanelPlan shown;
    const QSignalSpy names(shown.names, &QComboBox::currentIndexChanged);
    const QSignalSpy seats(shown.seats, &QComboBox::currentIndexChanged);
    const QSignalSpy age(shown.box("m_ageCheckBox"), &QCheckBox::toggled);
    shown.panel.setChoices({.nameOrder = 2, .seats = KWCanvas::Circular, .age = true});
    QCOMPARE(names.size() + seats.size() + age.size(), 0);
    QVERIFY(!shown.view.signalsBlocked());
}

void TestKWFloorPlanViewFilterImpl::theSlotsWithoutAnEffectSaySo()
{
    PanelPlan shown;
    QTest::ignoreMessage(QtWarningMsg, "KWFloorPlanViewFilter::fontChanged(): Not implemented yet");
    shown.panel.fontChanged();
    QTest::ignoreMessage(QtWarningMsg,
                         "KWFloorPlanViewFilter::showSeats(bool): Not implemented yet");
    shown.panel.showSeats(true);
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aLanguageChangeBringsTheTextsAgainAndKeepsTheChoices()
{
    PanelPlan shown;
    shown.panel.setChoices({.nameOrder = 7, .seats = KWCanvas::Circular});
    const BracketTranslator brackets;
    QTRY_COMPARE(child<QLabel>(shown.panel, "m_nameOrderLabel")->text(), s("[&Guest name:]"));
    QCOMPARE(shown.names->currentText(), s("[Seat reference]"));
    QCOMPARE(shown.names->count(), 8);
    QCOMPARE(shown.seats->currentText(), s("[circular]"));
    QCOMPARE(shown.button("m_zoomInButton")->toolTip(), s("[Zoom in]"));
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::thePanelMayGoBeforeOrAfterTheFloorPlan()
{
    KWDocument plan;
    using Pair = KWViewAndFilter<KWCanvasView, Panel>;
    {
        Pair pair(nullptr, &plan, false);
        KWTable *table = addTable(plan, "T", KWTable::Circular, 4);
        pair.view()->showTable(table);
        QCOMPARE(pair.filter()->y() <= pair.view()->y(), true);
    }
    auto view = std::make_unique<KWCanvasView>(nullptr, &plan);
    const Panel panel(nullptr, view.get());
    view->canvas()->setSelected(view->canvas()->itemOfTable(plan.tableAt(0)));
    QVERIFY(child<QToolButton>(panel, "m_rotateButton")->isEnabled());
    view.reset();
}

GUI_TEST_MAIN(TestKWFloorPlanViewFilterImpl)
#include "tst_kwfloorplanviewfilterimpl.moc"
