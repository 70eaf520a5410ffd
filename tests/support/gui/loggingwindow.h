#pragma once

#include "support/eventlog.h"
#include "support/gui/fakemainwindow.h"
#include "support/testplan.h"

#include <QApplication>

/// Writes down in one list the plan's events, the undo points, as "undo Insert guest", and what the
/// floor plan is asked to do, as "place Top".
class LoggingWindow : public FakeMainWindow
{
public:
    void saveUndoState(const QString &label) override
    {
        FakeMainWindow::saveUndoState(label);
        addStep(s("undo ") + label);
        m_wasBusy = QApplication::overrideCursor() != nullptr;
    }
    void placeNewTable(KWTable *table) override
    {
        FakeMainWindow::placeNewTable(table);
        addStep(newTables.last());
    }
    void showNewTable(KWTable *table) override
    {
        FakeMainWindow::showNewTable(table);
        addStep(newTables.last());
    }

    /// The steps since the last call.
    QStringList takeSteps()
    {
        const QStringList steps = m_steps + m_log.take();
        m_steps.clear();
        return steps;
    }
    /// Whether the busy cursor was up at the last undo point.
    bool wasBusy() const { return m_wasBusy; }

private:
    void addStep(const QString &step) { m_steps += m_log.take() + QStringList{step}; }

    EventLog m_log{*document()};
    QStringList m_steps;
    bool m_wasBusy = false;
};
