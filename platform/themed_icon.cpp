#include "platform/themed_icon.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace zeltrona::platform {

namespace {

QString artFile(const QString& name, const char* ending) {
    return QStringLiteral(":/art/") + name + QString::fromLatin1(ending);
}

QString themedName(const QString& name, const QPalette& palette, const char* ending) {
    const QString light = name + QStringLiteral("_light");
    return isDark(palette) && QFile::exists(artFile(light, ending)) ? light : name;
}

} // namespace

void useAccent() {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, QColor(kAccent));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    QApplication::setPalette(palette);
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

QIcon themedIcon(const QString& name, const QPalette& palette) {
    QIcon icon(artFile(themedName(name, palette, ".svg"), ".svg"));
    if (const QString on = artFile(name, "_on.svg"); QFile::exists(on)) {
        icon.addFile(on, {}, QIcon::Normal, QIcon::On);
    }
    return icon;
}

QPixmap themedPixmap(const QString& name, const QPalette& palette, qreal devicePixelRatio) {
    const QString plain = themedName(name, palette, ".png");
    for (int scale = std::clamp(static_cast<int>(std::ceil(devicePixelRatio)), 1, 3); scale > 1; --scale) {
        const QString enlarged = artFile(plain, scale == 3 ? "_3x.png" : "_2x.png");
        if (QFile::exists(enlarged)) {
            QPixmap picture(enlarged);
            picture.setDevicePixelRatio(scale);
            return picture;
        }
    }
    return QPixmap(artFile(plain, ".png"));
}

} // namespace zeltrona::platform
