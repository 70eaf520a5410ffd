#pragma once

#include <QObject>

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
    ~KWEditCommands() override;

    /// See KWMainWindow::saveUndoState().
    void saveUndoState(const QString &label);
    /// Forgets what could be undone and redone.
    void clearUndoStates();
    /// What could be undone or redone is no longer what the plan's file holds.
    void markUndoStatesModified();
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
    /// Exchanges the live plan with `source`, which goes, and keeps a copy in `target`.
    void swapPlans(std::unique_ptr<KWDocument> &source, std::unique_ptr<KWDocument> &target);
    void setAffinity(int value);

    Ui::KWMainWin *m_ui;
    KWMainWindow *m_window;
    KWPanes *m_panes;
    /// The words of the last undo point; undo and redo show the same.
    QString m_undoLabel;
    /// The plan before the last change; null if there is nothing to undo.
    std::unique_ptr<KWDocument> m_undoDocument;
    /// The plan as it was when undo ran; null if there is nothing to redo.
    std::unique_ptr<KWDocument> m_redoDocument;
};
