#pragma once

#include "gui/framework/kwview.h"

#include <QTextEdit>

/// A pane for trace lines, for developers only; no part of the program makes one. It takes part in
/// no command.
class KWDebugView : public QTextEdit, public KWView
{
    Q_OBJECT

public:
    KWDebugView(QWidget *parent, KWDocument *document);
};
