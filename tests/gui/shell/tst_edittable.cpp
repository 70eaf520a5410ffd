#include "kwcanvasview.h"
#include "kwfloorplanitem.h"
#include "kwtabledlgimpl.h"
#include "modaluser.h"
#include "openwindow.h"
#include "testplan.h"

#include <QLineEdit>

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

GUI_TEST_MAIN(TestEditTable)
#include "tst_edittable.moc"
