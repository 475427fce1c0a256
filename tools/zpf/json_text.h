#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// Writes JSON piece by piece; commas come by themselves. Texts are UTF-8; bytes that are none become U+FFFD,
/// since a file's name may hold any.
class JsonText {
public:
    JsonText& open(char bracket);
    JsonText& close(char bracket);
    JsonText& key(std::string_view name);
    JsonText& text(std::string_view utf8);
    JsonText& number(std::int64_t value);
    JsonText& flag(bool value);

    std::string take() { return std::move(m_text); }

private:
    void separate();

    std::string m_text;
    bool m_first = true; ///< nothing stands in the open bracket, or a key waits for its value
};

} // namespace zeltrona::zpf
