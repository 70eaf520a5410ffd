#pragma once

#include "kwcanvasview.h"
#include "kwcloseabletabwidget.h"

class KWDebugView;

/// The large pane, for the floor plan, the schematic, the charts and the statistics.
class KWTopTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    KWTopTab(QWidget *parent, KWDocument *document);

    KWCanvasView *floorPlanView() const { return m_floorPlanView; }
    /// Always null: nobody shows the trace.
    KWDebugView *debugView() const { return nullptr; }

protected:
    void changeEvent(QEvent *event) override;

private:
    KWCanvasView *m_floorPlanView;
};
