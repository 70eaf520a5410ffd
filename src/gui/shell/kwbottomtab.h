#pragma once

#include "gui/framework/kwcloseabletabwidget.h"

class KWDocument;

/// The pane below the large one, for the proximity of all guests.
class KWBottomTab : public KWCloseableTabWidget
{
    Q_OBJECT

public:
    KWBottomTab(QWidget *parent, KWDocument *document);
};
