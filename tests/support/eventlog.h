#pragma once

#include <QObject>
#include <QStringList>

class KWDocument;

/// Writes down every event of a document as it fires, one text each: the signal's name and its
/// arguments, guests by display name, groups and tables by name, as in "eventEditSeat(T,3)".
class EventLog : public QObject
{
    Q_OBJECT

public:
    explicit EventLog(KWDocument &document);

    /// The events since the last call.
    QStringList take();

private:
    QStringList m_events;
};
