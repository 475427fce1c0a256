#include "output/wrap_text.h"

namespace zeltrona::output {
namespace {

/// Where the letter that begins at `at` ends: letters are cut whole, not in the middle of their bytes.
std::size_t nextLetter(std::string_view text, std::size_t at) {
    ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U) {
        ++at;
    }
    return at;
}

/// Length of the longest beginning of the word that measures less than the width, one letter at the least.
std::size_t fittingLetters(const MeasureWidth& measure, double width, std::string_view word) {
    std::size_t fits = nextLetter(word, 0);
    while (fits < word.size()) {
        const std::size_t more = nextLetter(word, fits);
        if (measure(word.substr(0, more)) >= width) {
            break;
        }
        fits = more;
    }
    return fits;
}

/// Moves the letters of a word that is too wide into lines of their own and gives the rest back.
std::string_view cutWord(const MeasureWidth& measure, double width, std::string_view word,
                         std::vector<std::string>& lines) {
    while (!word.empty() && measure(word) >= width) {
        const std::size_t fits = fittingLetters(measure, width, word);
        lines.emplace_back(word.substr(0, fits));
        word.remove_prefix(fits);
    }
    return word;
}

} // namespace

std::vector<std::string> wrapText(const MeasureWidth& measure, double width, std::string_view text) {
    std::vector<std::string> lines;
    std::string line;
    bool open = false; // whether `line` holds the beginning of a line, be it an empty word
    std::size_t at = 0;
    while (at <= text.size() && !text.empty()) {
        const std::size_t blank = std::min(text.find(' ', at), text.size());
        const std::string_view word = text.substr(at, blank - at);
        std::string longer = open ? line + ' ' : std::string();
        longer += word;
        if (measure(longer) < width) {
            line = std::move(longer);
            open = true;
        } else {
            if (open) {
                lines.push_back(std::move(line));
            }
            line = cutWord(measure, width, word, lines);
            open = !line.empty();
        }
        at = blank + 1;
    }
    if (open) {
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace zeltrona::output
