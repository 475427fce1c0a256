#include "platform/themed_icon.h"

#include <QFile>

namespace zeltrona::platform {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

QIcon themedIcon(const QString& name, const QPalette& palette) {
    const QString plain = QStringLiteral(":/art/%1.svg").arg(name);
    const QString light = QStringLiteral(":/art/%1_light.svg").arg(name);
    return QIcon(isDark(palette) && QFile::exists(light) ? light : plain);
}

} // namespace zeltrona::platform
