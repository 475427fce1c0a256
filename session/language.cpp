#include "session/language.h"

#include "platform/string_table.h"

namespace zeltrona::session {

namespace {

constexpr int kIdsPerLanguage = 300;
constexpr int kFirstId = 100;
constexpr std::int16_t kSerbian = 1;
constexpr int kCroatian = 2;
constexpr int kBosnian = 3;

} // namespace

const QStringList& languageNames() {
    static const QStringList names{
        QStringLiteral("English"), QStringLiteral("Serbian"), QStringLiteral("Croatian"),
        QStringLiteral("Bosnian"), QStringLiteral("Italian"), QStringLiteral("Francais"),
        QStringLiteral("Espanol"), QStringLiteral("Deutsch"),
    };
    return names;
}

std::int16_t foldedLanguage(int listIndex) {
    return listIndex == kCroatian || listIndex == kBosnian ? kSerbian : static_cast<std::int16_t>(listIndex);
}

std::int16_t stringBaseOf(std::int16_t langIndex) {
    return static_cast<std::int16_t>(langIndex * kIdsPerLanguage + kFirstId);
}

void chooseLanguage(document::Session& session, int listIndex) {
    session.langIndex = foldedLanguage(listIndex);
    session.stringBase = stringBaseOf(session.langIndex);
}

std::int16_t stringId(const document::Session& session, std::int16_t offset) {
    return static_cast<std::int16_t>(session.stringBase + offset);
}

std::optional<QString> localText(const document::Session& session, std::int16_t offset) {
    return platform::lookUpString(stringId(session, offset));
}

} // namespace zeltrona::session
