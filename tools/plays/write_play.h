#pragma once

#include "document/play_file.h"
#include "tools/plays/play_script.h"

#include <string>

namespace zeltrona::plays {

/// What is wrong with a script, in words; empty when it can be written: the counts of players and names, the
/// lengths of texts, commas in texts, letters that the character set lacks, holders without a ball.
std::string faultOf(const PlayScript& play);

/// Writes the play to FOLDER/file.zpf as the program itself would: header, teams, title, court, then frame
/// after frame.
document::WriteResult writePlay(const PlayScript& play, const std::string& folder);

} // namespace zeltrona::plays
