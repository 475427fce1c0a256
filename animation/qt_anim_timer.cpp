#include "animation/qt_anim_timer.h"

#include <utility>

namespace zeltrona::animation {

QtAnimTimer::QtAnimTimer(QTimer& timer, std::function<void(bool)> onRunning)
    : m_timer(timer), m_onRunning(std::move(onRunning)) {
    m_timer.setTimerType(Qt::PreciseTimer);
}

void QtAnimTimer::startTicks() {
    m_timer.start(interval());
    if (m_onRunning) {
        m_onRunning(true);
    }
}

void QtAnimTimer::stopTicks() {
    m_timer.stop();
    if (m_onRunning) {
        m_onRunning(false);
    }
}

void QtAnimTimer::keepInterval() {
    m_timer.setInterval(interval());
}

} // namespace zeltrona::animation
