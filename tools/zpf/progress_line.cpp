#include "tools/zpf/progress_line.h"

#include "tools/zpf/printable.h"

#include <ostream>
#include <string>

namespace zeltrona::zpf {
namespace {

constexpr const char* kClearLine = "\r\x1B[K";

constexpr std::size_t kLongestName = 40;

/// The name without its folder, its end when it is long. A character that is cut in two goes as a whole.
std::string shortName(std::string_view play) {
    std::string_view name = play.substr(play.find_last_of('/') + 1);
    if (name.size() <= kLongestName) {
        return printable(name);
    }
    name = name.substr(name.size() - kLongestName);
    while (!name.empty() && (static_cast<unsigned char>(name.front()) & 0xC0U) == 0x80U) {
        name.remove_prefix(1);
    }
    return "..." + printable(name);
}

} // namespace

void ProgressLine::clear() {
    if (m_shown) {
        m_streams.err << kClearLine << std::flush;
        m_shown = false;
    }
}

void ProgressLine::show(std::string_view play, int frame, int frames) {
    if (m_streams.showProgress && Clock::now() >= m_showFrom) {
        m_streams.err << kClearLine << shortName(play) << ": frame " << frame << " of " << frames
                      << std::flush;
        m_shown = true;
    }
}

} // namespace zeltrona::zpf
