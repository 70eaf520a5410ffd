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

    void insertedTablesStandInTheMiddleOfTheRoomAndGoWithOneUndo()
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
        KWTableDlgImpl(&open.window, &open.plan(), KWTable::HeadTop).exec();
        QCOMPARE(open.plan().tableCount(), 2);
        QCOMPARE(open.plan().tableAt(0)->position(), QPoint(1000, 800));
        QCOMPARE(open.action("m_editUndoAction")->text(), s("&Undo New table(s)"));
        open.run("m_editUndoAction");
        QCOMPARE(open.plan().tableCount(), 0);
    }

    void theMiddleOfAnAbsurdRoomIsAPoint_data()
    {
        QTest::addColumn<double>("room");
        QTest::addColumn<double>("chair");
        QTest::addColumn<int>("middle");
        QTest::newRow("no chairs") << 20.0 << 0.0 << 1000000;
        QTest::newRow("endless") << 1e300 << 0.5 << 1000000;
        QTest::newRow("negative") << -20.0 << 0.5 << 0;
        QTest::newRow("no number") << qQNaN() << 0.5 << 0;
    }

    void theMiddleOfAnAbsurdRoomIsAPoint()
    {
        QFETCH(double, room);
        QFETCH(double, chair);
        QFETCH(int, middle);
        OpenWindow open;
        open.plan().setRoomXSize(room);
        open.plan().setChairSize(chair);
        QCOMPARE(open.window.floorPlanCentre().x(), middle);
    }
};

GUI_TEST_MAIN(TestEditTable)
#include "tst_edittable.moc"
