#include "gui/appearance/kwplancolours.h"

#include "core/model/kwdocument.h"

#include <QList>

namespace {

using KWPlanColours::Mode;

/// A colour of the plan and its place in a theme.
struct Part
{
    QColor KWColours::*colour;
    QColor (KWDocument::*get)() const;
    void (KWDocument::*set)(const QColor &);
};

using C = KWColours;
using D = KWDocument;

QList<Part> parts(Mode mode)
{
    switch (mode) {
    case Mode::TableChart:
        return {
            {&C::inside, &D::tableChartColourBackground, &D::setTableChartColourBackground},
            {&C::tableText, &D::tableChartColourText, &D::setTableChartColourText},
        };
    case Mode::GuestChart:
        return {
            {&C::inside, &D::guestChartColourBackground, &D::setGuestChartColourBackground},
            {&C::tableText, &D::guestChartColourText, &D::setGuestChartColourText},
        };
    default:
        return {
            {&C::seats, &D::floorplanColourSeats, &D::setFloorplanColourSeats},
            {&C::seatsEdge, &D::floorplanColourSeatsEdge, &D::setFloorplanColourSeatsEdge},
            {&C::tables, &D::floorplanColourTables, &D::setFloorplanColourTables},
            {&C::tablesEdge, &D::floorplanColourTablesEdge, &D::setFloorplanColourTablesEdge},
            {&C::inside, &D::floorplanColourInside, &D::setFloorplanColourInside},
            {&C::outside, &D::floorplanColourOutside, &D::setFloorplanColourOutside},
            {&C::seatsText, &D::floorplanColourSeatsText, &D::setFloorplanColourSeatsText},
            {&C::tableText, &D::floorplanColourTableText, &D::setFloorplanColourTableText},
            {&C::selected, &D::floorplanColourSelected, &D::setFloorplanColourSelected},
        };
    }
}

struct FontPart
{
    QFont (D::*get)() const;
    void (D::*set)(const QFont &);
};

FontPart fontPart(Mode mode)
{
    switch (mode) {
    case Mode::TableChart:
        return {&D::tableChartFont, &D::setTableChartFont};
    case Mode::GuestChart:
        return {&D::guestChartFont, &D::setGuestChartFont};
    default:
        return {&D::floorPlanFont, &D::setFloorPlanFont};
    }
}
} // namespace

KWColours KWPlanColours::coloursOf(const KWDocument &plan, Mode mode)
{
    KWColours colours;
    if (plan.floorplanColourSelected().isValid())
        colours.selected = plan.floorplanColourSelected();
    for (const Part &part : parts(mode)) {
        if (const QColor colour = (plan.*part.get)(); colour.isValid())
            colours.*part.colour = colour;
    }
    colours.font = (plan.*fontPart(mode).get)();
    return colours;
}

void KWPlanColours::setColours(KWDocument &plan, Mode mode, const KWColours &colours)
{
    for (const Part &part : parts(mode))
        (plan.*part.set)(colours.*part.colour);
    (plan.*fontPart(mode).set)(colours.font);
}
