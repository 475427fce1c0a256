#include "tools/zpf/command.h"

#include "tools/zpf/commands.h"
#include "tools/zpf/play_facts.h"
#include "tools/zpf/printable.h"

#include <array>
#include <iomanip>
#include <ostream>

namespace zeltrona::zpf {

namespace {

void printHelp(std::ostream& to) {
    to << "Usage: zpf COMMAND [OPTION...] PLAY...\n"
          "Works on basketball plays without opening a window.\n\n"
          "Commands:\n";
    for (const Command& command : allCommands()) {
        const std::string_view summary = command.form.summary;
        to << "  " << std::left << std::setw(10) << command.form.name << summary.substr(0, summary.find('\n'))
           << '\n';
    }
    to << "\nOptions:\n"
          "  -h, --help      show this help and end; \"zpf COMMAND --help\" or \"zpf help COMMAND\"\n"
          "                  tells about one command\n"
          "      --version   show the version and end\n"
          "\nExit status: 0 done, 1 \"check\" has found something, 2 the command line makes no sense,\n"
          "3 a play could not be read or a result not be written.\n";
}

ExitCode runCommand(const Command& command, std::span<const std::string_view> words, Streams streams) {
    const Arguments arguments = parseArguments(command.form, words);
    if (arguments.has("help")) {
        streams.out << helpText(command.form);
        return ExitCode::Done;
    }
    if (!arguments.fault.empty()) {
        return usageFault(command.form, streams, arguments.fault);
    }
    if (arguments.operands.empty()) {
        return usageFault(command.form, streams, "no play is named");
    }
    return command.run(arguments, streams);
}

constexpr std::array kHelpWish{std::string_view("--help")};

ExitCode runNamed(std::string_view name, std::span<const std::string_view> words, Streams streams) {
    for (const Command& command : allCommands()) {
        if (name == command.form.name) {
            return runCommand(command, words, streams);
        }
    }
    streams.err << "zpf: there is no command \"" << printable(name) << "\"; see \"zpf --help\"\n";
    return ExitCode::Usage;
}

} // namespace

std::array<Command, 5> allCommands() {
    return {infoCommand(), checkCommand(), renderCommand(), reportCommand(), printCommand()};
}

ExitCode usageFault(const CommandForm& form, Streams streams, std::string_view fault) {
    streams.err << "zpf " << form.name << ": " << fault << "\nTry \"zpf " << form.name << " --help\".\n";
    return ExitCode::Usage;
}

ExitCode forEachPlay(const CommandForm& form, const Arguments& arguments, Streams streams,
                     const std::function<std::string(const std::string& path)>& work) {
    ExitCode code = ExitCode::Done;
    for (const std::string& path : arguments.operands) {
        std::string reason = playFault(path);
        if (reason.empty()) {
            reason = work(path);
        }
        if (!reason.empty()) {
            streams.err << "zpf " << form.name << ": " << printable(path + ": " + reason) << '\n';
            code = ExitCode::Failed;
        }
    }
    return code;
}

ExitCode runCommandLine(std::span<const std::string_view> words, Streams streams) {
    if (words.empty()) {
        printHelp(streams.err);
        return ExitCode::Usage;
    }
    const std::string_view name = words.front();
    if (name == "--help" || name == "-h" || (name == "help" && words.size() == 1)) {
        printHelp(streams.out);
        return ExitCode::Done;
    }
    if (name == "--version") {
        streams.out << "zpf " ZELTRONA_VERSION "\n";
        return ExitCode::Done;
    }
    return name == "help" ? runNamed(words[1], kHelpWish, streams)
                          : runNamed(name, words.subspan(1), streams);
}

} // namespace zeltrona::zpf
