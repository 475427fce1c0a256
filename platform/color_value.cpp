#include "platform/color_value.h"

namespace zeltrona::platform {

QColor colorOfValue(std::int32_t value) {
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

std::int32_t valueOfColor(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

} // namespace zeltrona::platform
