// The lines for wishes, met and unmet.

#include "core/model/kwdocument.h"
#include "gui/floorplan/kwcanvas.h"
#include "gui/floorplan/kwfloorplanitem.h"
#include "gui/framework/kwbusy.h"

namespace {

QColor lineColour(int value)
{
    switch (value) {
    case KWScore::Loves:
        return Qt::red;
    case KWScore::Likes:
        return Qt::magenta;
    case KWScore::Dislikes:
        return Qt::gray;
    default:
        return Qt::black;
    }
}
} // namespace

void KWCanvas::showLovesAffinity()
{
    addLines(KWScore::Loves);
}

void KWCanvas::showLikesAffinity()
{
    addLines(KWScore::Likes);
}

void KWCanvas::showDislikesAffinity()
{
    addLines(KWScore::Dislikes);
}

void KWCanvas::showHatesAffinity()
{
    addLines(KWScore::Hates);
}

void KWCanvas::showAllAffinity()
{
    showLovesAffinity();
    showLikesAffinity();
    showDislikesAffinity();
    showHatesAffinity();
}

void KWCanvas::addLines(int value)
{
    const KWBusy busy;
    for (const GuestPair &pair : document()->proximityPairs(value))
        addLine(pair, value);
}

void KWCanvas::showConflicts()
{
    const KWBusy busy;
    for (const int value : {KWScore::Loves, KWScore::Likes, KWScore::Dislikes, KWScore::Hates}) {
        for (const GuestPair &pair : document()->proximityPairs(value)) {
            if (isConflict(pair, value))
                addLine(pair, value);
        }
    }
}

bool KWCanvas::isConflict(const GuestPair &pair, int value) const
{
    switch (value) {
    case KWScore::Loves:
        return !document()->isNextTo(pair.first, pair.second);
    case KWScore::Likes:
        return !document()->atSameTable(pair.first, pair.second);
    case KWScore::Dislikes:
        return document()->isNextTo(pair.first, pair.second);
    default:
        return document()->atSameTable(pair.first, pair.second);
    }
}

void KWCanvas::addLine(const GuestPair &pair, int value)
{
    const KWSeatCanvasViewItem *from = itemOfGuest(pair.first);
    const KWSeatCanvasViewItem *to = itemOfGuest(pair.second);
    if (!from || !to)
        return;
    const QLineF line(from->pos().toPoint(), to->pos().toPoint());
    m_lines.append(new KWLineCanvasViewItem(this, line, lineColour(value)));
}

void KWCanvas::hideAffinity()
{
    if (m_lines.contains(m_selected))
        setSelected(nullptr);
    qDeleteAll(std::exchange(m_lines, {}));
}
