#include "document/whole_file.h"
#include "output/web_report.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/desk_command.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace zeltrona::zpf {

namespace {

constexpr std::array kOptions{
    OptionForm{'o', "output", "WHERE",
               "a folder, . when not given: each play gets WHERE/NAME/index.html;\n"
               "for one play also the page itself, WHERE.html; folders are made if need be"},
};
constexpr CommandForm kForm{"report", "PLAY...",
                            "Write plays as web pages with their pictures\n"
                            "The pictures lie beside the page. Writes over what is there.",
                            kOptions};

/// An absolute name, since the report finds its folder in front of the last separator.
QString pageOf(const OutputTarget& target, const QString& play) {
    const QString page = target.isFile()
                             ? target.name()
                             : QDir(target.name()).filePath(OutputTarget::baseOf(play) + "/index.html");
    return QFileInfo(page).absoluteFilePath();
}

std::string reportPlay(PlayDesk& desk, const QString& page, const OutputTarget& target) {
    if (std::string reason = target.refusal(page); !reason.empty()) {
        return reason;
    }
    if (std::string reason = OutputTarget::makeFolder(QFileInfo(page).path()); !reason.empty()) {
        return reason;
    }
    const QImage logo(QStringLiteral(":/art/logo_export.png"));
    if (output::writeWebReport(desk.walk(), page, logo)) {
        return {};
    }
    const std::string name = QFile::encodeName(page).toStdString();
    const std::string reason = document::refusalToReplace(name);
    return name + ": " + (reason.empty() ? "the page or a picture of it cannot be written" : reason);
}

ExitCode run(const Arguments& arguments, Streams streams) {
    OutputTarget target(arguments, {".html", ".htm"});
    if (const std::string fault = target.fault(); !fault.empty()) {
        return usageFault(kForm, streams, fault);
    }
    return forEachDesk(kForm, arguments, streams, target, [&](PlayDesk& desk, const QString& play) {
        return reportPlay(desk, pageOf(target, play), target);
    });
}

} // namespace

Command reportCommand() {
    return {kForm, run};
}

} // namespace zeltrona::zpf
