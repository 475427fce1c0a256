#include "tools/zpf/play_facts.h"

#include "document/frame_store.h"
#include "document/whole_file.h"

#include <limits>

namespace zeltrona::zpf {

std::string playFault(const std::string& path) {
    return document::readWholeFile(path).reason;
}

std::int16_t reachableFrames(const document::PlayFile& play) {
    const document::ReadScope scope(play);
    std::int16_t last = 0;
    while (last < std::numeric_limits<std::int16_t>::max()
           && document::frameExists(play, static_cast<std::int16_t>(last + 1))) {
        ++last;
    }
    return last;
}

std::int16_t charsetOf(const document::PlayFile& play) {
    std::string name;
    std::int16_t charset = document::Session().fontCharset;
    document::readFontConfig(play, name, charset);
    return charset;
}

} // namespace zeltrona::zpf
