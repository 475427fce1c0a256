#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QString>

namespace zeltrona::platform {

/// The one strong colour of the windows: what is pressed, running or has the focus.
inline constexpr QRgb kAccent = 0xFFD9622B;

/// To be called once, after the application object is made: selection and focus take the accent, everything
/// else stays the user's own palette.
void useAccent();

/// Whether a palette shows light text on a dark ground.
bool isDark(const QPalette& palette);

/// The drawing ":/art/NAME.svg", or its light sister ":/art/NAME_light.svg" on a dark palette; the plain one
/// where there is no sister. Where ":/art/NAME_on.svg" exists, it is the icon's State::On.
/// The same icon each time, so that its pictures are made once.
QIcon themedIcon(const QString& name, const QPalette& palette);

/// The picture ":/art/NAME.png" (on a dark palette ":/art/NAME_light.png") for a screen: of its enlarged
/// sisters
/// "_2x" and "_3x" the smallest that has a pixel for every one of the screen, with its ratio set, so that it
/// measures as the plain one.
QPixmap themedPixmap(const QString& name, const QPalette& palette, qreal devicePixelRatio);

} // namespace zeltrona::platform
