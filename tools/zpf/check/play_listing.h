#pragma once

#include "document/name_index.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// A key line of the play.
struct ListedKey {
    std::string_view name;
    std::size_t line = 0;  ///< from 1
    bool repeated = false; ///< the section has had a key of this name: no reader sees this one
};

/// A section with all its key lines, in the order of the file.
struct ListedSection {
    std::string_view name;
    std::size_t line = 0;
    bool repeated = false; ///< the play has had a section of this name: no reader sees this one
    std::vector<ListedKey> keys;
    std::vector<std::size_t> strayLines; ///< neither key, comment nor blank
    document::NameIndex index;

    /// The key that readers see under this name; nullptr when there is none.
    const ListedKey* find(std::string_view key) const;
};

/// Everything that stands in a play, also what no name reaches. The play's readers ask for one key at a time
/// and cannot tell what they were not asked for. Life: views into the bytes given.
struct PlayListing {
    std::vector<ListedKey> keysAhead; ///< key lines ahead of the first header, which no name reaches
    std::vector<ListedSection> sections;
    document::NameIndex index;

    /// The section that readers see under this name; nullptr when there is none.
    const ListedSection* find(std::string_view name) const;
};

PlayListing listPlay(std::string_view bytes);

} // namespace zeltrona::zpf
