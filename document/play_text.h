#pragma once

#include "document/section_lines.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// The bytes of a play with their sections and keys, in memory.
/// Text:  all bytes that an edit does not concern stay as they are, where they are.
/// Names: match without regard to ASCII case, and only the first section and the first key of a name count.
///        Spaces at the ends of a section or key argument are dropped, other blanks are not.
/// Cost:  reading finds the headers only; a section is cut into keys at the first question for another than
///        its first key, and a key is then found in constant time. An edit costs what its section has of
///        lines at the most, except the deletion of a section and texts with line ends or marks of their own,
///        after which all is read anew. Copies share what they have in common, so a copy to return to costs
///        little.
class PlayText {
public:
    PlayText() : PlayText(std::string()) {}
    explicit PlayText(std::string bytes);

    /// The value without the blanks at its ends, marks kept; a view until the next change.
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    /// The edits say whether they changed anything.
    bool write(std::string_view section, std::string_view key, std::string_view value);
    bool deleteKey(std::string_view section, std::string_view key);
    /// The header and the keys go, and with them blank lines and lines without '='; comment lines stay.
    bool deleteSection(std::string_view section);

    std::string bytes() const;
    /// The bytes in as few pieces as there are; views until the next change.
    std::vector<std::string_view> pieces() const;

    /// Puts the pieces into one again once edits have left more behind than they are worth.
    void tidy();

private:
    // A section, or a run of text that no name reaches: what stands ahead of the first header, and sections
    // of a name that was there before.
    struct Stretch {
        std::string_view text; ///< as read; out of date once edited
        std::shared_ptr<SectionLines>
            lines; ///< made at the first question for a key; may be shared by copies
        bool edited = false;
        bool reachable = false; ///< by its name
    };

    void readStretches(std::string_view text);
    void addStretch(std::string_view text);
    auto nameAt() const; ///< for the index: the name of the stretch at a place
    Stretch* findSection(std::string_view name) const;
    static const SectionLines& linesOf(Stretch& stretch);
    static SectionLines& linesToEdit(Stretch& stretch);
    static std::string textOf(const Stretch& stretch);
    void replaceText(Stretch& stretch, std::string text);
    void appendSection(std::string_view section, std::string_view key, std::string_view value);
    void endLastLine();
    void readAnew();

    std::shared_ptr<TextStore> m_store;
    mutable std::deque<Stretch> m_stretches; ///< mutable: keys are found when first asked for
    std::shared_ptr<NameIndex> m_index;
    std::size_t m_sizeRead = 0;
};

} // namespace zeltrona::document
