#pragma once

#include "animation/anim_timer.h"

#include <QTimer>

#include <functional>

namespace zeltrona::animation {

/// Playback's clock on a timer of the toolkit, set to be precise: the default may be late by a twentieth, and
/// at 2 ms by a whole tick. The toolkit never queues ticks up: a tick that takes longer than the interval
/// delays the next.
class QtAnimTimer : public AnimTimer {
public:
    /// `timer` must outlive this; `onRunning` is told when ticks begin and end.
    explicit QtAnimTimer(QTimer& timer, std::function<void(bool running)> onRunning = {});

protected:
    void startTicks() override;
    void stopTicks() override;
    void keepInterval() override;

private:
    QTimer& m_timer;
    std::function<void(bool)> m_onRunning;
};

} // namespace zeltrona::animation
