#pragma once

#include <QStringList>

#include <iosfwd>

namespace zeltrona::zpf {

/// How the program ends, for scripts.
enum class ExitCode {
    Done = 0,
    Failed = 1, ///< something asked for could not be done; the rest was
    Usage = 2   ///< the command line makes no sense; nothing was done
};

/// Where a command writes: results and help to `out`, complaints to `err`.
struct Streams {
    std::ostream& out;
    std::ostream& err;
};

/// One subcommand. `run` gets the words behind its name.
struct Command {
    const char* name;
    const char* summary;
    ExitCode (*run)(const QStringList& words, Streams streams);
};

/// Finds the command that the words name (those behind the program's own name) and runs it.
ExitCode runCommandLine(const QStringList& words, Streams streams);

} // namespace zeltrona::zpf
