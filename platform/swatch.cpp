#include "platform/swatch.h"

#include <QPainter>
#include <QPixmap>

namespace zeltrona::platform {

namespace {

constexpr int kSide = 16;
constexpr QRgb kEdge = 0xFF808080;

} // namespace

QIcon swatch(const QColor& color) {
    QPixmap picture(kSide, kSide);
    picture.fill(QColor(kEdge));
    QPainter(&picture).fillRect(1, 1, kSide - 2, kSide - 2, color);
    return QIcon(picture);
}

} // namespace zeltrona::platform
