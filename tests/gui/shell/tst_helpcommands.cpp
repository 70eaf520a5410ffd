#include "gui/dialogs/kwaboutdlgimpl.h"
#include "gui/framework/kwwebpage.h"
#include "support/gui/dialogtest.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QDesktopServices>
#include <QWhatsThis>

// The Help menu and its keys.

namespace {

/// Takes the pages that would go to the user's browser.
class FakeBrowser : public QObject
{
    Q_OBJECT

public:
    FakeBrowser() { QDesktopServices::setUrlHandler(s("file"), this, "open"); }
    ~FakeBrowser() override { QDesktopServices::unsetUrlHandler(s("file")); }

    QStringList opened;

public slots:
    void open(const QUrl &url) { opened.append(url.toLocalFile()); }
};
} // namespace

class TestHelpCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void theCommandShowsItsPage_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QString>("page");
        QTest::newRow("contents") << QByteArray("m_helpContextSensitiveAction")
                                  << s("Main_window.htm");
        QTest::newRow("quick start")
            << QByteArray("m_helpContentsAction") << s("Quick_start_guide.htm");
        QTest::newRow("tutorial") << QByteArray("m_helpTutorialAction") << s("Tutorial.htm");
    }

    void theCommandShowsItsPage()
    {
        QFETCH(QByteArray, action);
        OpenWindow open;
        QTEST(topicAskedFor([&] { open.run(action.constData()); }), "page");
    }

    void f1ShowsThePageOfTheWindow()
    {
        OpenWindow open;
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(&open.window, Qt::Key_F1); }),
                 s("Main_window.htm"));
    }

    void whatsThisIsAskedByMenuAndByKey()
    {
        OpenWindow open;
        open.run("m_helpWhatsThisAction");
        QVERIFY(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
        QTest::keyClick(&open.window, Qt::Key_F1, Qt::ShiftModifier);
        QVERIFY(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
    }

    void theWebPagesGoToTheBrowser()
    {
        const FakeBrowser browser;
        OpenWindow open;
        open.run("m_helpWebPage");
        QCOMPARE(browser.opened, QStringList{webPage(s("home"))});
    }

    void aboutOpensItsDialog()
    {
        OpenWindow open;
        ModalUser user;
        user.onDialog<KWAboutDlgImpl>([](KWAboutDlgImpl &dialog) { dialog.close(); });
        open.run("m_helpAboutAction");
        QCOMPARE(user.waiting(), 0);
    }
};

REGISTER_TEST(TestHelpCommands)
#include "tst_helpcommands.moc"
