#pragma once

namespace zeltrona::animation {

/// The one clock of playback: `Timer1` of the main window, or a test's hand-turned clock.
/// Ticks come while the timer is enabled and its interval is above 0; with an interval of 0 it stays enabled
/// and keeps silent. Setting what is set already does not start the running interval anew.
class AnimTimer {
public:
    virtual ~AnimTimer() = default;

    bool enabled() const { return m_enabled; }
    /// Milliseconds between ticks. Ticks never queue up: one that takes longer delays the next.
    int interval() const { return m_interval; }
    /// Whether ticks come.
    bool runs() const { return m_enabled && m_interval > 0; }

    void setEnabled(bool enabled);
    void setInterval(int milliseconds);

protected:
    /// Begin ticking every interval() milliseconds, the first after one interval; also when already ticking.
    virtual void startTicks() = 0;
    virtual void stopTicks() = 0;
    /// Another interval was set while no ticks come.
    virtual void keepInterval() {}

private:
    bool m_enabled = false;
    int m_interval = 0;
};

} // namespace zeltrona::animation
