#pragma once

#include <QObject>

class KWCommandGuard;
class KWDocument;
class KWPanes;
class KWView;

namespace Ui {
class KWMainWin;
}

/// Which view is active, which commands it can take, and the commands that show and hide panes.
class KWViewCommands : public QObject
{
    Q_OBJECT

public:
    /// None of the arguments is owned.
    KWViewCommands(QObject *parent, Ui::KWMainWin *ui, KWDocument *document, KWPanes *panes,
                   KWCommandGuard *guard);

    KWView *activeView() const { return m_activeView; }
    void setActiveView(KWView *view);
    /// Commands on what nobody sees any more would surprise.
    void dropHiddenView();

public slots:
    void updateActionsOnViewChange();
    void updatePrintAction();
    void updateCopyAction();
    void showLeftPane(bool on);
    void showTopPane(bool on);
    void showBottomPane(bool on);
    /// Prints what the top pane shows.
    void filePrint();
    /// Copies what the top pane shows.
    void editCopyToClipboard();
    /// Brings the guest that is selected in the left pane into sight in the top pane.
    void showGuestInPlan();
    /// Makes every view build itself anew.
    void refreshAll();

signals:
    /// Another view is active, which has this icon, perhaps a null one.
    void activeViewChanged(const QPixmap &icon);

private:
    void updateAffinityActions();

    Ui::KWMainWin *m_ui;
    KWDocument *m_document;
    KWPanes *m_panes;
    KWCommandGuard *m_guard;
    KWView *m_activeView = nullptr;
};
