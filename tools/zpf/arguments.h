#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// An option of a command: "-o FOLDER, --output=FOLDER".
struct OptionForm {
    char letter = '\0';        ///< '\0' when there is no short form
    std::string_view name;     ///< without its dashes
    std::string_view argument; ///< what stands for it in the help; empty for an option without one
    std::string_view help;     ///< lines parted by '\n'
};

/// A command of the program, in the words of its help.
struct CommandForm {
    std::string_view name;
    std::string_view operands; ///< as "PLAY..."
    std::string_view summary;
    std::span<const OptionForm> options;
};

/// A command line taken apart.
struct Arguments {
    std::map<std::string, std::string, std::less<>> options; ///< by long name; the last one given counts
    std::vector<std::string> operands;
    std::string fault; ///< in plain words; empty when all is well

    bool has(std::string_view option) const { return options.find(option) != options.end(); }
    std::string valueOf(std::string_view option, std::string_view fallback) const;
    /// One of a few words, in small letters however it was typed.
    std::string wordOf(std::string_view option, std::string_view fallback) const;
};

/// Options and operands may stand in any order; "--" ends the options. An option takes its argument in the
/// same word ("--scale=2", "-o.") or as the next word. Every command knows --help.
Arguments parseArguments(const CommandForm& command, std::span<const std::string_view> words);

/// What `zpf COMMAND --help` prints.
std::string helpText(const CommandForm& command);

/// A whole number from `least` to `most`, digits only.
std::optional<int> parseNumber(std::string_view text, int least, int most);

} // namespace zeltrona::zpf
