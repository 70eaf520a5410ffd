#pragma once

#include "gui/framework/kwview.h"

#include <QObject>

#include <functional>
#include <memory>

class KWDocument;
class KWMainWindow;
class KWPanes;

namespace Ui {
class KWMainWin;
}

/// Undo and redo, and the commands that change what is selected in the active view.
///
/// There is one level of undo and one of redo, each a copy of the whole plan. Objects of the plan
/// do not survive either: whoever holds one must let it go at eventClear().
class KWEditCommands : public QObject
{
    Q_OBJECT

public:
    /// `window` owns this object, its actions and the plan.
    KWEditCommands(QObject *parent, Ui::KWMainWin *ui, KWMainWindow *window, KWPanes *panes);

    /// See KWMainWindow::saveUndoState().
    void saveUndoState(const QString &label);
    /// A change behind an undo point, which is taken back if the plan is as it was before: then all
    /// that could be undone and redone still can.
    void change(const QString &label, const std::function<void()> &act);
    /// Forgets what could be undone and redone.
    void clearUndoStates();
    /// What could be undone or redone is no longer what the plan's file holds, and belongs to that
    /// file from now on: no undo leads a save to another one.
    void planSaved();
    /// Brings the two actions up to date.
    void updateUndoActions();

public slots:
    void editUndo();
    void editRedo();
    void editDelete();
    void editProperties();
    void editUnassignSeat();
    void editRotateTable();
    void editToggleLock(bool on);
    void editToggleHasAccepted(bool on);
    void editSetAffinityLoves() { setAffinity(0); }
    void editSetAffinityLikes() { setAffinity(1); }
    void editSetAffinityNeutral() { setAffinity(2); }
    void editSetAffinityDislikes() { setAffinity(3); }
    void editSetAffinityHates() { setAffinity(4); }

signals:
    /// The plan is another one, perhaps with another file.
    void planExchanged();

private:
    using Plan = std::shared_ptr<KWDocument>;
    /// Exchanges the live plan with `source`, which goes, and keeps a copy in `target`.
    void swapPlans(Plan &source, Plan &target);
    void setAffinity(int value);
    void tellAffinity(int value, const KWView::AffinityCounts &before);

    Ui::KWMainWin *m_ui;
    KWMainWindow *m_window;
    KWPanes *m_panes;
    struct
    {
        /// The words of the last undo point; undo and redo show the same.
        QString label;
        /// The plan before the last change; null if there is nothing to undo.
        Plan undo;
        /// The plan as it was when undo ran; null if there is nothing to redo.
        Plan redo;
    } m_points;
};
