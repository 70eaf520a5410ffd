#include "gui/appearance/kwcolourpreview.h"

#include <QPainter>

#include <cmath>

namespace {
constexpr double fullCircle = 6.284;

QRect square(const QPoint &centre, int radius)
{
    return {centre - QPoint(radius, radius), QSize(2 * radius, 2 * radius)};
}
} // namespace

KWColourPreview::KWColourPreview(QWidget *parent)
    : QLabel(parent)
{
    setMinimumSize(100, 100);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void KWColourPreview::setColours(const KWColours &colours)
{
    m_colours = colours;
    update();
}

void KWColourPreview::paintEvent(QPaintEvent *)
{
    const int side = qMin(width(), height());
    const int seatRadius = qRound(side * 0.225);
    const int tableRadius = qRound(seatRadius / std::sin(fullCircle / 16) - seatRadius);
    const int room = qRound(side * 0.85);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), m_colours.outside);
    const int inset = tableRadius / 4;
    painter.translate(inset, inset);
    painter.fillRect(-tableRadius, -tableRadius, room + tableRadius, room + tableRadius,
                     m_colours.inside);
    painter.setFont(scaledFont(seatRadius));

    const auto draw = [&](const QRect &shape, const QColor &fill, const QColor &edge,
                          const QColor &ink, const QString &text) {
        painter.setBrush(fill);
        painter.setPen(edge);
        painter.drawEllipse(shape);
        painter.setPen(ink);
        painter.drawText(shape, Qt::AlignCenter, text);
    };
    draw(square({0, 0}, tableRadius), m_colours.tables, m_colours.tablesEdge, m_colours.tableText,
         tr("Table"));
    for (const int seat : {2, 3, 4}) {
        const double angle = seat * fullCircle / 8;
        const double distance = seatRadius + tableRadius;
        const QPoint centre(qRound(std::sin(angle) * distance),
                            qRound(-std::cos(angle) * distance));
        const bool isSelected = seat == 3;
        draw(square(centre, seatRadius), m_colours.seats,
             isSelected ? m_colours.selected : m_colours.seatsEdge,
             isSelected ? m_colours.selected : m_colours.seatsText, tr("Guest"));
    }
}

/// The font in the proportion to these seats in which points stand to those of the floor plan.
QFont KWColourPreview::scaledFont(int seatRadius) const
{
    const double scale = 2 * seatRadius / 100.0;
    QFont font = m_colours.font;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * scale)));
    return font;
}
