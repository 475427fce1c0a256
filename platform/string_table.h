#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace zeltrona::platform {

/// The text with this id from the table in the resources; nothing when the table lacks it.
std::optional<QString> lookUpString(std::int16_t id);

/// Thrown by nobody: a missing id where nothing traps is a run-time error with this number and text.
inline constexpr int kMissingStringError = 326;
QString missingStringText(std::int16_t id);

} // namespace zeltrona::platform
