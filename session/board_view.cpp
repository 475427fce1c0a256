#include "session/board_view.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

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
    tellReleases(m_held & (lostButtons() | event->button()));
    m_held |= QGuiApplication::mouseButtons() & event->button();
    watchWindow();
    emit pressed(pointerEvent(*event, event->button()));
    tellReleases(lostButtons());
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
    tellReleases(lostButtons());
    emit moved(pointerEvent(*event, event->buttons()));
    tellReleases(lostButtons());
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
    m_held.setFlag(event->button(), false);
    emit released(pointerEvent(*event, event->button()));
}

// A message box or a menu that a press or a drag opens ends the board's hold on the pointer. While it is open
// it swallows a release, and afterwards the toolkit hands one to no control: the window system's own state of
// the buttons is all that is left of it.
Qt::MouseButtons BoardView::lostButtons() const {
    return m_held & ~QGuiApplication::mouseButtons();
}

void BoardView::tellReleases(Qt::MouseButtons buttons) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (buttons.testFlag(button)) {
            m_held.setFlag(button, false);
            const QPointF place = mapFromGlobal(QPointF(QCursor::pos()));
            emit released({buttonCode(button), shiftCode(QGuiApplication::keyboardModifiers()),
                           static_cast<float>(place.x()), static_cast<float>(place.y())});
        }
    }
}

void BoardView::watchWindow() {
    if (QWindow* handle = window()->windowHandle()) {
        handle->installEventFilter(this);
    }
}

// Told later, when the board had its chance to get the release in the ordinary way.
bool BoardView::eventFilter(QObject* watched, QEvent* event) {
    if (m_held != Qt::NoButton && event->type() == QEvent::MouseButtonRelease) {
        QMetaObject::invokeMethod(
            this, [this] { tellReleases(lostButtons()); }, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zeltrona::session
