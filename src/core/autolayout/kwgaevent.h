#pragma once

#include <QEvent>

/// How far a layout run is, posted to the dialog that shows it.
class KWGAEvent : public QEvent
{
public:
    static constexpr auto EventType = static_cast<QEvent::Type>(1001);

    KWGAEvent(qint32 progress, qint32 score)
        : QEvent(EventType)
        , m_progress(progress)
        , m_score(score)
    {
    }

    /// Start solutions made, and ten more for each generation after that.
    qint32 progress() const { return m_progress; }
    /// The best score so far.
    qint32 score() const { return m_score; }

private:
    qint32 m_progress;
    qint32 m_score;
};
