#include "gui/framework/kwviewandfilter.h"
#include "gui/shell/kwbottomtab.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwstatusbar.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/dialogtest.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QLineEdit>
#include <QProgressBar>
#include <QSplitter>
#include <QToolButton>

namespace {

class FakeFilter : public QWidget
{
public:
    FakeFilter(QWidget *parent, QWidget *view)
        : QWidget(parent)
        , m_view(view)
    {
    }
    void setView(QWidget *view) { m_view = view; }
    QWidget *view() const { return m_view; }

private:
    QWidget *m_view;
};

/// A view as a pair makes it.
class PairedView : public FakeView
{
public:
    PairedView(QWidget *parent, KWDocument *document)
        : FakeView(document)
    {
        setParent(parent);
    }
};

using Pair = KWViewAndFilter<PairedView, FakeFilter>;

QPixmap blueSquare()
{
    QPixmap icon(16, 16);
    icon.fill(Qt::blue);
    return icon;
}

const QLabel *viewIcon(const OpenWindow &open)
{
    for (const QLabel *label : open.window.findChild<KWStatusBar *>()->findChildren<QLabel *>()) {
        if (label->text().isEmpty())
            return label;
    }
    return nullptr;
}
} // namespace

class TestPanes : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theWindowHasAPaneToTheLeftAndTwoOneAboveTheOther()
    {
        OpenWindow open;
        auto *outer = qobject_cast<QSplitter *>(open.window.centralWidget());
        QVERIFY(outer);
        QCOMPARE(outer->orientation(), Qt::Horizontal);
        QVERIFY(!outer->childrenCollapsible());
        QCOMPARE(outer->widget(0)->objectName(), s("KWLeftTab"));
        auto *inner = qobject_cast<QSplitter *>(outer->widget(1));
        QVERIFY(inner);
        QCOMPARE(inner->orientation(), Qt::Vertical);
        QVERIFY(!inner->childrenCollapsible());
        QCOMPARE(inner->widget(0)->objectName(), s("KWTopTab"));
        QCOMPARE(inner->widget(1)->objectName(), s("KWBottomTab"));
        const QList<int> sizes = inner->sizes();
        QVERIFY2(qAbs(2 * sizes[0] - 3 * sizes[1]) <= 5,
                 qPrintable(s("%1 and %2").arg(sizes[0]).arg(sizes[1])));
    }

    void noOneShowsTheTrace()
    {
        OpenWindow open;
        QVERIFY(!open.window.panes()->topTab()->debugView());
    }

    void thePageOfAPairGivesItsView()
    {
        OpenWindow open;
        KWBottomTab *tab = open.window.panes()->bottomTab();
        QVERIFY(!tab->currentView());
        auto *pair = new Pair(tab, open.window.document(), false);
        tab->addPage(pair, blueSquare(), "Guests");
        QCOMPARE(tab->currentView(), pair->view());
        QCOMPARE(tab->views(), QList<KWView *>{pair->view()});
        QVERIFY(!tab->tabIcon(0).isNull());
        QCOMPARE(pair->view()->objectName(), s("Guests"));
        auto *other = new QWidget;
        tab->addTab(other, s("Other"));
        QVERIFY(!KWCloseableTabWidget::viewOn(other));
    }

    void theCloseButtonHidesThePaneAndClearsItsAction_data()
    {
        QTest::addColumn<QByteArray>("tab");
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QString>("pane");
        QTest::addColumn<QString>("hide");
        QTest::newRow("left") << QByteArray("KWLeftTab") << QByteArray("m_viewLeftPaneAction")
                              << s("Left pane") << s("Hide left pane");
        QTest::newRow("top") << QByteArray("KWTopTab") << QByteArray("m_viewTopPaneAction")
                             << s("Top pane") << s("Hide top pane");
        QTest::newRow("bottom") << QByteArray("KWBottomTab") << QByteArray("m_viewBottomPaneAction")
                                << s("Bottom pane") << s("Hide bottom pane");
    }

    void theCloseButtonHidesThePaneAndClearsItsAction()
    {
        QFETCH(QByteArray, tab);
        QFETCH(QByteArray, action);
        OpenWindow open;
        auto *pane = open.window.findChild<KWCloseableTabWidget *>(s(tab));
        open.addView(pane, s("One"));
        auto *second = open.addView(pane, s("Two"));
        pane->setCurrentWidget(second);
        auto *button = qobject_cast<QToolButton *>(pane->cornerWidget(Qt::TopRightCorner));
        QVERIFY(button->autoRaise());
        QVERIFY(!button->icon().isNull());
        QTEST(pane->accessibleName(), "pane");
        QTEST(button->accessibleName(), "hide");
        QCOMPARE(button->whatsThis(),
                 s("<b>Hide pane</b><br/>Click this button to hide the pane.<br/>Use the "
                   "<b>View</b> menu to show it again."));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!pane->isVisible());
        QVERIFY(!open.action(action)->isChecked());
        open.run(action);
        QVERIFY(pane->isVisible());
        QVERIFY(open.action(action)->isChecked());
        QCOMPARE(pane->currentWidget(), second);
        open.run(action);
        QVERIFY(!pane->isVisible());
    }

    void minimisingTheWindowDoesNotTouchTheActions()
    {
        OpenWindow open;
        KWLeftTab *tab = open.window.panes()->leftTab();
        QSignalSpy spy(tab, &KWCloseableTabWidget::visibilityChange);
        // What the window system sends to every widget of a window that it minimises.
        QHideEvent hidden;
        QSpontaneKeyEvent::setSpontaneous(&hidden);
        QVERIFY(qApp->notify(tab, &hidden));
        QCOMPARE(spy.size(), 0);
        open.window.showMinimized();
        open.window.showNormal();
        QVERIFY(open.action("m_viewLeftPaneAction")->isChecked());
        QVERIFY(open.action("m_viewTopPaneAction")->isChecked());
        QVERIFY(open.action("m_viewBottomPaneAction")->isChecked());
        QVERIFY(tab->isVisible());
    }

    void theActiveViewShowsItsIconOnTheStatusBar()
    {
        OpenWindow open;
        const QLabel *icon = viewIcon(open);
        QVERIFY(!icon->isVisible());
        FakeView *view = open.addView(open.window.panes()->leftTab(), s("Guests"));
        open.window.setActiveView(view);
        QVERIFY(icon->isVisible());
        QCOMPARE(icon->pixmap().toImage().pixelColor(8, 8), QColor(Qt::blue));
        FakeView bare(open.window.document(), s("bare"));
        open.window.setActiveView(&bare);
        QVERIFY(!icon->isVisible());
        open.window.setActiveView(view);
        open.window.setActiveView(nullptr);
        QVERIFY(!icon->isVisible());
    }

    void theCloseButtonFollowsANewLanguage()
    {
        OpenWindow open;
        const auto *button = qobject_cast<QToolButton *>(
            open.window.panes()->topTab()->cornerWidget(Qt::TopRightCorner));
        const BracketTranslator brackets;
        QTRY_COMPARE(button->accessibleName(), s("[Hide top pane]"));
        QVERIFY(button->whatsThis().startsWith(s("[<b>Hide pane</b>")));
    }

    void anotherTabMakesItsViewActive()
    {
        OpenWindow open;
        KWPanes *panes = open.window.panes();
        FakeView *guests = open.addView(panes->leftTab(), s("Guests"));
        FakeView *groups = open.addView(panes->leftTab(), s("Groups"));
        FakeView *plan = open.addView(panes->topTab(), s("Floor plan"));
        panes->leftTab()->setCurrentWidget(groups);
        QCOMPARE(open.window.activeView(), groups);
        panes->leftTab()->setCurrentWidget(guests);
        QCOMPARE(open.window.activeView(), guests);
        FakeView *chart = open.addView(panes->topTab(), s("Table chart"));
        panes->topTab()->setCurrentWidget(chart);
        QCOMPARE(open.window.activeView(), chart);
        open.window.updateActionsOnPaneViewChange(plan);
        QCOMPARE(open.window.activeView(), plan);
    }

    void theViewsGoBeforeThePlan()
    {
        /// Looks into the plan as it goes.
        class LastLook : public FakeView
        {
        public:
            LastLook(KWDocument *document, QString *name)
                : FakeView(document, s("Guests"))
                , m_name(name)
            {
            }
            ~LastLook() override { *m_name = document()->event(); }

        private:
            QString *m_name;
        };
        QString name;
        {
            OpenWindow open;
            auto *view = new LastLook(open.window.document(), &name);
            open.window.panes()->leftTab()->addPage(view, blueSquare(), "Guests");
            open.window.setActiveView(view);
            open.plan().setEvent(s("Midsummer"));
        }
        QCOMPARE(name, s("Midsummer"));
    }

    void aPageOfNeitherPaneGivesNoActiveView()
    {
        OpenWindow open;
        FakeView *proximity = open.addView(open.window.panes()->bottomTab(), s("Proximity"));
        FakeView *guests = open.addView(open.window.panes()->leftTab(), s("Guests"));
        open.window.setActiveView(guests);
        open.window.updateActionsOnPaneViewChange(proximity);
        QVERIFY(!open.window.activeView());
        open.window.updateActionsOnPaneViewChange(nullptr);
        QVERIFY(!open.window.activeView());
    }

    void theTabKeyMakesTheViewThatItReachesActive()
    {
        OpenWindow open;
        FakeView *first = open.addView(open.window.panes()->leftTab(), s("Guests"));
        FakeView *second = open.addView(open.window.panes()->topTab(), s("Floor plan"));
        open.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&open.window));
        first->setFocus();
        open.window.setActiveView(nullptr);
        for (int i = 0; i < 10 && QApplication::focusWidget() != second; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), second);
        QCOMPARE(open.window.activeView(), second);
    }

    void theViewWithTheKeyboardIsActiveHoweverItCame()
    {
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        KWGuestsListView *list = open.window.panes()->leftTab()->guestsView();
        KWCanvasView *plan = open.window.panes()->floorPlan();
        plan->setFocus();
        QCOMPARE(open.window.activeView(), plan);
        list->setFocus();
        QCOMPARE(open.window.activeView(), list);
        // Wherever in the view it is.
        open.window.setActiveView(nullptr);
        QLineEdit editor(list->viewport());
        editor.show();
        editor.setFocus();
        QCOMPARE(open.window.activeView(), list);
        plan->setFocus();
        // A box above the list is not the list.
        open.window.panes()->leftTab()->guestsFilter()->setFocus();
        QCOMPARE(open.window.activeView(), plan);
        // A view of another window is none of these.
        FakeView other(&open.plan());
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        other.setFocus();
        QCOMPARE(open.window.activeView(), plan);
    }

    void aViewThatIsHiddenIsNotActiveAnyMore_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::newRow("left") << QByteArray("m_viewLeftPaneAction");
        QTest::newRow("top") << QByteArray("m_viewTopPaneAction");
    }

    void aViewThatIsHiddenIsNotActiveAnyMore()
    {
        QFETCH(QByteArray, action);
        OpenWindow open;
        addGuest(open.plan(), {"Ann"});
        KWGuestsListView *list = open.window.panes()->leftTab()->guestsView();
        list->setCurrentItem(list->topLevelItem(0));
        const bool left = action == "m_viewLeftPaneAction";
        auto *hidden = left ? static_cast<QWidget *>(list) : open.window.panes()->floorPlan();
        hidden->setFocus();
        open.window.setActiveView(dynamic_cast<KWView *>(hidden));
        QCOMPARE(open.action("m_editDeleteAction")->isEnabled(), left);
        // The other pane may go and come meanwhile.
        open.run(left ? "m_viewTopPaneAction" : "m_viewLeftPaneAction");
        QCOMPARE(open.window.activeView(), dynamic_cast<KWView *>(hidden));
        open.run(left ? "m_viewTopPaneAction" : "m_viewLeftPaneAction");
        open.run(action.constData());
        QVERIFY(open.window.activeView() != dynamic_cast<KWView *>(hidden));
        QVERIFY(!open.action("m_editDeleteAction")->isEnabled() || !left);
        QTest::keyClick(&open.window, Qt::Key_Delete);
        QCOMPARE(open.plan().guestCount(), 1);
        QVERIFY(open.prompts.messages.isEmpty());
    }

    void theStatusBarIsAsDescribed()
    {
        OpenWindow open;
        auto *bar = open.window.findChild<KWStatusBar *>(s("KWStatusBar"));
        QVERIFY(bar);
        QCOMPARE(open.window.statusBar(), bar);
        QVERIFY(!bar->isSizeGripEnabled());
        QCOMPARE(bar->whatsThis(), s("<b>Status bar</b><br/>Display status information. "));
        auto *progress = bar->findChild<QProgressBar *>();
        QCOMPARE(progress->maximumWidth(), 200);
        QVERIFY(!progress->isTextVisible());
        QVERIFY(!progress->isVisible());
        open.window.setProgress(40);
        QVERIFY(progress->isVisible());
        QCOMPARE(progress->value(), 40);
        open.window.setProgress(100);
        QVERIFY(!progress->isVisible());
    }

    void aStatusMessageStaysForTwoSeconds()
    {
        OpenWindow open;
        open.window.showStatusMessage(s("Auto layout"));
        QCOMPARE(open.window.statusBar()->currentMessage(), s("Auto layout"));
        // A screen reader says it.
        QCOMPARE(open.window.statusBar()->accessibleName(), s("Auto layout"));
        QTRY_VERIFY_WITH_TIMEOUT(open.window.statusBar()->currentMessage().isEmpty(), 4000);
        QCOMPARE(open.window.statusBar()->accessibleName(), QString());
    }
};

REGISTER_TEST(TestPanes)
#include "tst_panes.moc"
