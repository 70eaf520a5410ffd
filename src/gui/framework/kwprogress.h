#pragma once

/// Shows how far long work has come on the main window's status bar, and lets the window paint.
/// 100 ends the work and takes the bar away.
void setProgress(int percent);
/// `value` of `total` steps; `total` must be above 0.
void setProgress(int value, int total);
