#pragma once

#include "document/session.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <initializer_list>

namespace zeltrona::dialogs {

/// One localised caption: its place behind the language's first id, and who shows it.
struct Caption {
    std::int16_t offset = 0;
    std::function<void(const QString&)> show;
};

/// Shows the captions in their order and stops at the first that the language lacks.
/// Returns the missing id, 0 when all are there.
std::int16_t showCaptions(const document::Session& session, std::initializer_list<Caption> captions);

/// One text of the language; empty when it lacks it.
QString localText(const document::Session& session, std::int16_t offset);

} // namespace zeltrona::dialogs
