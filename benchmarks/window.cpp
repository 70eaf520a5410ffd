#include "benchplan.h"
#include "gui/appearance/kwpixmaps.h"
#include "gui/framework/kwusersettings.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwmainwinimpl.h"
#include "openwindow.h"

#include <QApplication>
#include <QTemporaryDir>

// What a person waits for with the window up, on the display that the environment names. Each
// takes the number of guests.

KWMainWinImpl *openWindow = nullptr;

KWDocument &plan()
{
    return *openWindow->document();
}

void settle()
{
    QApplication::processEvents();
    QApplication::processEvents();
}

void planSizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int guests : {20, 100, 300, 600, 2000})
        benchmark->Arg(guests);
    benchmark->Unit(benchmark::kMillisecond)->UseRealTime();
}

namespace {

void openPlan(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("plan.kw"));
    {
        KWDocument plan;
        fillBenchPlan(plan, static_cast<int>(state.range(0)));
        plan.save(path, {});
    }
    for (auto _ : state) {
        openWindow->fileCommands()->openPlan(path);
        QApplication::processEvents();
    }
}
BENCHMARK(openPlan)->Apply(planSizes);

void undoPoint(benchmark::State &state)
{
    fillBenchPlan(*openWindow->document(), static_cast<int>(state.range(0)));
    for (auto _ : state)
        openWindow->saveUndoState(QStringLiteral("Lock"));
    openWindow->document()->clear();
}
BENCHMARK(undoPoint)->Apply(planSizes);
} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    QApplication application(argc, argv);
    initAppearanceResources();
    KWUserSettings().setHelpShowGettingStarted(false);
    KWMainWinImpl mainWindow;
    mainWindow.initialise(nullptr, {QStringLiteral("ambrelune")});
    openWindow = &mainWindow;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
