#include "tools/zpf/check/play_listing.h"

#include "document/line_scanner.h"
#include "document/section_lines.h"

#include <optional>
#include <utility>

namespace zeltrona::zpf {
namespace {

using document::NameIndex;

/// Sorts the lines of a play into sections and keys.
class Lister {
public:
    void take(std::string_view line) {
        ++m_line;
        const std::string_view content = document::trimBlanks(line);
        if (content.empty() || content.front() == ';') {
            return;
        }
        if (content.front() == '[') {
            openSection(document::headerName(content));
        } else if (const auto parts = document::splitKeyLine(line)) {
            takeKey(parts->name);
        } else if (!m_listing.sections.empty()) {
            m_listing.sections.back().strayLines.push_back(m_line);
        }
    }

    PlayListing take() { return std::move(m_listing); }

private:
    void openSection(std::string_view name) {
        const auto& sections = m_listing.sections;
        const bool repeated =
            !m_listing.index.addNew(name, static_cast<std::uint32_t>(sections.size()),
                                    [&](std::uint32_t place) { return sections[place].name; });
        m_listing.sections.push_back({name, m_line, repeated, {}, {}, {}});
    }

    void takeKey(std::string_view name) {
        if (m_listing.sections.empty()) {
            m_listing.keysAhead.push_back({name, m_line, false});
            return;
        }
        ListedSection& section = m_listing.sections.back();
        const bool repeated =
            !section.index.addNew(name, static_cast<std::uint32_t>(section.keys.size()),
                                  [&](std::uint32_t place) { return section.keys[place].name; });
        section.keys.push_back({name, m_line, repeated});
    }

    PlayListing m_listing;
    std::size_t m_line = 0;
};

} // namespace

const ListedKey* ListedSection::find(std::string_view key) const {
    const auto nameAt = [this](std::uint32_t place) { return keys[place].name; };
    const std::uint32_t place = index.find(key, nameAt);
    return place == NameIndex::kNone ? nullptr : &keys[place];
}

const ListedSection* PlayListing::find(std::string_view name) const {
    const auto nameAt = [this](std::uint32_t place) { return sections[place].name; };
    const std::uint32_t place = index.find(name, nameAt);
    return place == NameIndex::kNone ? nullptr : &sections[place];
}

PlayListing listPlay(std::string_view bytes) {
    Lister lister;
    document::LineScanner scanner(bytes);
    while (!scanner.atEnd()) {
        lister.take(scanner.next().text);
    }
    return lister.take();
}

} // namespace zeltrona::zpf
