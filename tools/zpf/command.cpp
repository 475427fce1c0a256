#include "tools/zpf/command.h"

#include "tools/zpf/render_command.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>

namespace zeltrona::zpf {

namespace {

constexpr std::array<Command, 1> kCommands{{{"render", "draw every frame of plays to pictures", runRender}}};

void printHelp(std::ostream& to) {
    to << "Usage: zpf COMMAND [OPTION]...\n"
          "Works on basketball plays without opening a window.\n\n"
          "Commands:\n";
    for (const Command& command : kCommands) {
        to << "  " << std::left << std::setw(10) << command.name << command.summary << '\n';
    }
    to << "\n\"zpf COMMAND --help\" tells about one.\n"
          "Exit status: 0 done, 1 something failed, 2 the command line makes no sense.\n";
}

} // namespace

ExitCode runCommandLine(const QStringList& words, Streams streams) {
    if (words.isEmpty()) {
        printHelp(streams.err);
        return ExitCode::Usage;
    }
    const QString& name = words.first();
    if (name == QLatin1String("--help") || name == QLatin1String("-h") || name == QLatin1String("help")) {
        printHelp(streams.out);
        return ExitCode::Done;
    }
    if (name == QLatin1String("--version")) {
        streams.out << "zpf " ZELTRONA_VERSION "\n";
        return ExitCode::Done;
    }
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(), [&](const Command& command) {
        return name == QLatin1String(command.name);
    });
    if (found == kCommands.end()) {
        streams.err << "zpf: there is no command \"" << name.toStdString() << "\"; see zpf --help\n";
        return ExitCode::Usage;
    }
    return found->run(words.mid(1), streams);
}

} // namespace zeltrona::zpf
