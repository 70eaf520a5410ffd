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

    void deleteSelection() override {}
    void editProperties() override {}
    void unassign() override {}
    void print() override {}
    void copy() override {}
    void rotate() override {}
    void setAffinity(int) override {}
    bool canDelete() override { return false; }
    bool canEditProperties() override { return false; }
    bool canUnassign() override { return false; }
    void setLocked(bool) override {}
    bool canSetLocked() override { return false; }
    bool isLocked() override { return false; }
    void setAccepted(bool) override {}
    bool canSetAccepted() override { return false; }
    bool hasAccepted() override { return false; }
    bool canPrint() override { return false; }
    bool canCopy() override { return false; }
    bool canSetAffinity() override { return false; }
    bool canRotate() override { return false; }
    void showGuest(KWGuest *) override {}
};
