#include "fakemainwindow.h"
#include "guitest.h"
#include "testplan.h"

class TestKWMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void theProductHasItsNameAndVersion()
    {
        QCOMPARE(KWMainWindow::productName(), s("Ambrelune"));
        QCOMPARE(KWMainWindow::majorVersion(), 1);
        QCOMPARE(KWMainWindow::minorVersion(), 2);
        QCOMPARE(KWMainWindow::patchVersion(), 14);
        QCOMPARE(KWMainWindow::versionText(), s("1.2.14"));
    }

    void theWindowIsKnownAsLongAsItLives()
    {
        QCOMPARE(mainWin(), nullptr);
        {
            FakeMainWindow window;
            QCOMPARE(mainWin(), &window);
        }
        QCOMPARE(mainWin(), nullptr);
    }
};

GUI_TEST_MAIN(TestKWMainWindow)
#include "tst_kwmainwindow.moc"
