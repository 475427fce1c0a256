#include "session/frmSplash.h"
#include "tests/session/window_harness.h"

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

TEST(Splash, IsAPictureOf400By200WithATimerOf3000Milliseconds) {
    frmSplash splash;
    splash.setAttribute(Qt::WA_DeleteOnClose, false);
    splash.show();
    EXPECT_EQ(splash.objectName(), QStringLiteral("frmSplash"));
    EXPECT_EQ(splash.size(), QSize(400, 200));
    const auto& timer = testing::control<QTimer>(splash, QStringLiteral("Timer1"));
    EXPECT_EQ(timer.interval(), 3000);
    EXPECT_TRUE(timer.isActive());
    const QImage picture = splash.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(picture, QImage(QStringLiteral(":/art/splash.png")).convertToFormat(QImage::Format_RGB32));
}

TEST(Splash, TimerSwitchesItselfOffTellsOnceAndClosesTheWindow) {
    frmSplash splash;
    splash.setAttribute(Qt::WA_DeleteOnClose, false);
    const QSignalSpy passed(&splash, &frmSplash::timePassed);
    splash.show();
    auto& timer = testing::control<QTimer>(splash, QStringLiteral("Timer1"));
    timer.setInterval(1);
    testing::waitUntil([&] { return passed.count() > 0; });
    EXPECT_FALSE(timer.isActive());
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(passed.count(), 1);
}

TEST(Splash, IsDeletedWhenItCloses) {
    QPointer<frmSplash> splash = new frmSplash;
    splash->show();
    splash->close();
    testing::settle();
    EXPECT_TRUE(splash.isNull());
}

} // namespace
} // namespace zeltrona::session
