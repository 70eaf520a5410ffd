#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;

/// What can be printed: always one page, scaled to fit.
class KWPrintable
{
public:
    virtual ~KWPrintable() = default;

    /// The ground of the page in a preview.
    virtual QColor backgroundColour() const = 0;

    /// Paints the page, `width` by `height` in the painter's units, with a margin of 0 to 0.5 as a
    /// part of it. What the positions mean is told by each printable.
    virtual void print(QPainter *painter, int width, int height, double margin,
                       const QString &header, const QFont &headerFont, const QColor &headerColour,
                       int headerPosition, const QString &footer, const QFont &footerFont,
                       const QColor &footerColour, int footerPosition) = 0;
};
