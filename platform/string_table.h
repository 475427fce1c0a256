#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <optional>

namespace zeltrona::platform {

/// The text with this id from the table in the resources; nothing when the table lacks it.
std::optional<QString> lookUpString(std::int16_t id);

/// A table as it stands in a file: on each line an id, a tab and the text; lines without that form are notes.
/// The first line of an id counts.
std::map<std::int16_t, QString> parseStringTable(const QByteArray& utf8);

/// A missing id where nothing traps is a run-time error with this number and text.
inline constexpr int kMissingStringError = 326;
QString missingStringText(std::int16_t id);

} // namespace zeltrona::platform
