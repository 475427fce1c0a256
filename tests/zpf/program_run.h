#pragma once

#include "tools/zpf/command.h"

#include <sstream>
#include <string>

namespace zeltrona::zpf {

/// A run of the program with what it said.
struct ProgramRun {
    explicit ProgramRun(const QStringList& words) {
        std::ostringstream outStream;
        std::ostringstream errStream;
        code = runCommandLine(words, {outStream, errStream});
        out = outStream.str();
        err = errStream.str();
    }
    ExitCode code;
    std::string out;
    std::string err;
};

} // namespace zeltrona::zpf
