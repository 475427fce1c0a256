#pragma once

#include "document/play_file.h"
#include "tests/document/play_folder.h"

#include <string>
#include <string_view>

namespace zeltrona::tests {

/// The lines as the program writes them: each \n of a literal as CR LF.
inline std::string crlf(std::string_view lines) {
    std::string text;
    for (const char c : lines) {
        text.append(c == '\n' ? "\r\n" : std::string(1, c));
    }
    return text;
}

/// A play in a folder of its own.
class TemporaryPlay {
public:
    /// `lines` come into the file with CR LF for each \n.
    explicit TemporaryPlay(std::string_view lines = {}) : file(folder.put(crlf(lines))) {}

    /// Whether the file on the disk holds just these lines.
    testing::AssertionResult holds(std::string_view lines) const {
        const std::string bytes = folder.get();
        return bytes == crlf(lines) ? testing::AssertionSuccess() : testing::AssertionFailure() << bytes;
    }

    PlayFolder folder;
    document::PlayFile file;
};

} // namespace zeltrona::tests
