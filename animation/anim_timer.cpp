#include "animation/anim_timer.h"

namespace zeltrona::animation {

void AnimTimer::setEnabled(bool enabled) {
    if (m_enabled == enabled) {
        return;
    }
    const bool ran = runs();
    m_enabled = enabled;
    if (runs()) {
        startTicks();
    } else if (ran) {
        stopTicks();
    }
}

void AnimTimer::setInterval(int milliseconds) {
    if (m_interval == milliseconds) {
        return;
    }
    const bool ran = runs();
    m_interval = milliseconds;
    if (runs()) {
        startTicks();
        return;
    }
    if (ran) {
        stopTicks();
    }
    keepInterval();
}

} // namespace zeltrona::animation
