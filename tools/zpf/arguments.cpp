#include "tools/zpf/arguments.h"

#include <algorithm>
#include <charconv>

namespace zeltrona::zpf {
namespace {

constexpr OptionForm kHelp{'h', "help", "", "show this help and end"};
constexpr std::size_t kHelpColumn = 27;

/// Goes through the words of a command line once.
class Parser {
public:
    Parser(const CommandForm& command, std::span<const std::string_view> words)
        : m_command(command), m_words(words) {}

    Arguments parse() {
        bool optionsEnded = false;
        while (m_at < m_words.size() && m_result.fault.empty()) {
            const std::string_view word = m_words[m_at++];
            if (optionsEnded || word.size() < 2 || word.front() != '-') {
                m_result.operands.emplace_back(word);
            } else if (word == "--") {
                optionsEnded = true;
            } else if (word.starts_with("--")) {
                takeLong(word.substr(2));
            } else {
                takeShort(word.substr(1));
            }
        }
        return m_result;
    }

private:
    template<class Same> const OptionForm* find(Same same) const {
        const auto found = std::find_if(m_command.options.begin(), m_command.options.end(), same);
        if (found != m_command.options.end()) {
            return &*found;
        }
        return same(kHelp) ? &kHelp : nullptr;
    }

    void takeLong(std::string_view text) {
        const std::size_t split = std::min(text.find('='), text.size());
        const std::string_view name = text.substr(0, split);
        const OptionForm* option = find([name](const OptionForm& form) { return form.name == name; });
        if (option == nullptr) {
            m_result.fault = "unknown option '--" + std::string(name) + "'";
        } else if (split == text.size()) {
            takeValue(*option, "--" + std::string(name));
        } else if (option->argument.empty()) {
            m_result.fault = "option '--" + std::string(name) + "' takes no argument";
        } else {
            m_result.options[std::string(name)] = text.substr(split + 1);
        }
    }

    // A run of letters: options without an argument may share one dash.
    void takeShort(std::string_view letters) {
        while (!letters.empty() && m_result.fault.empty()) {
            const char letter = letters.front();
            letters.remove_prefix(1);
            const OptionForm* option =
                find([letter](const OptionForm& form) { return form.letter == letter; });
            if (option == nullptr) {
                m_result.fault = std::string("unknown option '-") + letter + "'";
            } else if (!option->argument.empty() && !letters.empty()) {
                m_result.options[std::string(option->name)] = letters;
                return;
            } else {
                takeValue(*option, std::string("-") + letter);
            }
        }
    }

    void takeValue(const OptionForm& option, const std::string& asGiven) {
        std::string& value = m_result.options[std::string(option.name)];
        if (option.argument.empty()) {
            return;
        }
        if (m_at == m_words.size()) {
            m_result.fault = "option '" + asGiven + "' needs an argument";
            return;
        }
        value = m_words[m_at++];
    }

    const CommandForm& m_command;
    std::span<const std::string_view> m_words;
    std::size_t m_at = 0;
    Arguments m_result;
};

std::string optionHelp(const OptionForm& option) {
    std::string line = option.letter == '\0' ? "      " : std::string("  -") + option.letter + ", ";
    line.append("--").append(option.name);
    if (!option.argument.empty()) {
        line.append("=").append(option.argument);
    }
    line.append(line.size() + 2 > kHelpColumn ? 2 : kHelpColumn - line.size(), ' ');
    for (const char c : option.help) {
        line.push_back(c);
        line.append(c == '\n' ? kHelpColumn : 0, ' ');
    }
    line.push_back('\n');
    return line;
}

} // namespace

std::string Arguments::valueOf(std::string_view option, std::string_view fallback) const {
    const auto found = options.find(option);
    return found == options.end() ? std::string(fallback) : found->second;
}

std::string Arguments::wordOf(std::string_view option, std::string_view fallback) const {
    std::string word = valueOf(option, fallback);
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return word;
}

Arguments parseArguments(const CommandForm& command, std::span<const std::string_view> words) {
    return Parser(command, words).parse();
}

std::string helpText(const CommandForm& command) {
    std::string text = "Usage: zpf ";
    text.append(command.name).append(" [OPTION...] ").append(command.operands).append("\n");
    text.append(command.summary).append("\n\n");
    for (const OptionForm& option : command.options) {
        text.append(optionHelp(option));
    }
    return text.append(optionHelp(kHelp));
}

std::optional<int> parseNumber(std::string_view text, int least, int most) {
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    if (!whole || text.front() == '-' || number < least || number > most) {
        return std::nullopt;
    }
    return number;
}

} // namespace zeltrona::zpf
