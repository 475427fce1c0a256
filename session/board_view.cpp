#include "session/board_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace zeltrona::session {

namespace {

int buttonCode(Qt::MouseButtons buttons) {
    int code = 0;
    code += buttons.testFlag(Qt::LeftButton) ? 1 : 0;
    code += buttons.testFlag(Qt::RightButton) ? 2 : 0;
    code += buttons.testFlag(Qt::MiddleButton) ? 4 : 0;
    return code;
}

int shiftCode(Qt::KeyboardModifiers modifiers) {
    int code = 0;
    code += modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0;
    code += modifiers.testFlag(Qt::ControlModifier) ? 2 : 0;
    code += modifiers.testFlag(Qt::AltModifier) ? 4 : 0;
    return code;
}

PointerEvent pointerEvent(const QMouseEvent& event, Qt::MouseButtons buttons) {
    return {buttonCode(buttons), shiftCode(event.modifiers()), static_cast<float>(event.position().x()),
            static_cast<float>(event.position().y())};
}

} // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    // Every pixel comes from the image, so nothing is wiped before it.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardView::show(render::BoardSurface& surface) {
    m_surface = &surface;
    surface.setRefreshObserver([this] { showRefreshed(); });
    showRefreshed();
}

void BoardView::showRefreshed() {
    const QSize size(m_surface->width(), m_surface->height());
    if (this->size() != size) {
        setFixedSize(size);
    }
    update();
}

void BoardView::paintEvent(QPaintEvent* event) {
    if (m_surface == nullptr) {
        return;
    }
    QPainter painter(this);
    const QImage& image = m_surface->image();
    const qreal ratio = devicePixelRatioF();
    if (ratio == std::floor(ratio)) {
        painter.drawImage(event->rect(), image, event->rect());
        return;
    }
    // Between whole scales equal blocks are impossible: enlarge past the screen, then let it shrink smoothly.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), image.scaled(image.size() * static_cast<int>(std::ceil(ratio))));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    emit pressed(pointerEvent(*event, event->button()));
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
    emit moved(pointerEvent(*event, event->buttons()));
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
    emit released(pointerEvent(*event, event->button()));
}

} // namespace zeltrona::session
