#include "gui/dialogs/kwdimensionsdlgimpl.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/canvasplan.h"
#include "support/gui/dialogtest.h"
#include "support/gui/guestform.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"

#include <QMenu>

namespace {

using Look = KWFloorPlanLook;

/// The window with two who should sit next to each other and do not.
struct FloorPlanWindow : OpenWindow
{
    FloorPlanWindow()
    {
        resetSeats(canvas());
        KWTable *table = addTable(plan(), "T", KWTable::Circular, 4);
        plan().moveTable(table, 500, 400);
        for (const char *name : {"Ann", "Bob"})
            addGuest(plan(), {name});
        plan().assignGuest(plan().guestAt(0), table, 0, true);
        plan().assignGuest(plan().guestAt(1), table, 2, true);
        plan().setAffinity(plan().guestAt(0), plan().guestAt(1), KWScore::Loves, true);
        plan().setModified(false);
    }
    ~FloorPlanWindow() { resetSeats(canvas()); }

    KWTopTab &tab() { return *window.panes()->topTab(); }
    KWCanvasView &view() { return *tab().floorPlanView(); }
    KWCanvas &canvas() { return *view().canvas(); }
    KWFloorPlanViewFilterImpl &panel() { return *tab().floorPlanFilter(); }
    QToolButton *button(const char *name) { return child<QToolButton>(panel(), name); }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    QString lines() { return lineColours(canvas()); }

    void save(const QString &path) { window.fileCommands()->savePlan(path); }
    void load(const QString &path) { window.fileCommands()->openPlan(path); }

    /// Whether the buttons are enabled as the floor plan can be zoomed: "in out" if so.
    QString zoomButtons()
    {
        QStringList names;
        for (const auto &[name, can] :
             {std::pair(s("in"), view().canZoomIn()), std::pair(s("out"), view().canZoomOut())}) {
            const bool enabled =
                button(name == s("in") ? "m_zoomInButton" : "m_zoomOutButton")->isEnabled();
            names.append(enabled == can ? name : s("wrong: ") + name);
        }
        return names.join(u' ');
    }
};

/// "7 1 gender vip"
QString text(const Look &look)
{
    QStringList all{QString::number(look.nameOrder), QString::number(look.seats.display)};
    const auto note = [&all](bool on, const char *name) {
        if (on)
            all.append(s(name));
    };
    note(look.seats.gender, "gender");
    note(look.seats.age, "age");
    note(look.seats.vip, "vip");
    note(look.seats.groups, "groups");
    note(look.seats.locked, "locked");
    return all.join(u' ');
}
} // namespace

using Loss = std::function<void(FloorPlanWindow &)>;

Q_DECLARE_METATYPE(Look)
Q_DECLARE_METATYPE(Loss)

class TestFloorPlanPane : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void thePanelStandsAboveTheFloorPlanInTheTopPane()
    {
        FloorPlanWindow open;
        QCOMPARE(open.tab().indexOf(open.tab().floorPlanPage()), 0);
        QCOMPARE(open.tab().tabText(0), s("Floor plan"));
        QCOMPARE(open.tab().currentView(), &open.view());
        QCOMPARE(open.view().objectName(), s("Floor plan"));
        QVERIFY(open.panel().isVisible());
        QVERIFY(open.panel().y() < open.view().y());
        QVERIFY(open.view().height() > open.panel().height());
        QVERIFY(open.button("m_expandButton")->isVisible());
    }

    void whatsThisTellsOfTheButtons()
    {
        FloorPlanWindow open;
        QCOMPARE(open.button("m_allButton")->whatsThis(), s("Hold down to show all affinities"));
    }

    void thePanelsChoicesComeBackFromTheFile_data()
    {
        QTest::addColumn<Look>("look");
        const auto row = [](const char *name, const Look &look) { QTest::newRow(name) << look; };
        row("order of names", {.nameOrder = 5, .seats = {}});
        row("seat reference", {.nameOrder = 7, .seats = {}});
        row("seats", {.seats = {.display = KWCanvas::NameOnly}});
        row("gender", {.seats = {.gender = true}});
        row("age", {.seats = {.age = true}});
        row("VIP", {.seats = {.vip = true}});
        row("groups", {.seats = {.groups = true}});
        row("locked", {.seats = {.locked = true}});
    }

    void thePanelsChoicesComeBackFromTheFile()
    {
        QFETCH(Look, look);
        const PlanFolder folder;
        const QString path = folder.path(s("plan.kw"));
        FloorPlanWindow open;
        open.panel().setLook(look);
        open.save(path);
        open.run("m_fileNewAction");
        // A new plan is shown as the one before it.
        QCOMPARE(text(open.panel().look()), text(look));
        open.panel().setLook({});
        open.load(path);
        QCOMPARE(text(open.panel().look()), text(look));
        QCOMPARE(open.canvas().nameOrder(), look.nameOrder);
        QVERIFY(open.canvas().look() == look);
        QVERIFY(!open.plan().isModified());
    }

    void whatAPersonChoosesIsAskedAboutAndSaved()
    {
        const PlanFolder folder;
        const QString path = folder.path(s("plan.kw"));
        FloorPlanWindow open;
        open.save(path);
        QVERIFY(!open.plan().isModified());
        open.click("m_expandButton");
        QVERIFY(!open.plan().isModified());
        GuestForm::pick(child<QComboBox>(open.panel(), "m_nameOrderComboBox"), "Last, First");
        GuestForm::pick(child<QComboBox>(open.panel(), "m_seatsComboBox"), "circular");
        child<QCheckBox>(open.panel(), "m_groupsCheckBox")->click();
        QVERIFY(open.plan().isModified());
        open.prompts.answer(s("&Save"));
        open.run("m_fileNewAction");
        open.panel().setLook({});
        open.load(path);
        QCOMPARE(text(open.panel().look()), s("1 1 groups"));
        QVERIFY(!open.plan().isModified());
    }

    void anOpenedPlanIsNotModifiedThoughItLooksOtherwise()
    {
        const PlanFolder folder;
        FloorPlanWindow open;
        open.panel().setLook({.nameOrder = 3, .seats = {.display = KWCanvas::None}});
        open.load(folder.writePlan(s("plain.kw")));
        QCOMPARE(text(open.panel().look()), s("0 0"));
        QVERIFY(!open.plan().isModified());
        QVERIFY(open.window.close());
    }

    void theZoomButtonsAreRightAfterEachChange()
    {
        const PlanFolder folder;
        FloorPlanWindow open;
        const QString right = s("in out");
        QCOMPARE(open.zoomButtons(), right);
        open.window.resize(1200, 900);
        QTRY_VERIFY(open.view().width() > 700);
        QCOMPARE(open.zoomButtons(), right);
        open.save(folder.path(s("plan.kw")));
        open.load(folder.writePlan(s("empty.kw")));
        QCOMPARE(open.zoomButtons(), right);
        open.load(folder.path(s("plan.kw")));
        QCOMPARE(open.zoomButtons(), right);
        // The only table fills the pane, and more than the pane is left of the room.
        QVERIFY(open.button("m_zoomOutButton")->isEnabled());
        open.run("m_fileNewAction");
        QCOMPARE(open.zoomButtons(), right);
        open.click("m_expandButton");
        QCoreApplication::processEvents();
        QCOMPARE(open.zoomButtons(), right);
        open.run("m_viewBottomPaneAction");
        QCoreApplication::processEvents();
        QCOMPARE(open.zoomButtons(), right);
        for (int i = 0; i < 30; ++i) {
            open.click("m_zoomOutButton");
            QCOMPARE(open.zoomButtons(), right);
        }
        QVERIFY(!open.button("m_zoomOutButton")->isEnabled());
        open.window.resize(800, 600);
        QTRY_VERIFY(open.button("m_zoomOutButton")->isEnabled());
        QCOMPARE(open.zoomButtons(), right);
    }

    void undoBringsTheSizeOfTheRoomBack()
    {
        FloorPlanWindow open;
        const QSize before = open.canvas().canvasSize();
        open.click("m_expandButton");
        ModalUser user;
        user.onDialog<KWDimensionsDlgImpl>([](KWDimensionsDlgImpl &dialog) {
            child<QLineEdit>(dialog, "m_xEdit")->setText(s("30"));
            child<QLineEdit>(dialog, "m_seatWidthEdit")->setText(s("0.5"));
            QTest::mouseClick(child<QPushButton>(dialog, "m_okPushButton"), Qt::LeftButton);
        });
        open.click("m_dimensionsButton");
        QCOMPARE(open.canvas().canvasSize(), QSize(6000, 4000));
        QVERIFY(open.plan().isModified());
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo Change dimensions"));
        open.run("m_editUndoAction");
        QCOMPARE(open.canvas().canvasSize(), before);
        QCOMPARE(open.zoomButtons(), s("in out"));
        open.run("m_editRedoAction");
        QCOMPARE(open.canvas().canvasSize(), QSize(6000, 4000));
    }

    void theRotateButtonDoesWhatTheCommandDoesAndIsUndone()
    {
        FloorPlanWindow open;
        KWTable *table = open.plan().tableAt(0);
        QVERIFY(!open.button("m_rotateButton")->isEnabled());
        open.view().showTable(table);
        open.click("m_rotateButton");
        QCOMPARE(seating(*table), s("- Ann - Bob"));
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo Rotate"));
        open.run("m_editUndoAction");
        QCOMPARE(seating(*open.plan().tableAt(0)), s("Ann - Bob -"));
        QVERIFY(!open.button("m_rotateButton")->isEnabled());
    }

    void noLinesAreLeftBehindByAHeldButton_data()
    {
        QTest::addColumn<Loss>("lose");
        QTest::newRow("the pane is hidden")
            << Loss([](FloorPlanWindow &open) { open.run("m_viewTopPaneAction"); });
        QTest::newRow("another page comes to the front") << Loss([](FloorPlanWindow &open) {
            auto *other = new QWidget;
            open.tab().addTab(other, s("Other"));
            open.tab().setCurrentWidget(other);
        });
        QTest::newRow("another window gets the keys") << Loss([](FloorPlanWindow &) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        });
        QTest::newRow("a question comes up") << Loss([](FloorPlanWindow &open) {
            ModalUser user;
            user.onDialog<QDialog>([&open](QDialog &dialog) {
                QCOMPARE(open.lines(), QString());
                dialog.reject();
            });
            open.run("m_fileInfo");
        });
        QTest::newRow("a menu takes the release") << Loss([](FloorPlanWindow &open) {
            QMenu *menu = open.window.findChild<QMenuBar *>()->actions().at(1)->menu();
            menu->popup(open.window.pos());
            QVERIFY(QTest::qWaitForWindowExposed(menu));
            QTest::mouseRelease(menu->windowHandle(), Qt::LeftButton, {}, {-5, -5});
            QCoreApplication::processEvents();
            menu->close();
        });
        QTest::newRow("a new plan")
            << Loss([](FloorPlanWindow &open) { open.run("m_fileNewAction"); });
    }

    void noLinesAreLeftBehindByAHeldButton()
    {
        QFETCH(Loss, lose);
        FloorPlanWindow open;
        open.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&open.window));
        QTest::mousePress(open.button("m_conflictsButton"), Qt::LeftButton);
        QCOMPARE(open.lines(), s("#ff0000"));
        lose(open);
        QCOMPARE(open.lines(), QString());
    }
};

REGISTER_TEST(TestFloorPlanPane)
#include "tst_floorplanpane.moc"
