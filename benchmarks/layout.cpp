#include "benchplan.h"
#include "core/model/kwdocument.h"
#include "core/model/kwrandom.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"
#include "gui/shell/kwmainwinimpl.h"
#include "openwindow.h"

#include <QElapsedTimer>
#include <QTimer>

// A layout in the main window with its dialog, with the default settings. Takes the number of
// guests, of whom none is seated.

namespace {

/// How long events have waited at most while it lives.
class LongestWait
{
public:
    LongestWait()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (m_clock.isValid())
                m_longest = std::max(m_longest, m_clock.nsecsElapsed());
            m_clock.start();
        });
        m_timer.start(0);
    }

    double milliseconds() const { return static_cast<double>(m_longest) / 1e6; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

void layOut(benchmark::State &state)
{
    double wait = 0;
    for (auto _ : state) {
        state.PauseTiming();
        plan().clear();
        plan().blockEvents();
        fillBenchPlan(plan(), static_cast<int>(state.range(0)));
        plan().unblockEvents();
        plan().announceRefresh();
        settle();
        setFixedRandomSeed(1);
        const LongestWait longest;
        state.ResumeTiming();
        KWAutoLayoutProgressDlgImpl(openWindow, &plan()).runAutoLayout();
        settle();
        wait = std::max(wait, longest.milliseconds());
    }
    state.counters["longest_wait_ms"] = wait;
}
BENCHMARK(layOut)->Apply(planSizes);
} // namespace
