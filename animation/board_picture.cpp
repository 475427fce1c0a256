#include "animation/board_picture.h"

#include <QMouseEvent>
#include <QPainter>

namespace zeltrona::animation {

namespace {

bool isWholeRatio(const QSize& from, const QSize& to) {
    return !from.isEmpty() && to.width() % from.width() == 0
           && to.height() == from.height() * (to.width() / from.width());
}

} // namespace

BoardPicture::BoardPicture(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("pic"));
    setAccessibleName(QStringLiteral("Board"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardPicture::showBoard(const QImage& board) {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (pixels.isEmpty() || board.isNull()) {
        return;
    }
    if (m_picture.size() != pixels) {
        m_picture = QImage(pixels, QImage::Format_RGB32);
    }
    QPainter painter(&m_picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isWholeRatio(board.size(), pixels));
    painter.drawImage(QRect(QPoint(), pixels), board);
    painter.end();
    update();
}

void BoardPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    painter.drawImage(QRectF(rect()), m_picture);
}

// A click on the picture is a click on nothing: only the ground around it asks for the exit.
void BoardPicture::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void BoardPicture::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

} // namespace zeltrona::animation
