#pragma once

#include <QStringList>

class KWMainWinImpl;

/// What holds of the main window between any two things that its user does. Each check gives a line
/// for each fault.
namespace WindowChecks {

/// Items of the floor plan for tables and seats that are not there, and the other way round.
QStringList floorPlan(const KWMainWinImpl &window);
/// Rows for guests that are not there or that show something else than the guest, and guests
/// without a row.
QStringList list(const KWMainWinImpl &window);
/// Scores of tables and seats that are not those of a plan just scored.
QStringList scores(KWMainWinImpl &window);
/// Commands that an update would switch on or off, check or uncheck.
QStringList commands(KWMainWinImpl &window);
/// Cursors, blocked events, captions, counts, dialogs that were left behind, and a view that has
/// the keys without being active.
QStringList rest(KWMainWinImpl &window);

QStringList all(KWMainWinImpl &window);

} // namespace WindowChecks
