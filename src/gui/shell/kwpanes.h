#pragma once

#include "core/model/kwviewsettings.h"

#include <QObject>

class KWBottomTab;
class KWCanvasView;
class KWCloseableTabWidget;
class KWDocument;
class KWGuestsListView;
class KWLeftTab;
class KWTopTab;
class KWView;
class QMainWindow;

/// The three panes round the main window's centre and the views in them. The widgets belong to
/// the window; until create() there are none, and nothing is found.
class KWPanes : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void create(QMainWindow *window, KWDocument *document);

    KWLeftTab *leftTab() const { return m_leftTab; }
    KWTopTab *topTab() const { return m_topTab; }
    KWBottomTab *bottomTab() const { return m_bottomTab; }
    /// The panes from the bottom one, which a deletion holds back first, to the left and the top
    /// one.
    QList<KWCloseableTabWidget *> tabs() const;
    /// All views of all panes, in that order.
    QList<KWView *> views() const;

    /// The view on a page of the left or the top pane; null for any other page.
    KWView *viewOn(QWidget *page) const;
    /// The current view of the top pane, which is what is printed and copied; null if there is
    /// none.
    KWView *topView() const;
    /// What the user calls it.
    QString topLabel() const;
    /// Null if there are no panes yet.
    KWCanvasView *floorPlan() const;
    /// Brings the floor plan to the size of the plan's room.
    void resizeFloorPlan();
    /// Shows all tables of the floor plan, as large as they fit.
    void refreshFloorPlan();
    /// The list that the left pane shows; null if there is none.
    KWGuestsListView *currentList() const;
    /// Whether the guest that is selected in the current list can be shown in the top pane, with
    /// this view as the active one.
    bool canShowGuestInPlan(const KWView *activeView) const;

    /// How the panes show the plan, to be saved with it.
    KWViewSettings viewSettings() const;
    /// Shows the plan as it was saved.
    void setViewSettings(const KWViewSettings &settings);
    /// What a new plan brings back; all else of the panes stays as it was.
    void showAllColumns();

signals:
    /// The keyboard is in a view now.
    void viewFocused(KWView *view);

private:
    void followFocus(const QWidget *old, QWidget *now);

    QMainWindow *m_window = nullptr;
    KWLeftTab *m_leftTab = nullptr;
    KWTopTab *m_topTab = nullptr;
    KWBottomTab *m_bottomTab = nullptr;
    /// Carries what belongs to panes that do not take it from here yet.
    KWViewSettings m_viewSettings;
};
