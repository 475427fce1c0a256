#pragma once

#include "animation/frmMainFullScreen.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QTimer>

namespace zeltrona::testing {

/// An open play whose clock a test turns by hand: no tick comes as long as the event loop does not run.
class OpenPlayback : public OpenPlay {
public:
    using OpenPlay::OpenPlay;

    QTimer& timer() { return control<QTimer>(window(), QStringLiteral("Timer1")); }
    void press(const char* name) { click(window(), QLatin1String(name)); }
    std::string counter() {
        return control<QLabel>(window(), QStringLiteral("animlblFrameCurr")).text().toStdString();
    }
    std::string speed() {
        return control<QLineEdit>(window(), QStringLiteral("txtAnimSpeed")).text().toStdString();
    }
    void tick(int count = 1) {
        for (int i = 0; i < count; ++i) {
            QMetaObject::invokeMethod(&timer(), "timeout", Qt::DirectConnection);
        }
    }
    /// Ticks until the timer stops; their number.
    int run(int limit = 2000) {
        int ticks = 0;
        while (timer().isActive() && ticks < limit) {
            tick();
            ++ticks;
        }
        return ticks;
    }

    /// The open full screen, or null.
    static animation::frmMainFullScreen* fullScreen() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<animation::frmMainFullScreen*>(widget);
            if (found != nullptr && found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }
    void openFullScreen() { choose(window(), QStringLiteral("mnuViewFullScreenAnimation")); }
};

} // namespace zeltrona::testing
