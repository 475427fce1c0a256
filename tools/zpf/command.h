#pragma once

#include "tools/zpf/arguments.h"
#include "tools/zpf/exit_code.h"

#include <functional>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// Where a command writes: results and help to `out`, complaints to `err`.
struct Streams {
    std::ostream& out;
    std::ostream& err;
    bool showProgress = false; ///< `err` is a terminal, where a line can be written over
};

/// One subcommand. `run` gets arguments without a fault and with at least one operand, a play each.
struct Command {
    CommandForm form;
    ExitCode (*run)(const Arguments& arguments, Streams streams);
};

/// Finds the command that the words name (those behind the program's own name) and runs it.
ExitCode runCommandLine(std::span<const std::string_view> words, Streams streams);

/// Says what is wrong with the command line, and where help is.
ExitCode usageFault(const CommandForm& form, Streams streams, std::string_view fault);

/// Runs `work` on one play after the other. It gives the reason of a failure in plain words, which is told
/// with the play's name; the other plays go on. A play that cannot be read is told likewise.
ExitCode forEachPlay(const CommandForm& form, const Arguments& arguments, Streams streams,
                     const std::function<std::string(const std::string& path)>& work);

} // namespace zeltrona::zpf
