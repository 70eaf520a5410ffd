#pragma once

#include <QColor>

/// Relative luminance, from 0 for black to 1 for white.
double luminance(const QColor &colour);

/// From 1 for equal colours to 21 for black on white, as accessibility guidelines have it: 3 is
/// enough for pictures, 4.5 for text.
double contrast(const QColor &a, const QColor &b);

/// Whether white can be read on the ground better than black.
bool isDark(const QColor &ground);

/// `text` itself if it can be read on the ground, else black or white.
QColor legible(const QColor &text, const QColor &ground);

/// `ground` with a share, from 0 to 1, of another colour in it.
QColor mixed(const QColor &ground, const QColor &other, float share);
