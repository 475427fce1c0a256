#include "session/tool_tile.h"

#include <QPainter>

namespace zeltrona::session {

namespace {

constexpr int kCell = 20;
constexpr int kFrame = 2; ///< room around the cell for hover and focus

} // namespace

ToolTile::ToolTile(int number, QWidget* parent) : QAbstractButton(parent), m_number(number) {
    setFixedSize(ToolTile::sizeHint());
    setFocusPolicy(Qt::TabFocus);
}

void ToolTile::setTag(const QString& tag) {
    m_isDown = tag == QLatin1String("1");
    update();
}

void ToolTile::setStrip(const QPixmap& strip) {
    m_strip = strip;
    update();
}

QSize ToolTile::sizeHint() const {
    return {kCell + 2 * kFrame, kCell + 2 * kFrame};
}

void ToolTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (underMouse() && !m_isDown) {
        painter.fillRect(rect(), palette().color(QPalette::Midlight));
    }
    const qreal ratio = m_strip.devicePixelRatio();
    const QRectF cell(toolImageOffset(m_number + 1, m_isDown ? 1 : 0) * ratio, 0, kCell * ratio,
                      kCell * ratio);
    painter.drawPixmap(QRectF(kFrame, kFrame, kCell, kCell), m_strip, cell);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ToolTile::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void ToolTile::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace zeltrona::session
