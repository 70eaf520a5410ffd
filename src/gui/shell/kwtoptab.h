#pragma once

#include "kwcloseabletabwidget.h"

class KWDebugView;
class KWDocument;

/// The large pane, for the floor plan, the schematic, the charts and the statistics.
class KWTopTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    KWTopTab(QWidget *parent, KWDocument *document);

    /// Always null: nobody shows the trace.
    KWDebugView *debugView() const { return nullptr; }
};
