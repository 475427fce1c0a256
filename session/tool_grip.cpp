#include "session/tool_grip.h"

#include <QPainter>

namespace zeltrona::session {

ToolGrip::ToolGrip(QWidget* parent) : QWidget(parent) {
    setCursor(Qt::SizeAllCursor);
    setToolTip(QStringLiteral("Drag to move the tool box"));
}

void ToolGrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid).darker(130));
    for (int y = 5; y <= height() - 5; y += 3) {
        for (int x = 4; x <= width() - 4; x += 3) {
            painter.drawPoint(x, y);
        }
    }
}

} // namespace zeltrona::session
