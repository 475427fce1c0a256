#include "platform/themed_icon.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QPointer>

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

QIcon loadIcon(const QString& name, const QString& chosen) {
    QIcon icon(artFile(chosen, ".svg"));
    if (const QString on = artFile(name, "_on.svg"); QFile::exists(on)) {
        icon.addFile(on, {}, QIcon::Normal, QIcon::On);
    }
    return icon;
}

/// The icons made so far, until the application ends. Each icon anew would leave its pictures behind in the
/// toolkit's cache, and a program that opens windows all day would grow.
class IconShelf : public QObject {
public:
    using QObject::QObject;
    QHash<QString, QIcon> icons;
};

QHash<QString, QIcon>& keptIcons() {
    static QPointer<IconShelf> shelf;
    if (shelf == nullptr) {
        shelf = new IconShelf(qApp);
    }
    return shelf->icons;
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
    const QString chosen = themedName(name, palette, ".svg");
    QIcon& icon = keptIcons()[chosen];
    if (icon.isNull()) {
        icon = loadIcon(name, chosen);
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
