#pragma once

#include "gui/floorplan/kwcanvas.h"
#include "gui/framework/kwplansettingspanel.h"

#include <QWidget>

#include <array>
#include <memory>

class KWCanvasView;
class QCheckBox;

namespace Ui {
class KWFloorPlanViewFilter;
}

/// The panel above the floor plan: how names and seats are shown, the zoom, and buttons that show
/// wishes while they are held down. What is chosen once is folded away at first. The floor plan is
/// not owned. Whatever the user chooses counts as a change of the plan, since it is saved with it.
class KWFloorPlanViewFilterImpl : public QWidget, public KWPlanSettingsPanel
{
    Q_OBJECT

public:
    /// `view` may be null until setView().
    KWFloorPlanViewFilterImpl(QWidget *parent, KWCanvasView *view);
    ~KWFloorPlanViewFilterImpl() override;

    void setView(KWCanvasView *view);

    /// What is chosen in the panel.
    KWFloorPlanLook look() const;
    /// Unlike the user's own choices these do not count as a change of the plan.
    void setLook(const KWFloorPlanLook &look);
    void readSettings(const KWViewSettings &settings) override;
    void writeSettings(KWViewSettings &settings) const override;

public slots:
    void nameOrderChanged(int order);
    void fontChanged();
    void expand();
    void showLovesAffinity();
    void zoomCentre();
    void zoomIn();
    void zoomOut();
    void editRotateTable();
    void collapse();
    void showLikesAffinity();
    void showDislikesAffinity();
    void showHatesAffinity();
    void hideAffinity();
    void showAllAffinity();
    void showGender(bool on);
    void showAge(bool on);
    void showVIP(bool on);
    void showConflicts();
    void changeDimensions();
    void showGroups(bool on);
    void showSeats(bool on);
    void changeColours();
    void changeSeatDisplay(int index);
    void showLocked(bool on);
    void languageChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectButtons();
    void connectChoices();
    void fold(bool folded);
    void fillNameOrders();
    static QStringList nameOrders();
    void updateZoomButtons();
    void updateRotateButton();
    void enableFlags(KWCanvas::SeatDisplay display);
    void showHint(const QString &text);
    /// What is seen on the circle of a seat only.
    std::array<QCheckBox *, 3> circleFlags() const;
    /// What is seen without the circle, too.
    std::array<QCheckBox *, 2> otherFlags() const;

    std::unique_ptr<Ui::KWFloorPlanViewFilter> m_ui;
    KWCanvasView *m_view = nullptr;
    KWCanvas *m_canvas = nullptr;
    /// What the status bar says while the button for conflicts is held.
    QString m_hint;
};
