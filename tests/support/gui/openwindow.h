#pragma once

#include "gui/framework/kwusersettings.h"
#include "gui/shell/kwmainwinimpl.h"
#include "gui/shell/kwpanes.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"

#include <QAction>
#include <QLabel>

#include <optional>

class FakeView;
class KWCloseableTabWidget;

/// The real main window, shown, with scripted prompts and a clock that stands still until a test
/// moves it. Comes up with no dialog, unless a test changed the settings to have one.
class OpenWindow
{
public:
    /// What the program does at its start, with `arguments` behind its own name; then no view is
    /// active, though the list of guests has the focus.
    explicit OpenWindow(const QStringList &arguments = {});

    ScriptedPrompts prompts;
    QDateTime now{QDate(2026, 6, 13), QTime(14, 30, 5)};
    KWMainWinImpl window;

    KWDocument &plan() { return *window.document(); }
    QAction *action(const char *name) const;
    /// Triggers the action, which must be enabled.
    void run(const char *name);
    /// Adds a view as a page of that name, in front of the real one if there is one.
    FakeView *addView(KWCloseableTabWidget *tab, const QString &name);
    /// Takes the real views out of the top pane, which then has none.
    void removeTopPages();
    QString counts() const;

    /// Settings that start the program without a dialog and without a maximised window.
    static void quietSettings();
};
