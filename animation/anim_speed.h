#pragma once

#include <string>
#include <string_view>

namespace zeltrona::animation {

/// Milliseconds between ticks for the text of a speed box: 120, 80, 50, 20, 10, 9, 7, 5, 2 for "1" to "9", 0
/// for any other text. The row is not linear: each digit was chosen to look a step faster.
int animIntervalOf(std::string_view speedText);

/// What the speed box of the main window keeps of what was typed: the text itself when it is a number that
/// rounds to 1 to 9, else "3".
std::string keptSpeedText(std::string_view text);

/// The same for the full screen, whose box takes the number as it stands: 9.4 lies outside 1 to 9.
std::string keptFullScreenSpeedText(std::string_view text);

/// One digit up or down, never past "9" and "1".
std::string speedTextUp(std::string_view text);
std::string speedTextDown(std::string_view text);

/// Whether the number in the text is 9 or more.
bool isFastestSpeed(std::string_view text);
/// The number in the text and `change`, past both ends: the full screen's box goes through "0" to "3".
std::string plainSpeedText(std::string_view text, int change);

} // namespace zeltrona::animation
