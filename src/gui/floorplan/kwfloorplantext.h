#pragma once

#include "core/model/kwguest.h"

#include <QFont>
#include <QSizeF>
#include <QString>

class KWDocument;
class KWTable;

/// The texts of the floor plan: what stands in tables and seats, and what their tips say.
///
/// A name order is one of KWGuest::NameOrder, or seatNumbers. Tips are rich text, texts of the
/// plan in them escaped.
namespace KWFloorPlanText {

/// In place of a name order: seats show their numbers instead of their guests' names.
inline constexpr int seatNumbers = KWGuest::NameOrderCount;

/// What stands in a seat, not yet wrapped: its guest's name, or its number from 1, which an empty
/// seat has, too. Empty for a seat that does not exist.
QString seatText(const KWTable &table, int seat, int nameOrder);
/// A name in one to three lines, broken at blanks near its middle.
QString wrapped(const QString &name);
/// A font of a size in pixels, for a text that has to fit into a box of as many: as it is, or as
/// much smaller as it must be, down to two thirds.
QFont fittedFont(const QFont &font, const QString &text, const QSizeF &box);

QString tableTip(const KWTable &table);
/// What is known of the guest on a seat; empty for a seat that is empty or does not exist. A
/// display name stands for the seat's number.
QString seatTip(const KWTable &table, int seat, int nameOrder);
/// A tip as it is shown: at most 200 characters and "...", with a line feed in front of a break
/// now and then.
QString shortenedTip(const QString &tip);
} // namespace KWFloorPlanText
