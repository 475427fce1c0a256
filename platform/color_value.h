#pragma once

#include <QColor>

#include <cstdint>

namespace zeltrona::platform {

/// A colour of the play, 0x00BBGGRR; bits above the 24 do not count.
QColor colorOfValue(std::int32_t value);
std::int32_t valueOfColor(const QColor& color);

} // namespace zeltrona::platform
