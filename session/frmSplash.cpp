#include "session/frmSplash.h"

#include "platform/themed_icon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>

namespace zeltrona::session {

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 200;
constexpr int kMilliseconds = 3000;

} // namespace

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen), m_timer(new QTimer(this)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Zeltrona"));
    setAccessibleName(QStringLiteral("Zeltrona"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose);
    setFixedSize(kWidth, kHeight);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());

    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setInterval(kMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
    m_timer->start();
}

void frmSplash::Timer1_Timer() {
    m_timer->stop();
    emit timePassed();
    close();
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(),
                       platform::themedPixmap(QStringLiteral("splash"), palette(), devicePixelRatioF()));
}

} // namespace zeltrona::session
