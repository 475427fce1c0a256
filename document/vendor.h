#pragma once

#include <string_view>

namespace zeltrona::document {

/// Where users find the makers of the program: a setting of whoever gives it out.
inline constexpr std::string_view kWebAddress = "www.zeltrona.example";
inline constexpr std::string_view kSalesAddress = "sales@zeltrona.example";

} // namespace zeltrona::document
