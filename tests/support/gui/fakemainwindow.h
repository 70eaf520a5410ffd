#pragma once

#include "core/model/kwdocument.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwusersettings.h"

#include <QAction>
#include <QPrinter>
#include <QStringList>
#include <QWidget>

#include <array>
#include <memory>

/// Stands in for the main window while it lives: mainWin() gives it, and it writes down what it was
/// told. It has a plan and settings of its own.
class FakeMainWindow : public KWMainWindow
{
public:
    QStringList undoLabels;
    QStringList statusMessages;
    QList<int> progress;
    /// How often the actions were asked to follow: the view's, printing, copying.
    int viewUpdates = 0;
    int printUpdates = 0;
    int copyUpdates = 0;
    KWView *currentView = nullptr;
    /// "guest Ann", "group Smith", "table Top": whose dialogs were opened.
    QStringList edited;
    /// Where the floor plan looks.
    QPoint centre{1000, 800};
    /// "place Top", "show Top": what the floor plan was asked to do with new tables.
    QStringList newTables;

    QWidget *widget() override { return &m_widget; }
    KWDocument *document() override { return &m_document; }
    KWUserSettings *userSettings() override { return &m_settings; }
    QPrinter *printer() override
    {
        if (!m_printer)
            m_printer = std::make_unique<QPrinter>();
        return m_printer.get();
    }

    void saveUndoState(const QString &label) override { undoLabels.append(label); }

    void setActiveView(KWView *view) override { currentView = view; }
    KWView *activeView() const override { return currentView; }
    void updateActionsOnViewChange() override { ++viewUpdates; }
    void updatePrintAction() override { ++printUpdates; }
    void updateCopyAction() override { ++copyUpdates; }

    QAction *editAction(EditAction action) override
    {
        return &m_actions.at(static_cast<std::size_t>(action));
    }
    void editGuest(KWGuest *guest) override
    {
        edited.append(QStringLiteral("guest ") + guest->displayName());
    }
    void editGroup(KWGroup *group) override
    {
        edited.append(QStringLiteral("group ") + group->name());
    }
    void editTable(KWTable *table) override
    {
        edited.append(QStringLiteral("table ") + table->name());
    }
    QPoint floorPlanCentre() override { return centre; }
    void placeNewTable(KWTable *table) override
    {
        newTables.append(QStringLiteral("place ") + table->name());
    }
    void showNewTable(KWTable *table) override
    {
        newTables.append(QStringLiteral("show ") + table->name());
    }

    void showStatusMessage(const QString &text) override { statusMessages.append(text); }
    void setProgress(int percent) override { progress.append(percent); }

private:
    QWidget m_widget;
    std::array<QAction, Delete + 1> m_actions;
    KWDocument m_document;
    KWUserSettings m_settings;
    std::unique_ptr<QPrinter> m_printer;
};
