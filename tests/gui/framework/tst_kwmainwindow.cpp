#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

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

REGISTER_TEST(TestKWMainWindow)
#include "tst_kwmainwindow.moc"
