#pragma once

#include "core/autolayout/kwlayoutrun.h"

class QObject;

/// Lays out the live plan of a window: a layout run during which the plan's events are blocked and
/// the program's own events are processed.
///
/// `dialog`, which may be null, is posted a KWGAEvent after each step; abortProcessing() of the
/// plan ends the run, and from then on the user's input waits. At the end the plan counts as
/// modified and tells all views to rebuild themselves; error() tells before that if the memory or
/// the time was too short. An exception other than of memory leaves the plan as it was and passes
/// on.
void autoLayout(KWDocument &document, QObject *dialog, const KWLayoutOptions &options);
