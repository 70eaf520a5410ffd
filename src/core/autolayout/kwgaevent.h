#pragma once

#include "core/autolayout/kwlayoutrun.h"

#include <QEvent>

#include <algorithm>
#include <limits>

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

    /// Start solutions made, and ten more for each generation after that, as far as the number
    /// reaches.
    static qint32 progressOf(const KWLayoutProgress &progress)
    {
        constexpr qint64 generationSteps = 10;
        constexpr qint64 most = std::numeric_limits<qint32>::max();
        const qint64 steps = progress.inStartStage
                                 ? progress.done
                                 : progress.total + progress.done * generationSteps;
        return static_cast<qint32>(std::min(steps, most));
    }
    qint32 progress() const { return m_progress; }
    /// The best score so far.
    qint32 score() const { return m_score; }

private:
    qint32 m_progress;
    qint32 m_score;
};
