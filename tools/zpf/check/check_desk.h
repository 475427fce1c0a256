#pragma once

#include "document/play_file.h"
#include "document/text_buffers.h"
#include "tools/zpf/check/finding.h"
#include "tools/zpf/check/play_listing.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// What the checks of a section share: the play, the section, and where the findings go.
class CheckDesk {
public:
    CheckDesk(const document::PlayFile& play, const ListedSection& section, std::int16_t charset,
              std::vector<Finding>& findings)
        : m_play(play), m_section(section), m_charset(charset), m_findings(findings) {}

    const ListedSection& section() const { return m_section; }
    const document::PlayFile& play() const { return m_play; }

    /// The value as the program reads it, and as it stands.
    std::string read(std::string_view key, document::TextBuffer buffer) const;
    std::string whole(std::string_view key) const;
    bool has(std::string_view key) const { return m_section.find(key) != nullptr; }

    /// An empty key means the section as a whole.
    void add(FindingKind kind, std::string_view key, std::string text) const;

    // Checks that many keys share.
    void checkLength(std::string_view key, document::TextBuffer buffer) const;
    void checkCharacters(std::string_view key) const;
    /// The whole number is of the least and most given, and is written as one.
    void checkWhole(std::string_view key, std::int32_t least, std::int32_t most) const;

    /// In quotation marks, as UTF-8, shortened to fit a line.
    std::string quoted(std::string_view bytes) const;

private:
    const document::PlayFile& m_play;
    const ListedSection& m_section;
    std::int16_t m_charset;
    std::vector<Finding>& m_findings;
};

} // namespace zeltrona::zpf
