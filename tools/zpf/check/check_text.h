#pragma once

#include "tools/zpf/check/check_play.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// One line for each finding: "PLAY:LINE: [SECTION] KEY: text (name)". Nothing for a clean play.
std::string checkAsText(std::string_view path, const CheckResult& result, std::int16_t charset);

/// {"play": path, "frames": n, "findings": [{"kind", "line", "section", "key", "text"}]}, without a line end.
std::string checkAsJson(std::string_view path, const CheckResult& result, std::int16_t charset);

} // namespace zeltrona::zpf
