#include "animation/transport_button.h"

#include "platform/themed_icon.h"

#include <QEvent>
#include <QPainter>

namespace zeltrona::animation {

namespace {

constexpr int kHeight = 26;
constexpr int kSignSize = 20;
constexpr double kRounding = 4.0;

} // namespace

TransportButton::TransportButton(const QString& sign, int width, QWidget* parent)
    : QToolButton(parent), m_sign(sign) {
    setFixedSize(width, kHeight);
    setIconSize({kSignSize, kSignSize});
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    loadSign();
}

void TransportButton::setRunning(bool running) {
    if (m_running != running) {
        m_running = running;
        update();
    }
}

void TransportButton::loadSign() {
    setIcon(platform::themedIcon(m_sign, palette()));
    QPalette onAccent;
    onAccent.setColor(QPalette::Window, Qt::black);
    onAccent.setColor(QPalette::WindowText, Qt::white);
    m_signOnAccent = platform::themedIcon(m_sign, onAccent);
}

QColor TransportButton::ground() const {
    if (m_running) {
        return QColor::fromRgba(platform::kAccent);
    }
    QColor shade = palette().color(QPalette::WindowText);
    shade.setAlphaF(isDown() ? 0.28F : underMouse() && isEnabled() ? 0.12F : 0.0F);
    return shade;
}

void TransportButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF cell = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
    painter.setPen(hasFocus() ? QPen(QColor::fromRgba(platform::kAccent), 2.0) : QPen(Qt::NoPen));
    painter.setBrush(ground());
    painter.drawRoundedRect(cell, kRounding, kRounding);
    const int inset = isDown() || m_running ? 1 : 0;
    const QRect sign((width() - kSignSize) / 2 + inset, (height() - kSignSize) / 2 + inset, kSignSize,
                     kSignSize);
    (m_running ? m_signOnAccent : icon()).paint(&painter, sign);
    if (m_running) {
        painter.fillRect(QRectF(6.0, height() - 4.0, width() - 12.0, 2.0), Qt::white);
    }
}

void TransportButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        loadSign();
    }
    QToolButton::changeEvent(event);
}

} // namespace zeltrona::animation
