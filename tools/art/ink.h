#pragma once

#include <QColor>

namespace zeltrona::art {

/// The house colours: one accent, ink for light and for dark surfaces.
inline const QColor kAccent{0xD9, 0x62, 0x2B};
inline const QColor kAccentDark{0xA8, 0x43, 0x17};
inline const QColor kDarkInk{0x24, 0x29, 0x2E};
inline const QColor kLightInk{0xF2, 0xF1, 0xEC};
inline const QColor kNight{0x10, 0x12, 0x14};
inline const QColor kNightLine{0x2A, 0x30, 0x37};

} // namespace zeltrona::art
