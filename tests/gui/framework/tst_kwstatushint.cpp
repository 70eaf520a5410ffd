#include "gui/framework/kwstatushint.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QMainWindow>
#include <QStatusBar>

class TestKWStatusHint : public QObject
{
    Q_OBJECT

private slots:
    void aHintStandsOnTheStatusBarOfTheWindowUntilItIsTakenAway()
    {
        QMainWindow window;
        auto *pane = new QWidget;
        auto *view = new QWidget(pane);
        window.setCentralWidget(pane);
        window.statusBar()->showMessage(s("Saved"));
        showStatusHint(view, s("Ann: seat 1"));
        QCOMPARE(window.statusBar()->currentMessage(), s("Ann: seat 1"));
        showStatusHint(view, {});
        QCOMPARE(window.statusBar()->currentMessage(), QString());
    }

    void withoutAStatusBarAHintIsLost()
    {
        QWidget alone;
        showStatusHint(&alone, s("Ann: seat 1"));
    }
};

REGISTER_TEST(TestKWStatusHint)
#include "tst_kwstatushint.moc"
