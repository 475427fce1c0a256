#pragma once

#include "document/play_file.h"
#include "document/text_buffers.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The texts of a play: header, title, description, notes. All are bytes in the play's code page.

/// Stands for a line break in a stored text. In some code pages it is a letter's code too: such a letter
/// would come back as a line break, so the windows refuse it while typing.
inline constexpr char kBreakMark = '\xAE';

/// Each CR LF as one break mark. A CR or LF alone, which would end the key's line in the file,
/// becomes a blank.
std::string withBreakMarks(std::string_view text);
/// Each break mark as CR LF.
std::string withLineBreaks(std::string_view stored);

/// The texts as they are stored, break marks and all. The windows and pages read them through
/// TextBuffer::Text (253 characters), the report through TextBuffer::Note (498).
std::string readTitle(const PlayFile& play, TextBuffer buffer = TextBuffer::Text);
std::string readHead(const PlayFile& play, TextBuffer buffer = TextBuffer::Text);
/// Stores title and description as one replacement; line breaks of the description are CR LF.
WriteResult writeTitle(PlayFile& play, std::string_view title, std::string_view head);

/// The note of a frame, 498 characters at the most; empty when there is none.
std::string readNote(const PlayFile& play, std::int16_t frame);
/// A note is a single line.
WriteResult writeNote(PlayFile& play, std::int16_t frame, std::string_view text);

/// Creates the play, or empties the one that is there, and puts in the six lines ahead of any section.
WriteResult writePlayHeader(PlayFile& play);

} // namespace zeltrona::document
