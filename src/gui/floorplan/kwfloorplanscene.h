#pragma once

#include "gui/floorplan/kwfloorplanlook.h"

#include <QGraphicsItem>
#include <QGraphicsScene>

class KWDocument;
class KWGroup;

/// What the items of the floor plan know of the scene in which they are: the plan, how it is shown
/// and what is selected. The scene need not know more of them than their types.
class KWFloorPlanScene : public QGraphicsScene
{
    Q_OBJECT

public:
    enum ItemType { SeatType = QGraphicsItem::UserType + 1, TableType, RoomType };

    /// The plan is not owned and outlives the scene.
    explicit KWFloorPlanScene(KWDocument *document, QObject *parent);

    KWDocument *document() const { return m_document; }

    /// What all scenes show of seats, for the life of the process.
    static const KWFloorPlanLook::Seats &display();
    /// KWGuest::NameOrder, or KWFloorPlanText::seatNumbers.
    int nameOrder() const { return m_nameOrder; }

    /// The selected item, at most one; null if there is none. A picture shows none.
    QGraphicsItem *selected() const { return m_selected; }
    void setSelected(QGraphicsItem *item);
    /// The plan's colour for selected things, or the desktop's if it has none.
    QColor selectionColour() const;
    /// True while a picture is drawn, which shows what the plan has and nothing that is going on.
    bool paintsPicture() const { return m_paintsPicture; }

    /// The marks of a group: by its place in the plan, one of 256 pairs.
    QColor outerColour(const KWGroup *group) const;
    QColor innerColour(const KWGroup *group) const;

signals:
    /// selected() has become something else.
    void selectedChanged();

protected:
    static KWFloorPlanLook::Seats &sharedDisplay();

    int m_nameOrder = 0;
    QGraphicsItem *m_selected = nullptr;
    bool m_paintsPicture = false;

private:
    KWDocument *m_document;
};
