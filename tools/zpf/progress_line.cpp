#include "tools/zpf/progress_line.h"

#include <ostream>

namespace zeltrona::zpf {
namespace {

constexpr const char* kClearLine = "\r\x1B[K";

} // namespace

ProgressLine::~ProgressLine() {
    if (m_shown) {
        m_streams.err << kClearLine << std::flush;
    }
}

void ProgressLine::show(std::string_view play, int frame, int frames) {
    if (m_streams.showProgress && Clock::now() >= m_showFrom) {
        m_streams.err << kClearLine << play << ": frame " << frame << " of " << frames << std::flush;
        m_shown = true;
    }
}

} // namespace zeltrona::zpf
