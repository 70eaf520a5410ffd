#pragma once

#include "gui/panes/kwguestlistviewitem.h"
#include "gui/panes/kwguestslistview.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/testplan.h"

#include <QHeaderView>

/// Writes down the guests of each drag instead of letting it run.
class DraggableList : public KWGuestsListView
{
    Q_OBJECT

public:
    using KWGuestsListView::KWGuestsListView;

    /// "Ann Bob" for each drag.
    QStringList drags;

protected:
    void runDrag(KWDrag *drag) override;
};

/// The list of guests on the screen, with a plan of its own, under a main window that only writes
/// down what it is told.
class ShownList
{
public:
    explicit ShownList(const QStringList &guests = {});

    ScriptedPrompts prompts;
    FakeMainWindow window;
    KWDocument &plan = *window.document();
    DraggableList list{nullptr, &plan};

    KWGuest *guest(const char *displayName) const;
    KWGuestListViewItem *row(const char *displayName);
    /// The display names from the top.
    QString names() const;
    /// Those of the selected rows from the top.
    QString selected() const;
    /// Selects the rows of these guests and no others.
    void select(const QList<const char *> &displayNames);

    QPoint middleOf(const char *displayName, int column);
    void click(const char *displayName, int column = KWGuestListViewItem::DisplayName,
               Qt::KeyboardModifiers modifiers = {});
    void press(Qt::MouseButton button, const QPoint &place);
    void moveTo(const QPoint &place);
    void release(Qt::MouseButton button, const QPoint &place);
};
