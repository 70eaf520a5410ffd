#include "gui/framework/kwdebugview.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

class TestKWDebugView : public QObject
{
    Q_OBJECT

private slots:
    void thePaneHasItsNameAndFont()
    {
        KWDocument plan;
        const KWDebugView view(nullptr, &plan);
        QCOMPARE(view.objectName(), s("debug pane"));
        QCOMPARE(view.font().family(), s("courier"));
    }

    void thePaneTakesPartInNoCommand()
    {
        KWDocument plan;
        addGuests(plan, 2);
        plan.setModified(false);
        KWDebugView pane(nullptr, &plan);
        pane.setText(s("a line"));
        pane.selectAll();
        KWView &view = pane;
        QVERIFY(!view.canDelete() && !view.canEditProperties() && !view.canUnassign());
        QVERIFY(!view.canSetLocked() && !view.isLocked());
        QVERIFY(!view.canSetAccepted() && !view.hasAccepted());
        QVERIFY(!view.canPrint() && !view.canCopy() && !view.canSetAffinity());
        QVERIFY(!view.canRotate() && !view.needsRefresh());
        view.deleteSelection();
        view.copy();
        view.setLocked(true);
        view.showGuest(plan.guests().first());
        QCOMPARE(pane.toPlainText(), s("a line"));
        QVERIFY(!plan.isModified());
    }
};

REGISTER_TEST(TestKWDebugView)
#include "tst_kwdebugview.moc"
