#pragma once

#include "kwmainwindow.h"

#include <QList>
#include <QWidget>

/// A main window with an empty widget that notes the progress shown on it.
class FrameWindow : public KWMainWindow
{
public:
    QWidget *widget() override { return &m_widget; }
    KWDocument *document() override { return nullptr; }
    KWUserSettings *userSettings() override { return nullptr; }
    QPrinter *printer() override { return nullptr; }
    void saveUndoState(const QString &) override {}
    void setActiveView(KWView *) override {}
    KWView *activeView() const override { return nullptr; }
    void updateActionsOnViewChange() override {}
    void updatePrintAction() override {}
    void updateCopyAction() override {}
    void showStatusMessage(const QString &) override {}
    void setProgress(int percent) override { progress.append(percent); }

    QList<int> progress;

private:
    QWidget m_widget;
};
