#pragma once

#include "gui/appearance/kwcolours.h"

class KWDocument;

/// The colours and the font that a plan keeps for each of its pictures. A chart has two colours of
/// its own, which stand for the inside of the room and the text of the tables of a floor plan, so
/// that one theme fits all.
namespace KWPlanColours {

enum Mode { FloorPlan, TableChart, GuestChart };

/// What the mode has no use for is as in a new plan, but for what is selected: that is the plan's
/// own colour or else the application's.
KWColours coloursOf(const KWDocument &plan, Mode mode);
/// Tells nobody of the change.
void setColours(KWDocument &plan, Mode mode, const KWColours &colours);

} // namespace KWPlanColours
