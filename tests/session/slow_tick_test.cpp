// Ticks on the real timer never queue up: one that takes longer than the interval delays the next, and
// nothing comes in a burst afterwards.
#include "tests/session/playback_bench.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>
#include <vector>

namespace zeltrona::session {
namespace {

constexpr int kSlowTicks = 8;
constexpr int kTickTime = 25; ///< milliseconds, a dozen times the interval
constexpr int kQuickTicks = 12;

/// When ticks began and ended, in milliseconds; the first ones take long.
class TickLog {
public:
    explicit TickLog(QTimer& timer) {
        m_clock.start();
        QObject::connect(&timer, &QTimer::timeout, &m_context, [this] { tick(); });
    }
    std::vector<double> begins;
    std::vector<double> ends;

private:
    double now() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }
    void tick() {
        begins.push_back(now());
        if (begins.size() <= kSlowTicks) {
            QThread::msleep(kTickTime);
        }
        ends.push_back(now());
    }
    QElapsedTimer m_clock;
    QObject m_context;
};

TEST(SlowTick, DelaysTheNextAndNoneComesInABurstAfterwards) {
    testing::OpenPlayback play;
    testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QStringLiteral("9"));
    play.press("animCheckLoop");
    play.press("cmdAnimPlay");
    const int interval = play.timer().interval();
    ASSERT_EQ(interval, 2);
    TickLog log(play.timer());
    testing::waitUntil([&log] { return log.begins.size() >= kSlowTicks + kQuickTicks; });
    play.press("cmdAnimPause");
    ASSERT_GE(log.begins.size(), std::size_t{kSlowTicks + kQuickTicks});
    for (std::size_t i = 1; i < log.begins.size(); ++i) {
        EXPECT_GE(log.begins[i], log.ends[i - 1]) << "tick " << i << " within the one before it";
    }
    // A hundred ticks were missed: kept, they would come at once. A timer may be half an interval early.
    const double after = log.begins[kSlowTicks + kQuickTicks - 1] - log.ends[kSlowTicks - 1];
    EXPECT_GE(after, (kQuickTicks - 2) * interval);
}

} // namespace
} // namespace zeltrona::session
