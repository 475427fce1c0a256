#pragma once

#include "document/session.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace zeltrona::session {

/// What `ComboLang` offers, in its order. The last four have no strings.
const QStringList& languageNames();

/// The language of a list index: 2 and 3 read the Serbian set, so they become 1.
std::int16_t foldedLanguage(int listIndex);

/// First string id of a language.
std::int16_t stringBaseOf(std::int16_t langIndex);

/// Makes the choice of the list the language of the run.
void chooseLanguage(document::Session& session, int listIndex);

/// Id of the text at an offset in the language of the run.
std::int16_t stringId(const document::Session& session, std::int16_t offset);
/// The text itself; nothing when the language has no such string.
std::optional<QString> localText(const document::Session& session, std::int16_t offset);

} // namespace zeltrona::session
