#include "dialogs/captions.h"

#include "platform/string_table.h"

namespace zeltrona::dialogs {

std::int16_t showCaptions(const document::Session& session, std::initializer_list<Caption> captions) {
    for (const Caption& caption : captions) {
        const auto id = static_cast<std::int16_t>(session.stringBase + caption.offset);
        const auto text = platform::lookUpString(id);
        if (!text) {
            return id;
        }
        caption.show(*text);
    }
    return 0;
}

QString localText(const document::Session& session, std::int16_t offset) {
    return platform::lookUpString(static_cast<std::int16_t>(session.stringBase + offset)).value_or(QString());
}

} // namespace zeltrona::dialogs
