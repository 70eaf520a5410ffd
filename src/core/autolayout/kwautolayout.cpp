#include "core/autolayout/kwautolayout.h"

#include "core/autolayout/kwgaevent.h"

#include <QCoreApplication>

namespace {

KWLayoutHooks hooksFor(const KWDocument &document, QObject *dialog)
{
    KWLayoutHooks hooks;
    hooks.processEvents = [&document] {
        // A dialog that was told to stop is gone, and no longer keeps input from the other windows.
        QCoreApplication::processEvents(
            document.abortRequested() ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
    };
    if (dialog) {
        hooks.progress = [dialog](const KWLayoutProgress &progress) {
            QCoreApplication::postEvent(
                dialog, new KWGAEvent(KWGAEvent::progressOf(progress), progress.score));
        };
    }
    return hooks;
}
} // namespace

void autoLayout(KWDocument &document, QObject *dialog, const KWLayoutOptions &options)
{
    KWLayoutResult result;
    try {
        emit document.eventPrepareAutoLayout();
        const KWDocument::EventBlock block(document);
        result = runLayout(document, options, hooksFor(document, dialog));
    } catch (...) {
        // The floor plan stands empty since the start.
        document.announceRefresh();
        throw;
    }
    if (result.stoppedBy == KWLayoutResult::Memory)
        emit document.error(
            KWDocument::tr("Insufficient memory available to complete calculation."));
    else if (result.generations == 0)
        emit document.error(
            KWDocument::tr("The automatic layout did not have enough time to compute a good "
                           "solution.\nTry increasing the time allowed in the Preferences "
                           "window."));
    document.setModified(true);
    document.announceRefresh();
    document.announceModified();
}
