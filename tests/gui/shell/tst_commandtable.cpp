#include "gui/floorplan/kwcanvasview.h"
#include "gui/shell/kwlefttab.h"
#include "support/gui/openwindow.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QActionGroup>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {

struct Command
{
    const char *name;
    bool isToggle;
    const char *text;
    const char *menuText;
    const char *tip;
    const char *keys;
};

const Command commands[] = {
    {"m_fileNewAction", false, "New", "&New", "New plan file", "Ctrl+N"},
    {"m_fileOpenAction", false, "Open", "&Open...", "Open existing plan file", "Ctrl+O"},
    {"m_openRecentAction", false, "Open recently accessed plan", "Open &recent...",
     "Open recently accessed plan files", "Ctrl+Shift+O"},
    {"m_fileSaveAction", false, "Save", "&Save", "Save plan file", "Ctrl+S"},
    {"m_fileSaveAsAction", false, "Save As", "Save &As...", "Save plan file to different file",
     nullptr},
    {"m_fileInfo", false, "Information", "&Information...",
     "Show/edit general information about plan", "Ctrl+I"},
    {"m_fileAutoLayoutAction", false, "Automatic layout", "Automatic &layout",
     "Perform automatic layout on all unlocked guests", "Ctrl+L"},
    {"m_importDataAction", false, "Import data", "I&mport data...", "Import data from file",
     nullptr},
    {"m_exportAction", false, "Export", "&Export", "Export to file", nullptr},
    {"m_exportDataAction", false, "Data", "&Data...", "Export data to file", nullptr},
    {"m_exportFloorPlanAction", false, "Floor plan", "&Floor plan...", "Export floor plan image",
     nullptr},
    {"m_exportTableChartAction", false, "Table chart", "&Table chart...", "Export table chart",
     nullptr},
    {"m_exportGuestChartAction", false, "Guest chart", "&Guest chart...", "Export guest chart",
     nullptr},
    {"m_filePrintAction", false, "Print", "&Print...", "Print contents of top pane", "Ctrl+P"},
    {"m_fileExitAction", false, "Exit", "E&xit", "Exit application", nullptr},
    {"m_editUndoAction", false, "Undo", "&Undo", "Undo last action", "Ctrl+Z"},
    {"m_editRedoAction", false, "Redo", "&Redo", "Redo last action", "Ctrl+Y"},
    {"m_editCopyAction", false, "Copy", "&Copy", "Copy contents of top pane to clipboard",
     "Ctrl+C"},
    {"m_editSetAffinityLovesAction", true, "Next to", "&Next to",
     "Place guests 'Next to' each other", nullptr},
    {"m_editSetAffinityLikesAction", true, "Near to", "N&ear to",
     "Place guests 'Near to' each other", nullptr},
    {"m_editSetAffinityNeutralAction", true, "Neutral", "Ne&utral", "Neutral", nullptr},
    {"m_editSetAffinityDislikesAction", true, "Not next to", "N&ot next to",
     "Place guests 'Not next to' each other", nullptr},
    {"m_editSetAffinityHatesAction", true, "Not near to", "No&t near to",
     "Place guests 'Not near to' each other", nullptr},
    {"m_editLockAction", true, "Locked", "&Locked", "Check to lock guest assignment", "Ctrl+K"},
    {"m_editAcceptedAction", true, "Has accepted", "Has &accepted",
     "Check if guest has accepted invite", nullptr},
    {"m_editUnassignSeatAction", false, "Unassign", "U&nassign", "Unassign guest from seat",
     "Ctrl+U"},
    {"m_editRotateTableAction", false, "Rotate table", "Ro&tate table",
     "Rotate selected table clockwise", nullptr},
    {"m_editDeleteAction", false, "Delete", "&Delete", "Delete selected item(s)", "Del"},
    {"m_editPropertiesAction", false, "Properties", "&Properties...",
     "Show/edit properties of selected item", "Ctrl+E"},
    {"m_preferencesAction", false, "Preferences", "&Preferences...", "Show/edit user preferences",
     nullptr},
    {"m_showGuestInPlanAction", false, "Show guest in plan", "&Show guest in plan",
     "Show guest in plan", "Ctrl+W"},
    {"m_viewLeftPaneAction", true, "Left pane", "&Left pane", "Show/hide left pane", "Ctrl+Left"},
    {"m_viewTopPaneAction", true, "Top pane", "&Top pane", "show/hide top pane", "Ctrl+Up"},
    {"m_viewBottomPaneAction", true, "Bottom pane", "&Bottom pane", "Show/hide bottom pane",
     "Ctrl+Down"},
    {"m_insertNewGuestAction", false, "Insert single guest", "Single &guest...",
     "Insert single guest", "Ctrl+G"},
    {"m_insertNewGuestCoupleAction", false, "Insert guest couple", "Guest &couple...",
     "Insert guest couple", "Ctrl+J"},
    {"m_insertNewFamilyGuestAction", false, "Insert guest family", "Guest &family...",
     "Insert guest family", "Ctrl+F"},
    {"m_insertNewFriendsAction", false, "Insert guest group", "Guest gro&up...",
     "Insert guest group", "Ctrl+B"},
    {"m_insertNewCircluarTableAction", false, "Insert circular table", "Circular &table...",
     "Insert circular table", "Ctrl+T"},
    {"m_insertNewRectTableAction", false, "Insert rectangular table", "&Rectangular table...",
     "Insert rectangular table", "Ctrl+R"},
    {"m_insertNewHeadTableAction", false, "Insert head table", "&Head table...",
     "Insert head table", "Ctrl+D"},
    {"m_insertNewCustomTableAction", false, "Insert custom table", "&Custom table...",
     "Insert custom table", "Ctrl+M"},
    {"m_helpContextSensitiveAction", false, "Contents", "&Contents", "Help contents", "F1"},
    {"m_helpContentsAction", false, "Quick start guide", "&Quick start guide", nullptr, nullptr},
    {"m_helpTutorialAction", false, "Tutorial", "&Tutorial", "Step-by-step tutorial", nullptr},
    {"m_helpWhatsThisAction", false, "Whats this", "&Whats this", "Show Whats This help",
     "Shift+F1"},
    {"m_helpWebPage", false, "Web pages", "Web &pages", nullptr, nullptr},
    {"m_helpAboutAction", false, "About", "&About...", "Show information about this application",
     nullptr},
    {"m_helpIndexAction", false, "Index", "&Index", nullptr, nullptr},
};

/// What an action's menu or tool bar shows, by object names: "|" is a separator, and a menu in the
/// menu stands as its title and its own entries in parentheses.
QString contents(const QList<QAction *> &actions)
{
    QStringList entries;
    for (const QAction *action : actions) {
        if (action->isSeparator())
            entries.append(s("|"));
        else if (action->menu())
            entries.append(
                s("%1 (%2)").arg(action->menu()->title(), contents(action->menu()->actions())));
        else
            entries.append(action->objectName());
    }
    return entries.join(u' ');
}

/// Of commands that come with what they need.
bool isUnbuilt(const QString &name)
{
    static const QStringList names{
        s("m_importDataAction"),           s("m_exportDataAction"),
        s("m_exportTableChartAction"),     s("m_exportGuestChartAction"),
        s("m_insertNewGuestCoupleAction"), s("m_insertNewFamilyGuestAction"),
        s("m_insertNewFriendsAction")};
    return names.contains(name);
}
} // namespace

class TestCommandTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        OpenWindow::quietSettings();
        m_open = std::make_unique<OpenWindow>();
    }

    void cleanupTestCase() { m_open.reset(); }

    void theCommandIsAsListed_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(commands)); ++i)
            QTest::newRow(commands[i].name) << i;
    }

    void theCommandIsAsListed()
    {
        QFETCH(int, row);
        const Command &command = commands[row];
        const QAction *action = m_open->action(command.name);
        QCOMPARE(action->isCheckable(), command.isToggle);
        QCOMPARE(action->iconText(), s(command.text));
        // By now these two say what the top pane shows.
        QString text = s(command.menuText);
        if (action->objectName() == u"m_filePrintAction")
            text = s("Print Floor plan...");
        if (action->objectName() == u"m_editCopyAction")
            text = s("Copy Floor plan");
        QCOMPARE(action->text(), text);
        // Without a tip of its own an action shows its text.
        QCOMPARE(action->toolTip(), s(command.tip ? command.tip : command.text));
        QCOMPARE(action->shortcut(), QKeySequence(s(command.keys ? command.keys : "")));
    }

    void thereIsNoOtherCommand()
    {
        QStringList listed;
        for (const Command &command : commands)
            listed.append(s(command.name));
        for (const QAction *action : m_open->window.findChildren<QAction *>()) {
            if (action->objectName().startsWith(u"m_"))
                QVERIFY2(listed.contains(action->objectName()), qPrintable(action->objectName()));
        }
        QCOMPARE(listed.size(), 49);
    }

    void theCommandsAtStartAreEnabledAsStated_data() { theCommandIsAsListed_data(); }

    void theCommandsAtStartAreEnabledAsStated()
    {
        QFETCH(int, row);
        const QString name = s(commands[row].name);
        const bool isOff = name.startsWith(u"m_edit") || name == u"m_filePrintAction" ||
                           name == u"m_openRecentAction" || name == u"m_showGuestInPlanAction" ||
                           name == u"m_exportFloorPlanAction" ||
                           name == u"m_fileAutoLayoutAction" || isUnbuilt(name);
        QCOMPARE(m_open->action(commands[row].name)->isEnabled(), !isOff);
        if (name.startsWith(u"m_view"))
            QVERIFY(m_open->action(commands[row].name)->isChecked());
    }

    void theProximityCommandsAreAGroupInWhichNoneExcludesAnother()
    {
        const auto *group =
            m_open->window.findChild<QActionGroup *>(s("m_editSetAffinityActionGroup"));
        QVERIFY(group && !group->isExclusive() && !group->isEnabled());
        const auto *menu = m_open->window.findChild<QMenu *>(s("m_proximityMenu"));
        QCOMPARE(menu->menuAction()->iconText(), s("Proximity"));
        QCOMPARE(menu->menuAction()->text(), s("Pro&ximity"));
        QCOMPARE(menu->menuAction()->toolTip(), s("Set desired proximity"));
        QCOMPARE(contents(group->actions()),
                 s("m_editSetAffinityLovesAction m_editSetAffinityLikesAction "
                   "m_editSetAffinityNeutralAction m_editSetAffinityDislikesAction "
                   "m_editSetAffinityHatesAction"));
    }

    void theMenuIsAsListed_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("entries");
        QTest::newRow("file") << s("&File")
                              << s("m_fileNewAction m_fileOpenAction m_openRecentAction "
                                   "m_fileSaveAction m_fileSaveAsAction | m_fileInfo | "
                                   "m_fileAutoLayoutAction | m_importDataAction &Export "
                                   "(m_exportDataAction m_exportFloorPlanAction "
                                   "m_exportTableChartAction m_exportGuestChartAction) | "
                                   "m_filePrintAction | m_fileExitAction");
        QTest::newRow("edit") << s("&Edit")
                              << s("m_editUndoAction m_editRedoAction | m_editCopyAction | "
                                   "Pro&ximity (m_editSetAffinityLovesAction "
                                   "m_editSetAffinityLikesAction m_editSetAffinityNeutralAction "
                                   "m_editSetAffinityDislikesAction "
                                   "m_editSetAffinityHatesAction) m_editLockAction "
                                   "m_editAcceptedAction m_editUnassignSeatAction "
                                   "m_editRotateTableAction | m_editDeleteAction | "
                                   "m_editPropertiesAction | m_preferencesAction");
        QTest::newRow("view") << s("&View")
                              << s("m_viewLeftPaneAction m_viewTopPaneAction "
                                   "m_viewBottomPaneAction");
        QTest::newRow("insert") << s("&Insert")
                                << s("m_insertNewGuestAction m_insertNewGuestCoupleAction "
                                     "m_insertNewFamilyGuestAction m_insertNewFriendsAction | "
                                     "m_insertNewCircluarTableAction m_insertNewRectTableAction "
                                     "m_insertNewHeadTableAction m_insertNewCustomTableAction");
        QTest::newRow("help") << s("&Help")
                              << s("m_helpContextSensitiveAction m_helpContentsAction "
                                   "m_helpTutorialAction | m_helpWhatsThisAction | m_helpWebPage "
                                   "| m_helpAboutAction");
    }

    void theMenuIsAsListed()
    {
        QFETCH(QString, title);
        QFETCH(QString, entries);
        QStringList titles;
        for (const QAction *action : m_open->window.menuBar()->actions()) {
            titles.append(action->text());
            if (action->text() == title)
                QCOMPARE(contents(action->menu()->actions()), entries);
        }
        QCOMPARE(titles.join(u' '), s("&File &Edit &View &Insert &Help"));
        QCOMPARE(m_open->window.menuBar()->objectName(), s("menubar"));
    }

    void noTwoEntriesOfAMenuShareALetterButThoseGiven()
    {
        QStringList clashes;
        for (const QMenu *menu : m_open->window.findChildren<QMenu *>()) {
            QHash<QString, QString> letters;
            for (const QAction *action : menu->actions()) {
                const QString letter = QKeySequence::mnemonic(action->text()).toString();
                if (!letter.isEmpty() && letters.contains(letter))
                    clashes.append(letters.value(letter) + u'/' + action->text());
                letters.insert(letter, action->text());
            }
        }
        clashes.sort();
        QCOMPARE(clashes, QStringList({s("&Properties.../&Preferences..."),
                                       s("Guest &couple.../&Custom table...")}));
    }

    void theKeysReachTheirCommandFromEachView_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("fromList");
        for (int i = 0; i < int(std::size(commands)); ++i) {
            if (!commands[i].keys)
                continue;
            for (const bool fromList : {true, false})
                QTest::addRow("%s from the %s", commands[i].name, fromList ? "list" : "floor plan")
                    << i << fromList;
        }
    }

    void theKeysReachTheirCommandFromEachView()
    {
        QFETCH(int, row);
        QFETCH(bool, fromList);
        OpenWindow open;
        QAction *action = open.action(commands[row].name);
        // Only that it comes matters here, not what it does.
        disconnect(action, &QAction::triggered, nullptr, nullptr);
        disconnect(action, &QAction::toggled, nullptr, nullptr);
        const QSignalSpy triggered(action, &QAction::triggered);
        if (fromList)
            open.window.panes()->leftTab()->guestsView()->setFocus();
        else
            open.window.panes()->floorPlan()->setFocus();
        action->setEnabled(true);
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(s(commands[row].keys)));
        QCOMPARE(triggered.size(), isUnbuilt(action->objectName()) ? 0 : 1);
    }

    void theToolBarsAreAsListed()
    {
        const auto bars = m_open->window.findChildren<QToolBar *>();
        QCOMPARE(bars.size(), 2);
        QCOMPARE(bars.at(0)->windowTitle(), s("Main toolbar"));
        QCOMPARE(m_open->window.toolBarArea(bars.at(0)), Qt::TopToolBarArea);
        QCOMPARE(contents(bars.at(0)->actions()),
                 s("m_fileNewAction m_fileOpenAction m_openRecentAction m_fileSaveAction | "
                   "m_fileInfo | m_editCopyAction m_editPropertiesAction m_editDeleteAction "
                   "m_editRotateTableAction | m_fileAutoLayoutAction | m_editUndoAction "
                   "m_editRedoAction | m_filePrintAction | m_viewLeftPaneAction "
                   "m_viewTopPaneAction m_viewBottomPaneAction | m_helpWhatsThisAction"));
        QCOMPARE(bars.at(1)->windowTitle(), s("Insert toolbar"));
        QCOMPARE(m_open->window.toolBarArea(bars.at(1)), Qt::LeftToolBarArea);
        QCOMPARE(contents(bars.at(1)->actions()),
                 s("m_insertNewGuestAction m_insertNewGuestCoupleAction "
                   "m_insertNewFamilyGuestAction m_insertNewFriendsAction "
                   "m_insertNewCircluarTableAction m_insertNewRectTableAction "
                   "m_insertNewHeadTableAction m_insertNewCustomTableAction"));
    }

    void theToolBarsShowLargeIconsWithoutText()
    {
        QCOMPARE(m_open->window.iconSize(), QSize(32, 32));
        QCOMPARE(m_open->window.toolButtonStyle(), Qt::ToolButtonIconOnly);
        for (const QToolBar *bar : m_open->window.findChildren<QToolBar *>()) {
            for (const QAction *action : bar->actions()) {
                if (!action->isSeparator())
                    QVERIFY2(!action->icon().pixmap(32).isNull(), qPrintable(action->objectName()));
            }
        }
    }

private:
    std::unique_ptr<OpenWindow> m_open;
};

REGISTER_TEST(TestCommandTable)
#include "tst_commandtable.moc"
