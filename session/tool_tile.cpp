#include "session/tool_tile.h"

#include <QPainter>

namespace zeltrona::session {

namespace {

constexpr int kCell = 20;
constexpr int kFrame = 2; ///< room around the cell for hover and focus

} // namespace

ToolTile::ToolTile(int number, QWidget* parent) : QToolButton(parent), m_number(number) {
    setFixedSize(ToolTile::sizeHint());
    setFocusPolicy(Qt::TabFocus);
    setCheckable(true);
}

void ToolTile::setTag(const QString& tag) {
    setChecked(tag == QLatin1String("1"));
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
    if (underMouse() && !isChecked()) {
        painter.fillRect(rect(), palette().color(QPalette::Midlight));
    }
    const qreal ratio = m_strip.devicePixelRatio();
    const QRectF cell(toolImageOffset(m_number + 1, isChecked() ? 1 : 0) * ratio, 0, kCell * ratio,
                      kCell * ratio);
    painter.drawPixmap(QRectF(kFrame, kFrame, kCell, kCell), m_strip, cell);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ToolTile::enterEvent(QEnterEvent* event) {
    QToolButton::enterEvent(event);
    update();
}

void ToolTile::leaveEvent(QEvent* event) {
    QToolButton::leaveEvent(event);
    update();
}

} // namespace zeltrona::session
