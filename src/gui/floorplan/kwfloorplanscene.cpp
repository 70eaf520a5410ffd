#include "gui/floorplan/kwfloorplanscene.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwcolours.h"

#include <array>
#include <utility>

namespace {

QColor colourAt(int index)
{
    static constexpr std::array<QColor, 16> colours{
        QColor(255, 0, 0),   QColor(0, 255, 0),     QColor(0, 0, 255),   QColor(255, 255, 0),
        QColor(255, 0, 255), QColor(0, 255, 255),   QColor(192, 192, 0), QColor(192, 0, 192),
        QColor(0, 192, 192), QColor(255, 192, 0),   QColor(192, 0, 0),   QColor(0, 192, 0),
        QColor(0, 0, 192),   QColor(192, 192, 255), QColor(0, 192, 255), QColor(192, 192, 192)};
    return colours.at(static_cast<std::size_t>(index) % colours.size());
}
} // namespace

KWFloorPlanScene::KWFloorPlanScene(KWDocument *document, QObject *parent)
    : QGraphicsScene(parent)
    , m_document(document)
{
}

KWFloorPlanLook::Seats &KWFloorPlanScene::sharedDisplay()
{
    static KWFloorPlanLook::Seats display;
    return display;
}

const KWFloorPlanLook::Seats &KWFloorPlanScene::display()
{
    return sharedDisplay();
}

void KWFloorPlanScene::setSelected(QGraphicsItem *item)
{
    if (item == m_selected)
        return;
    for (QGraphicsItem *changed : {std::exchange(m_selected, item), item}) {
        // The others look the same.
        if (changed && (changed->type() == SeatType || changed->type() == TableType))
            changed->update();
    }
    emit selectedChanged();
}

QColor KWFloorPlanScene::selectionColour() const
{
    const QColor own = m_document->floorplanColourSelected();
    return own.isValid() ? own : KWColours::highlightColour();
}

QColor KWFloorPlanScene::outerColour(const KWGroup *group) const
{
    return colourAt(m_document->indexOfGroup(group));
}

QColor KWFloorPlanScene::innerColour(const KWGroup *group) const
{
    return colourAt(m_document->indexOfGroup(group) / 16);
}
