#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace zeltrona::platform {

/// The one strong colour of the windows: what is pressed, running or has the focus.
inline constexpr QRgb kAccent = 0xFFD9622B;

/// Whether a palette shows light text on a dark ground.
bool isDark(const QPalette& palette);

/// The drawing ":/art/NAME.svg", or its light sister ":/art/NAME_light.svg" on a dark palette; the plain one
/// where there is no sister.
QIcon themedIcon(const QString& name, const QPalette& palette);

} // namespace zeltrona::platform
