#pragma once

#include "kwcloseabletabwidget.h"

class KWDocument;

/// The pane to the left, for the lists of guests and of groups.
class KWLeftTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    KWLeftTab(QWidget *parent, KWDocument *document);
};
