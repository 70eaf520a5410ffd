#include "gui/dialogs/kwtabledlgimpl.h"
#include "gui/exchange/kwdrag.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/panes/kwguestslistview.h"
#include "gui/shell/kwlefttab.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QSpinBox>

// The main window as dialogs for tables use it.

class TestEditTable : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theDialogOfATableOpensOverTheWindow()
    {
        OpenWindow open;
        KWTable *table = addTable(open.plan(), "Top", KWTable::Circular, 8);
        ModalUser user;
        QString caption;
        const QWidget *parent = nullptr;
        user.onDialog<KWTableDlgImpl>([&](KWTableDlgImpl &dialog) {
            caption = dialog.windowTitle();
            parent = dialog.parentWidget();
            QTest::keyClicks(dialog.focusWidget(), s("Family"));
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        open.window.editTable(table);
        QCOMPARE(caption, s("Table properties"));
        QCOMPARE(parent, &open.window);
        QCOMPARE(table->name(), s("Family"));
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo Edit table"));
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().tableAt(0)->name(), s("Top"));
    }

    void insertedTablesStandClearOfEachOtherInTheMiddleOfTheViewAndGoWithOneUndo()
    {
        OpenWindow open;
        open.plan().setRoomXSize(10);
        open.plan().setRoomYSize(8);
        open.plan().setChairSize(0.5);
        ModalUser user;
        user.onDialog<KWTableDlgImpl>([](KWTableDlgImpl &dialog) {
            dialog.findChild<QSpinBox *>(s("m_numTablesSpinBox"))->setValue(2);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        KWCanvasView *view = open.window.panes()->floorPlan();
        view->canvas()->resizeToRoom();
        const QPoint middle = open.window.floorPlanCentre();
        QVERIFY(view->sceneRect().contains(middle));
        open.run("m_insertNewHeadTableAction");
        QCOMPARE(open.plan().tableCount(), 2);
        QCOMPARE(open.plan().tableAt(0)->position(), middle);
        const KWCanvas &canvas = *view->canvas();
        QVERIFY(!canvas.itemOfTable(open.plan().tableAt(0))
                     ->collidesWithItem(canvas.itemOfTable(open.plan().tableAt(1))));
        QCOMPARE(canvas.selected(), canvas.itemOfTable(open.plan().tableAt(1)));
        QCOMPARE(open.window.focusWidget(), view);
        QCOMPARE(open.window.activeView(), view);
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo New table(s)"));
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().tableCount(), 0);
    }

    void movingATableAndPressingUndoDoesNotBringItBack()
    {
        OpenWindow open;
        KWTable *table = addTable(open.plan(), "Top", KWTable::Circular, 8);
        open.plan().moveTable(table, 600, 500);
        open.plan().announceRefresh();
        KWCanvasView *view = open.window.panes()->floorPlan();
        const auto placeOf = [view](const QPointF &point) { return view->mapFromScene(point); };
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, placeOf({600, 500}));
        const QPoint target = placeOf({900, 800});
        QMouseEvent move(QEvent::MouseMove, target, view->viewport()->mapToGlobal(target),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(view->viewport(), &move);
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, target);
        const QPoint moved = table->position();
        QVERIFY(moved != QPoint(600, 500));
        QVERIFY(!open.action("m_editUndoAction")->isEnabled());
    }

    void aGuestDroppedFromTheListHasTheCommandsOfASeatedGuestAtOnce()
    {
        OpenWindow open;
        KWGuest *ann = addGuest(open.plan(), {"Ann"});
        KWTable *table = addTable(open.plan(), "Top", KWTable::Circular, 8);
        open.plan().moveTable(table, 600, 500);
        open.plan().announceRefresh();
        KWGuestsListView *list = open.window.panes()->leftTab()->guestsView();
        list->setCurrentItem(list->topLevelItem(0));
        list->setThisViewActive();
        QVERIFY(!open.action("m_editUnassignSeatAction")->isEnabled());
        KWCanvasView *view = open.window.panes()->floorPlan();
        const QPoint place = view->mapFromScene(view->canvas()->itemOfSeat(table, 2)->pos());
        const std::unique_ptr<KWDrag> drag(new KWDrag(&open.plan(), {ann}, view->viewport()));
        QDragEnterEvent enter(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view->viewport(), &enter);
        QDropEvent drop(place, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view->viewport(), &drop);
        QVERIFY(open.plan().findGuest(ann));
        QCOMPARE(open.window.activeView(), list);
        QVERIFY(open.action("m_editUnassignSeatAction")->isEnabled());
        QVERIFY(open.action("m_showGuestInPlanAction")->isEnabled());
    }

    void eachInsertCommandOpensTheDialogOfItsShape_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("shape");
        QTest::newRow("circular") << s("m_insertNewCircluarTableAction") << int(KWTable::Circular);
        QTest::newRow("rectangular")
            << s("m_insertNewRectTableAction") << int(KWTable::Rectangular);
        QTest::newRow("head") << s("m_insertNewHeadTableAction") << int(KWTable::HeadTop);
        QTest::newRow("custom") << s("m_insertNewCustomTableAction") << int(KWTable::Custom);
    }

    void eachInsertCommandOpensTheDialogOfItsShape()
    {
        QFETCH(QString, command);
        OpenWindow open;
        ModalUser user;
        user.onDialog<KWTableDlgImpl>([](KWTableDlgImpl &dialog) { dialog.accept(); });
        open.run(qPrintable(command));
        QCOMPARE(open.plan().tableCount(), 1);
        QTEST(open.plan().tableAt(0)->shape(), "shape");
    }

    void theFloorPlanFollowsUndoAndANewPlan()
    {
        OpenWindow open;
        KWTable *table = addTable(open.plan(), "Top", KWTable::Circular, 8);
        const KWCanvas &canvas = *open.window.panes()->floorPlan()->canvas();
        QVERIFY(canvas.itemOfTable(table));
        open.window.saveUndoState(s("Rotate"));
        open.plan().deleteTable(table, true);
        QCOMPARE(canvas.items().size(), 1);
        open.run("m_editUndoAction");
        QVERIFY(canvas.itemOfTable(open.plan().tableAt(0)));
        open.plan().setModified(false);
        open.run("m_fileNewAction");
        // The room is there for the next tables.
        QCOMPARE(canvas.items().size(), 1);
    }
};

REGISTER_TEST(TestEditTable)
#include "tst_edittable.moc"
