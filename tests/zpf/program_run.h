#pragma once

#include "tools/zpf/command.h"

#include <QFile>
#include <QStringList>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// A run of the program with what it said.
struct ProgramRun {
    explicit ProgramRun(const QStringList& arguments) {
        std::vector<std::string> bytes;
        for (const QString& argument : arguments) {
            bytes.push_back(QFile::encodeName(argument).toStdString());
        }
        const std::vector<std::string_view> words(bytes.begin(), bytes.end());
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
