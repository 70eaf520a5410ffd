#include "gui/framework/kwdebugview.h"
#include "gui/framework/kwviewandfilter.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {
/// A view whose update block is all that matters.
using View = KWDebugView;

/// A panel as the tabs' pages have one.
class Panel : public QWidget
{
public:
    Panel(QWidget *parent, View *view)
        : QWidget(parent)
        , m_view(view)
    {
    }
    void setView(View *view) { m_view = view; }
    View *view() const { return m_view; }

private:
    View *m_view;
};
} // namespace

class TestKWView : public QObject
{
    Q_OBJECT

private slots:
    void theUpdateBlockNests()
    {
        KWDocument plan;
        View view(nullptr, &plan);
        view.beginUpdateBlock();
        QVERIFY(!view.updatesEnabled());
        view.beginUpdateBlock();
        view.endUpdateBlock();
        QVERIFY(!view.updatesEnabled());
        view.endUpdateBlock();
        QVERIFY(view.updatesEnabled());
    }

    void anEndWithoutABeginLeavesUpdatesOn()
    {
        KWDocument plan;
        View view(nullptr, &plan);
        view.endUpdateBlock();
        QVERIFY(view.updatesEnabled());
        view.beginUpdateBlock();
        QVERIFY(view.updatesEnabled());
        view.beginUpdateBlock();
        QVERIFY(!view.updatesEnabled());
    }

    void aViewTakesPartInNothingByItself()
    {
        KWDocument plan;
        View view(nullptr, &plan);
        KWView &part = view;
        const QList<bool> answers{
            part.canDelete(), part.canEditProperties(), part.canUnassign(), part.canSetLocked(),
            part.isLocked(),  part.canSetAccepted(),    part.hasAccepted(), part.canPrint(),
            part.canCopy(),   part.canSetAffinity(),    part.canRotate(),   part.showsSeats()};
        QCOMPARE(answers.count(true), 0);
        QCOMPARE(part.affinityCounts(), KWView::AffinityCounts());
        part.deleteSelection();
        part.editProperties();
        part.unassign();
        part.print();
        part.KWView::copy();
        part.rotate();
        part.setAffinity(0);
        part.setLocked(true);
        part.setAccepted(true);
        part.showGuest(nullptr);
        QVERIFY(!plan.isModified());
    }

    void aViewHasItsDocumentAndMarksItModified()
    {
        KWDocument plan;
        View view(nullptr, &plan);
        QCOMPARE(view.KWView::document(), &plan);
        plan.setModified(false);
        view.markModified();
        QVERIFY(plan.isModified());
    }

    void aViewNeedsARefreshWhenItIsToldSo()
    {
        KWDocument plan;
        View view(nullptr, &plan);
        QVERIFY(!view.needsRefresh());
        view.setNeedsRefresh(true);
        QVERIFY(view.needsRefresh());
        view.setNeedsRefresh(false);
        QVERIFY(!view.needsRefresh());
    }

    void thePanelStandsAboveItsViewUnlessTheViewComesFirst_data()
    {
        QTest::addColumn<bool>("viewFirst");
        QTest::newRow("panel first") << false;
        QTest::newRow("view first") << true;
    }

    void thePanelStandsAboveItsViewUnlessTheViewComesFirst()
    {
        QFETCH(bool, viewFirst);
        KWDocument plan;
        KWViewAndFilter<View, Panel> pair(nullptr, &plan, viewFirst);
        QCOMPARE(pair.view()->KWView::document(), &plan);
        QCOMPARE(pair.filter()->view(), pair.view());
        const QWidget *view = pair.view();
        const QWidget *filter = pair.filter();
        QCOMPARE(view->sizePolicy().verticalStretch(), 1);
        QCOMPARE(filter->sizePolicy().verticalStretch(), 0);
        QCOMPARE(pair.layout()->itemAt(0)->widget(), viewFirst ? view : filter);
        QCOMPARE(pair.layout()->itemAt(1)->widget(), viewFirst ? filter : view);
        const KWViewPage &page = pair;
        QCOMPARE(page.view(), static_cast<KWView *>(pair.view()));
    }
};

REGISTER_TEST(TestKWView)
#include "tst_kwview.moc"
