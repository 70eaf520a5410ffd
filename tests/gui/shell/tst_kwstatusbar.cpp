#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwstatusbar.h"
#include "support/gui/fakeview.h"
#include "support/gui/openwindow.h"
#include "support/gui/planfolder.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QProgressBar>

namespace {

/// The parts of the window's status bar, all of them in view.
struct Parts
{
    explicit Parts(OpenWindow &open)
        : bar(open.window.findChild<KWStatusBar *>())
        , progress(bar->findChild<QProgressBar *>())
    {
        open.window.setActiveView(open.addView(open.window.panes()->leftTab(), s("Guests")));
        open.window.setProgress(40);
        for (QLabel *label : bar->findChildren<QLabel *>())
            (label->text().isEmpty() ? icon : counts) = label;
    }

    KWStatusBar *bar;
    QProgressBar *progress;
    QLabel *icon = nullptr;
    QLabel *counts = nullptr;
};

/// Counts how often a widget comes into view.
class ShowCounter : public QObject
{
public:
    explicit ShowCounter(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Show;
        return false;
    }
};
} // namespace

class TestKWStatusBar : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void iconCountsAndProgressStandInThisOrder()
    {
        OpenWindow open;
        const Parts parts(open);
        QTRY_VERIFY(parts.icon->geometry().right() < parts.counts->x());
        QTRY_VERIFY(parts.counts->geometry().right() < parts.progress->x());
    }

    void iconAndCountsAreCentred()
    {
        OpenWindow open;
        const Parts parts(open);
        QCOMPARE(parts.icon->alignment(), Qt::AlignCenter);
        QCOMPARE(parts.counts->alignment(), Qt::AlignCenter);
    }

    void theProgressIsInViewWhileAPlanIsRead()
    {
        const PlanFolder folder;
        const QString path = folder.writePlan(s("large.kw"), 200);
        OpenWindow open;
        auto *progress = open.window.findChild<QProgressBar *>();
        QVERIFY(!progress->isVisible());
        const ShowCounter shown(progress);
        open.prompts.answerFile(path);
        open.run("m_fileOpenAction");
        QCOMPARE(open.plan().guestCount(), 200);
        QVERIFY(shown.count > 0);
        QVERIFY(!progress->isVisible());
    }
};

REGISTER_TEST(TestKWStatusBar)
#include "tst_kwstatusbar.moc"
