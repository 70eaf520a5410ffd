#pragma once

/// Whether tool tips are shown anywhere in the program.
void setToolTipsEnabled(bool enabled);
bool toolTipsEnabled();
