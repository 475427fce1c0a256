#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zeltrona::tests {

/// The rules of the play's text told a second time, slowly: every act cuts the whole text into lines and puts
/// it together again. What the program does in clever ways is compared with this.
class SlowPlay {
public:
    explicit SlowPlay(std::string bytes) : m_bytes(std::move(bytes)) {}

    const std::string& bytes() const { return m_bytes; }
    std::optional<std::string> value(std::string section, std::string key) const;
    void write(std::string section, std::string key, const std::string& value);
    void deleteKey(std::string section, std::string key);
    void deleteSection(std::string section);

    /// Every section and key that can be read, in the order of the file.
    std::vector<std::pair<std::string, std::string>> names() const;

private:
    struct Line {
        std::string text;
        std::string end;
    };
    struct Range {
        std::size_t header;
        std::size_t end;
    };
    std::vector<Line> cut() const;
    void join(const std::vector<Line>& lines);
    static std::optional<Range> find(const std::vector<Line>& lines, const std::string& section);
    static std::optional<std::size_t> find(const std::vector<Line>& lines, Range range,
                                           const std::string& key);

    std::string m_bytes;
};

} // namespace zeltrona::tests
