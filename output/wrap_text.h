#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::output {

/// Width of a text (UTF-8) in the unit of the surface that it will stand on.
using MeasureWidth = std::function<double(std::string_view)>;

/// Breaks a text (UTF-8) into lines that measure less than `width`.
/// Words:  a line takes words while it measures less than the width; the blank at a cut is dropped, others
/// stay. Letters: a word too wide alone is cut letter by letter, and its rest goes on as a word; a line has
/// at least one
///         letter, so that a width of nothing ends too.
/// Empty text gives an empty list.
std::vector<std::string> wrapText(const MeasureWidth& measure, double width, std::string_view text);

} // namespace zeltrona::output
