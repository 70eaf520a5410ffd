#include "core/model/kwmodelhooks.h"
#include "gui/dialogs/kwgettingstarteddlgimpl.h"
#include "gui/dialogs/kwrecentlyopeneddlgimpl.h"
#include "gui/framework/kwtimer.h"
#include "gui/framework/kwtooltips.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwlefttab.h"
#include "gui/shell/kwsplashscreen.h"
#include "support/gui/dialogtest.h"
#include "support/gui/fakeview.h"
#include "support/gui/modaluser.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/sourcepath.h"
#include "support/testplan.h"

#include <QMenu>
#include <QPainter>
#include <QPrinter>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace {

QString examplePath(const char *name)
{
    return sourcePath("examples/") + s(name);
}

/// Copies an example into the test's directory.
QString copiedExample(const char *name)
{
    const QString target = testHome().path(s(name));
    QFile::remove(target);
    QFile::copy(examplePath(name), target);
    return target;
}

void closeWindow(QWidget &dialog)
{
    dialog.close();
}

/// Writes down in which order things appear.
class ShowLog : public QObject
{
public:
    QStringList shown;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(watched);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            shown.append(s(widget->metaObject()->className()));
        return false;
    }
};
} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void init() { OpenWindow::quietSettings(); }

    void aFreshMachineShowsAnEmptyMaximisedWindowAndThenTheGettingStartedDialog()
    {
        TestHome::clearSettings();
        QString caption;
        bool maximised = false;
        ModalUser user;
        user.onDialog<KWGettingStartedDlgImpl>([&](QDialog &dialog) {
            caption = dialog.parentWidget()->windowTitle();
            maximised = dialog.parentWidget()->isMaximized();
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            dialog.close();
        });
        OpenWindow open;
        QCOMPARE(user.waiting(), 0);
        QCOMPARE(caption, s("Ambrelune - <unsaved>"));
        QVERIFY(maximised);
        QVERIFY(open.plan().isEmpty());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theKeyboardIsInTheListOfGuestsAtFirst()
    {
        ScriptedPrompts prompts;
        KWMainWinImpl window;
        window.initialise(nullptr, {s("ambrelune")});
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(QApplication::focusWidget(), window.panes()->leftTab()->guestsView());
        QCOMPARE(window.activeView(), window.panes()->leftTab()->guestsView());
    }

    void theWindowHasAtLeastItsInitialSize()
    {
        OpenWindow open;
        QVERIFY(!open.window.isMaximized());
        QCOMPARE(open.window.size(), QSize(725, 519).expandedTo(open.window.minimumSizeHint()));
    }

    void thePlanNamedAsFirstArgumentIsOpened()
    {
        const QString path = copiedExample("wedding.kw");
        OpenWindow open({path, s("/no/such/second.kw"), s("third")});
        QCOMPARE(open.plan().fileName(), path);
        QCOMPARE(open.plan().guestCount(), 121);
        QCOMPARE(open.window.windowTitle(), s("Ambrelune - wedding.kw"));
        QVERIFY(open.prompts.messages.isEmpty());
        QVERIFY(!open.window.fileCommands()->backups()->changedSinceBackup());
    }

    void withAPlanOpenTheRecentDialogStaysAway()
    {
        const QString path = copiedExample("small.kw");
        KWUserSettings().setMostRecentShowAtStart(true);
        KWUserSettings().setMostRecentFiles({copiedExample("wedding.kw")});
        OpenWindow open({path});
        QCOMPARE(open.plan().fileName(), path);
    }

    void withoutAPlanTheRecentDialogComesUpIfWanted()
    {
        const QString path = copiedExample("small.kw");
        KWUserSettings().setMostRecentShowAtStart(true);
        KWUserSettings().setMostRecentFiles({path});
        ModalUser user;
        user.onDialog<KWRecentlyOpenedDlgImpl>([](QDialog &dialog) { dialog.accept(); });
        OpenWindow open;
        QCOMPARE(open.plan().fileName(), path);
    }

    void theRecentDialogFollowsTheGettingStartedDialog()
    {
        const QString path = copiedExample("small.kw");
        KWUserSettings().setHelpShowGettingStarted(true);
        KWUserSettings().setMostRecentShowAtStart(true);
        KWUserSettings().setMostRecentFiles({path});
        ModalUser user;
        user.onDialog<KWGettingStartedDlgImpl>([](QDialog &dialog) { dialog.accept(); });
        user.onDialog<KWRecentlyOpenedDlgImpl>([](QDialog &dialog) { dialog.accept(); });
        OpenWindow open;
        QCOMPARE(open.plan().fileName(), path);
    }

    void withoutRecentPlansTheRecentDialogStaysAway()
    {
        KWUserSettings().setMostRecentShowAtStart(true);
        OpenWindow open;
        QVERIFY(open.window.isVisible());
    }

    void withABackupOpenTheRecentDialogStaysAway()
    {
        const QString path = testHome().path(s("small_2026-06-13.kwb"));
        QVERIFY(QFile::copy(examplePath("small.kw"), path));
        KWUserSettings().setMostRecentShowAtStart(true);
        KWUserSettings().setMostRecentFiles({copiedExample("wedding.kw")});
        OpenWindow open({path});
        QVERIFY(open.plan().fileName().isEmpty());
        QVERIFY(open.plan().guestCount() > 0);
        QVERIFY(QFile::remove(path));
    }

    void afterAPathThatCannotBeReadTheRecentDialogComesUp()
    {
        KWUserSettings().setMostRecentShowAtStart(true);
        KWUserSettings().setMostRecentFiles({copiedExample("small.kw")});
        ModalUser user;
        user.onDialog<KWRecentlyOpenedDlgImpl>(closeWindow);
        // The message is answered before the window's construction returns.
        QStringList texts;
        struct Refuser : KWPrompts
        {
            QStringList *texts;
            int showMessage(QWidget *, const KWMessage &message) override
            {
                texts->append(message.text + u' ' + message.buttons.join(u'|'));
                return 0;
            }
        } refuser;
        refuser.texts = &texts;
        setPrompts(&refuser);
        KWMainWinImpl window;
        window.initialise(nullptr, {s("ambrelune"), s("/no/such/plan.kw")});
        setPrompts(nullptr);
        QCOMPARE(texts, QStringList{s("Unable to open file '/no/such/plan.kw' &OK")});
        QCOMPARE(user.waiting(), 0);
        QVERIFY(window.document()->isEmpty());
        QCOMPARE(window.windowTitle(), s("Ambrelune - <unsaved>"));
    }

    void theSplashIsGoneASecondAfterTheWindowAlsoWhileADialogIsUp()
    {
        KWUserSettings().setHelpShowGettingStarted(true);
        QPixmap picture(423, 300);
        picture.fill(Qt::darkBlue);
        const QPointer<KWSplashScreen> splash = new KWSplashScreen(picture);
        splash->show();
        ShowLog log;
        qApp->installEventFilter(&log);
        bool wasUp = false;
        bool isGone = false;
        ModalUser user;
        user.onDialog<KWGettingStartedDlgImpl>([&](QDialog &dialog) {
            wasUp = splash && splash->isVisible();
            isGone = QTest::qWaitFor([&] { return !splash; }, 3000);
            dialog.close();
        });
        ScriptedPrompts prompts;
        KWMainWinImpl window;
        window.initialise(splash, {s("ambrelune")});
        QVERIFY(wasUp);
        QVERIFY(isGone);
        // The splash once more, to stand between the two.
        QCOMPARE(log.shown, QStringList({s("KWMainWinImpl"), s("KWSplashScreen"),
                                         s("KWGettingStartedDlgImpl")}));
    }

    void theSplashWritesInItsOwnFont()
    {
        class Splash : public KWSplashScreen
        {
        public:
            using KWSplashScreen::drawContents;
            using KWSplashScreen::KWSplashScreen;
        };
        QPixmap picture(423, 300);
        picture.fill(Qt::black);
        Splash splash(picture);
        splash.showMessage(s("Ambrelune\nVersion 1.2.14"), Qt::AlignBottom | Qt::AlignHCenter,
                           Qt::white);
        QImage image(423, 300, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        const QFont before = painter.font();
        splash.drawContents(&painter);
        QCOMPARE(painter.font(), before);
        painter.end();
        int top = 300;
        for (int y = 299; y >= 0; --y) {
            for (int x = 0; x < 423; ++x) {
                if (qGray(image.pixel(x, y)) > 128)
                    top = y;
            }
        }
        // Two lines of 14 points stand at the bottom.
        QVERIFY2(top > 230 && top < 275, qPrintable(QString::number(top)));
    }

    void theHiddenKeysShowTheCreditsAndRefresh_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("F12") << int(Qt::Key_F12);
        QTest::newRow("Ctrl+F12") << int(Qt::CTRL) + int(Qt::Key_F12);
    }

    void theHiddenKeysShowTheCreditsAndRefresh()
    {
        QFETCH(int, key);
        OpenWindow open;
        QVERIFY(QTest::qWaitForWindowActive(&open.window));
        QString caption;
        ModalUser user;
        user.onDialog<QDialog>([&](QDialog &dialog) {
            caption = dialog.windowTitle();
            dialog.close();
        });
        QTest::keySequence(&open.window, QKeySequence(key));
        QCOMPARE(caption, s("Credits"));
    }

    void theWindowFollowsANewLanguage()
    {
        OpenWindow open;
        open.window.saveUndoState(s("Lock"));
        open.run("m_editUndoAction");
        const BracketTranslator brackets;
        QTRY_COMPARE(open.window.windowTitle(), s("Ambrelune - [<unsaved>]"));
        QCOMPARE(open.action("m_editUndoAction")->text(), s("[&Undo]"));
        QCOMPARE(open.action("m_editRedoAction")->text(), s("[&Redo Lock]"));
        QCOMPARE(open.action("m_filePrintAction")->text(), s("[Print [Floor plan]...]"));
        QCOMPARE(open.action("m_editCopyAction")->text(), s("[Copy [Floor plan]]"));
        QCOMPARE(open.action("m_fileNewAction")->whatsThis(), s("[New plan file]"));
        QCOMPARE(open.counts(), s("[Guests: 0 Seats: 0 Score: 0]"));
        const auto *menu = open.window.findChild<QMenu *>(s("m_proximityMenu"));
        QCOMPARE(menu->menuAction()->toolTip(), s("[Set desired proximity]"));
    }

    void f5RefreshesAllViews()
    {
        OpenWindow open;
        QVERIFY(QTest::qWaitForWindowActive(&open.window));
        QSignalSpy refreshed(&open.plan(), &KWDocument::eventRefresh);
        QTest::keyClick(&open.window, Qt::Key_F5);
        QCOMPARE(refreshed.size(), 1);
    }

    void autoSaveRunsFromTheStartIfItIsOn()
    {
        {
            OpenWindow open;
            auto *timer = open.window.findChild<KWTimer *>(s("auto save timer"));
            QVERIFY(timer && timer->isActive());
            QCOMPARE(timer->interval(), 600000);
        }
        KWUserSettings().setBackupAutoOn(false);
        OpenWindow open;
        QVERIFY(!open.window.findChild<KWTimer *>(s("auto save timer"))->isActive());
    }

    void toolTipsFollowTheSetting()
    {
        KWUserSettings().setMiscShowToolTips(false);
        {
            OpenWindow open;
            QVERIFY(!toolTipsEnabled());
        }
        KWUserSettings().setMiscShowToolTips(true);
        OpenWindow open;
        QVERIFY(toolTipsEnabled());
    }

    void fileDialogsStartInThePlansDirectoryIfThereIsOne()
    {
        const QString here = QDir::currentPath();
        {
            OpenWindow open;
            QCOMPARE(open.window.fileCommands()->planDirPath(), here + u'/');
        }
        QVERIFY(QDir(here).mkdir(s("plans")));
        OpenWindow open;
        QCOMPARE(open.window.fileCommands()->planDirPath(), here + s("/plans/"));
        QVERIFY(QDir(here).rmdir(s("plans")));
        QCOMPARE(QDir::currentPath(), here);
    }

    void theWindowsWidgetsHaveTheirTipsAsWhatsThisTexts()
    {
        OpenWindow open;
        int found = 0;
        for (const QToolBar *bar : open.window.findChildren<QToolBar *>()) {
            for (QAction *action : bar->actions()) {
                if (action->isSeparator())
                    continue;
                action->setEnabled(!action->isEnabled());
                QCOMPARE(bar->widgetForAction(action)->whatsThis(), action->toolTip());
                ++found;
            }
        }
        QCOMPARE(found, 25);
    }

    void theWindowIsTheMainWindowAndHasThePrinter()
    {
        OpenWindow open;
        QCOMPARE(open.window.objectName(), s("main window"));
        QCOMPARE(mainWin(), static_cast<KWMainWindow *>(&open.window));
        QCOMPARE(open.window.printer()->resolution(),
                 QPrinter(QPrinter::ScreenResolution).resolution());
    }

    void anErrorOfThePlanIsShown()
    {
        OpenWindow open;
        open.prompts.answer(s("&OK"));
        emit open.plan().error(s("It failed."));
        QTRY_COMPARE(open.prompts.texts(), QStringList{s("It failed.")});
        QCOMPARE(open.prompts.messages.first().icon, KWMessage::Critical);
    }

    void theIndexAndFileExitAreNotBuilt()
    {
        OpenWindow open;
        QTest::ignoreMessage(QtWarningMsg, "KWMainWin::helpIndex(): Not implemented yet");
        open.run("m_helpIndexAction");
        QTest::ignoreMessage(QtWarningMsg, "KWMainWin::fileExit(): Not implemented yet");
        open.window.fileExit();
    }

    void thePlanReachesTheProgramThroughItsHooks()
    {
        {
            OpenWindow open;
            KWUserSettings().setValue("misc/print_footer", s("Printed by us"));
            QCOMPARE(modelHooks().printFooter(), s("Printed by us"));
            QCOMPARE(modelHooks().selectionColour(),
                     QApplication::palette().color(QPalette::Highlight));
        }
        QCOMPARE(modelHooks().printFooter(), QString());
    }

    void aWindowThatWasNotInitialisedTakesCommandsToo()
    {
        KWMainWinImpl window;
        window.showStatusMessage(s("Hello"));
        window.findChild<QAction *>(s("m_viewLeftPaneAction"))->setChecked(false);
        window.setActiveView(nullptr);
        window.updateActionsOnPaneViewChange(nullptr);
        window.saveUndoState(s("Lock"));
        window.document()->announceModified();
        QVERIFY(!window.activeView());
    }
};

REGISTER_TEST(TestStartup)
#include "tst_startup.moc"
