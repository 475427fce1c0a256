#pragma once

#include "document/name_index.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// Keeps texts at fixed addresses for views into them; only ever grows.
class TextStore {
public:
    std::string_view keep(std::string text);
    /// All characters kept.
    std::size_t size() const { return m_size; }

private:
    std::deque<std::string> m_texts;
    std::size_t m_size = 0;
};

/// A key line taken apart at its first '='; blanks at the ends of name and value are off.
struct KeyParts {
    std::string_view indent;
    std::string_view name;
    std::string_view value;
};
/// Nothing for a comment, a header and a line without '='.
std::optional<KeyParts> splitKeyLine(std::string_view line);

/// The name in the header line that the section's text starts with: up to the first ']' or the line's end,
/// without blanks at its ends.
std::string_view headerName(std::string_view sectionText);

/// The value of the key line right behind the header, if it has this name and is short.
/// Reason: the number of a frame stands there, and to count the frames no section needs to be cut.
std::optional<std::string_view> glanceAtFirstKey(std::string_view sectionText, std::string_view key);

/// One section cut at its key lines, so that a value is found and replaced without a look at the rest.
/// Shape:  only the first key line of a name counts and is known by it; later ones of the same name, comments
///         and blank lines are carried along as they stand.
/// Life:   views into the text given and into the store used for edits; both must outlive it.
class SectionLines {
public:
    /// `sectionText` starts with the header's line.
    explicit SectionLines(std::string_view sectionText);

    std::optional<std::string_view> value(std::string_view key) const;

    enum class Edit { None, Done };
    /// Replaces the value where it stands, or adds a line behind the last key line. None when the value
    /// stands there already. Key and value go into the line as given: the caller reads all anew when they
    /// could make anything but one key line.
    Edit write(std::string_view key, std::string_view value, TextStore& store);

    /// The section's text without the key's line; nothing when there is no such key.
    std::optional<std::string> textWithout(std::string_view key) const;

    void forEachPiece(const std::function<void(std::string_view)>& visit) const;

private:
    // A first key line with all that follows it up to the next one. Lengths of 32 bits keep a file of
    // millions of lines small; a play is never that long.
    struct KeyPiece {
        const char* data = nullptr;
        std::uint32_t size = 0;
        std::uint32_t lineLength = 0;

        std::string_view text() const { return {data, size}; }
        std::string_view line() const { return {data, lineLength}; }
        std::string_view behindLine() const { return text().substr(lineLength); }
    };
    static KeyPiece makePiece(std::string_view text, std::size_t lineLength);

    /// Lets each piece, a bare line so far, reach to the next one, and the last to the end of the text.
    void stretchPieces(std::string_view textOfKeys);
    std::uint32_t find(std::string_view key) const;
    /// Whether the key is new; it is then known as the one that comes to the end of m_keys next.
    bool noteName(std::string_view key);
    std::string_view nameAt(std::uint32_t place) const;
    Edit replaceValue(KeyPiece& piece, std::string_view value, TextStore& store);
    void addLine(std::string_view key, std::string_view value, TextStore& store);
    void endLineAheadOfTail(TextStore& store);

    std::string_view m_head; ///< header line, and what stands ahead of the first key line if there is one
    std::vector<KeyPiece> m_keys;
    std::string_view m_tail; ///< what stands behind the last key line
    NameIndex m_index;
};

} // namespace zeltrona::document
