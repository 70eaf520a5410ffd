#pragma once

#include "gui/floorplan/kwcanvasview.h"
#include "gui/floorplan/kwfloorplanviewfilterimpl.h"
#include "gui/framework/kwcloseabletabwidget.h"
#include "gui/framework/kwviewandfilter.h"

class KWDebugView;

/// The large pane, for the floor plan, the schematic, the charts and the statistics.
class KWTopTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    using FloorPlanPage = KWViewAndFilter<KWCanvasView, KWFloorPlanViewFilterImpl>;

    KWTopTab(QWidget *parent, KWDocument *document);

    FloorPlanPage *floorPlanPage() const { return m_floorPlanPage; }
    KWCanvasView *floorPlanView() const { return m_floorPlanPage->view(); }
    KWFloorPlanViewFilterImpl *floorPlanFilter() const { return m_floorPlanPage->filter(); }
    /// Always null: nobody shows the trace.
    KWDebugView *debugView() const { return nullptr; }

private:
    FloorPlanPage *m_floorPlanPage;
};
