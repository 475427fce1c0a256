#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// What can be wrong with a play. The names that scripts see are those of `findingName`.
enum class FindingKind {
    NoFrame,         ///< the play has no frame at all
    Gap,             ///< a frame behind a gap in the numbering is out of reach
    NoMark,          ///< a frame's section without its key `frame` does not count as a frame
    WrongNumber,     ///< the key `frame` tells another number than the section
    RepeatedSection, ///< only the first section of a name is read
    RepeatedKey,     ///< only the first key of a name in a section is read
    OutsideSection,  ///< a key ahead of the first header is never read
    NoKey,           ///< a line that is no key is never read
    UnknownSection,  ///< no reader asks for this section
    UnknownKey,      ///< no reader asks for this key
    Hole,            ///< a list ends at the first missing index: what stands behind it is lost
    SlotHole,        ///< players move up over an empty slot, and a save would give them other labels
    Cut,             ///< longer than the buffer that it is read into
    NoClosingComma,  ///< what no comma ends is lost
    NotANumber,      ///< a field that is no number is skipped, and the next one takes its place
    MissingField,    ///< fewer fields than the key has
    ExtraField,      ///< fields beyond the last are not read
    CommaInText,     ///< texts are not quoted: a comma in one shifts all fields behind it
    MissingLabel,    ///< a player without a label is dropped
    BadPlace,        ///< a player whose place makes no sense is dropped
    TeamSize,        ///< a side has more or fewer players than in the frame before
    StaleKey,        ///< belongs to something that is gone
    EmptyObject,     ///< equals the empty state, so it counts as absent
    BadValue,        ///< reads as another value than the one that stands there
    LostCharacter,   ///< bytes that are no character of the play's character set
};

/// "hole", "team-size" and so on; these names are an interchange format.
std::string_view findingName(FindingKind kind);

/// Something in a play that would be lost, cut or ignored at load.
struct Finding {
    FindingKind kind = FindingKind::NoFrame;
    std::size_t line = 0; ///< from 1; 0 when it concerns the play as a whole
    std::string section;  ///< bytes as in the file; empty ahead of the first one
    std::string key;      ///< bytes as in the file; empty when it concerns no single key
    std::string text;     ///< UTF-8, plain words, one line
    friend bool operator==(const Finding&, const Finding&) = default;
};

} // namespace zeltrona::zpf
