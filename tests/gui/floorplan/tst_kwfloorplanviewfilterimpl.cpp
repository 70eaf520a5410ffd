#include "core/model/kwviewsettings.h"
#include "gui/floorplan/kwfloorplantext.h"
#include "gui/framework/kwviewandfilter.h"
#include "support/gui/dialogchecks.h"
#include "support/gui/guestform.h"
#include "support/gui/panelplan.h"
#include "support/registeredtest.h"

using Panel = KWFloorPlanViewFilterImpl;
using Look = KWFloorPlanLook;

// The form of the panel, and what is chosen in it.

class TestKWFloorPlanViewFilterImpl : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void thePanelIsAsListed_data();
    void thePanelIsAsListed();
    void theNamesHaveTheirOrdersAndSeatReference();
    void theSeatsHaveTheirDisplays();
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
    QTEST(int(KWCanvas::display().display), "number");
    QTEST(shown.enabled(), "enabled");
    QCOMPARE(shown.checked(), left);
    QCOMPARE(shownFlags(), left);
    GuestForm::pick(shown.seats, "circular+name");
    QCOMPARE(KWCanvas::display().display, KWCanvas::CircularName);
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

void TestKWFloorPlanViewFilterImpl::whatWasSavedIsShownWithoutChangingThePlan()
{
    PanelPlan shown;
    const Look look{
        .nameOrder = 7,
        .seats = {.display = KWCanvas::Circular, .gender = true, .vip = true, .locked = true}};
    shown.panel.setLook(look);
    QVERIFY(!shown.plan.isModified());
    QCOMPARE(shown.names->currentText(), s("Seat reference"));
    QCOMPARE(shown.canvas.nameOrder(), 7);
    QCOMPARE(shown.seats->currentText(), s("circular"));
    QCOMPARE(KWCanvas::display().display, KWCanvas::Circular);
    QCOMPARE(shown.checked(), s("gender vip locked"));
    QCOMPARE(shownFlags(), s("gender vip locked"));
    QVERIFY(shown.panel.look() == look);
    QVERIFY(shown.canvas.look() == look);
    shown.panel.setLook({.seats = {.age = true, .groups = true}});
    QCOMPARE(shown.names->currentIndex(), 0);
    QCOMPARE(KWCanvas::display().display, KWCanvas::CircularName);
    QCOMPARE(shown.checked(), s("age groups"));
    QCOMPARE(shownFlags(), s("age groups"));
    QVERIFY(!shown.plan.isModified());
}

void TestKWFloorPlanViewFilterImpl::aSavedSeatDisplayGreysWhatItDoesNotShow()
{
    PanelPlan shown;
    shown.panel.setLook({.seats = {.display = KWCanvas::None}});
    QCOMPARE(shown.enabled(), QString());
    shown.panel.setLook({.seats = {.display = KWCanvas::NameOnly}});
    QCOMPARE(shown.enabled(), s("vip locked"));
    shown.panel.setLook({});
    QCOMPARE(shown.enabled(), s("gender age groups vip locked"));
}

void TestKWFloorPlanViewFilterImpl::savedValuesThatAreNoneBecomeTheFirst()
{
    PanelPlan shown;
    for (const int order : {-1, 8, 1000}) {
        shown.panel.setLook({.nameOrder = 3, .seats = {}});
        KWViewSettings settings;
        settings.floor_plan_name_order = order;
        shown.panel.readSettings(settings);
        QCOMPARE(shown.names->currentIndex(), 0);
        QCOMPARE(shown.canvas.nameOrder(), 0);
    }
}

void TestKWFloorPlanViewFilterImpl::genderAndGroupsOfAFileAreBothShown()
{
    PanelPlan shown;
    shown.panel.setLook({.seats = {.gender = true, .groups = true}});
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
    shown.panel.setLook({.nameOrder = 2, .seats = {.display = KWCanvas::Circular, .age = true}});
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
    shown.panel.setLook({.nameOrder = 7, .seats = {.display = KWCanvas::Circular}});
    const BracketTranslator brackets;
    QTRY_COMPARE(child<QLabel>(shown.panel, "m_nameOrderLabel")->text(), s("[&Guest name:]"));
    QCOMPARE(shown.names->currentText(), s("[Seat reference]"));
    QCOMPARE(shown.names->count(), 8);
    QCOMPARE(shown.names->itemText(0), s("[DisplayName]"));
    QCOMPARE(shown.names->itemText(6), s("[Title F. Last]"));
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

REGISTER_TEST(TestKWFloorPlanViewFilterImpl)
#include "tst_kwfloorplanviewfilterimpl.moc"
