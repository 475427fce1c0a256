#pragma once

#include "tools/zpf/command.h"

#include <chrono>
#include <string_view>

namespace zeltrona::zpf {

/// Tells on a terminal how far long work is: one line that is written over and gone at the end. Work that is
/// done within `patience` shows nothing.
class ProgressLine {
public:
    using Clock = std::chrono::steady_clock;

    explicit ProgressLine(Streams streams,
                          std::chrono::milliseconds patience = std::chrono::milliseconds(400))
        : m_streams(streams), m_showFrom(Clock::now() + patience) {}
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// A long name of a play is shortened, since a line that the terminal breaks cannot be written over.
    void show(std::string_view play, int frame, int frames);
    /// Leaves an empty line to what is told next.
    void clear();

private:
    Streams m_streams;
    Clock::time_point m_showFrom;
    bool m_shown = false;
};

} // namespace zeltrona::zpf
