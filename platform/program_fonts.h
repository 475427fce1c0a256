#pragma once

#include <QFont>

namespace zeltrona::platform {

/// To be called once, after the application object is made: texts in Arial are shown in its metric-compatible
/// substitute where Arial itself is not installed, so that labels keep their place and width.
void useProgramFonts();

/// Whether the font system gives Arial or its metric-compatible substitute for Arial.
bool isArialAvailable();

/// The emphasis of a heading in the user's own interface font.
QFont headingFont();

} // namespace zeltrona::platform
