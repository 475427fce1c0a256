#include "platform/swatch.h"

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QString>

namespace zeltrona::platform {

namespace {

constexpr int kSide = 16;
constexpr QRgb kEdge = 0xFF808080;

QPixmap paintSwatch(const QColor& color) {
    QPixmap picture(kSide, kSide);
    picture.fill(QColor(kEdge));
    QPainter(&picture).fillRect(1, 1, kSide - 2, kSide - 2, color);
    return picture;
}

} // namespace

QIcon swatch(const QColor& color) {
    // One picture to a colour: the greyed ones that the toolkit makes of it and keeps are then made once too.
    const QString key = QStringLiteral("swatch ") + color.name(QColor::HexArgb);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = paintSwatch(color);
        QPixmapCache::insert(key, picture);
    }
    return QIcon(picture);
}

} // namespace zeltrona::platform
