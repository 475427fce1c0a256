#include "output/web_report.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/output_target.h"
#include "tools/zpf/play_desk.h"
#include "tools/zpf/progress_line.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

namespace zeltrona::zpf {

namespace {

constexpr std::array kOptions{
    OptionSpec{'o', "output", "WHERE",
               "a folder, . when not given: each play gets WHERE/NAME/index.html;\n"
               "for one play also the page itself, WHERE.html; folders are made if need be"},
};
constexpr CommandSpec kSpec{"report", "PLAY...",
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

std::string reportPlay(PlayDesk& desk, const QString& page) {
    if (std::string reason = OutputTarget::makeFolder(QFileInfo(page).path()); !reason.empty()) {
        return reason;
    }
    const QImage logo(QStringLiteral(":/art/logo_export.png"));
    return output::writeWebReport(desk.walk(), page, logo)
               ? ""
               : QFile::encodeName(page).toStdString() + ": the report cannot be written";
}

ExitCode run(const Arguments& arguments, Streams streams) {
    OutputTarget target(arguments, {".html", ".htm"});
    if (const std::string fault = target.fault(); !fault.empty()) {
        return usageFault(kSpec, streams, fault);
    }
    const render::BoardArt art = render::loadBoardArt();
    ProgressLine progress(streams);
    return forEachPlay(kSpec, arguments, streams, [&](const std::string& path) -> std::string {
        const QString play = QFile::decodeName(path.c_str());
        PlayDesk desk(path, art);
        if (desk.frames() < 1) {
            return "holds no frame";
        }
        if (std::string reason = target.claim(play); !reason.empty()) {
            return reason;
        }
        desk.walk().progress = [&](int frame, int frames) { progress.show(path, frame, frames); };
        return reportPlay(desk, pageOf(target, play));
    });
}

} // namespace

Command reportCommand() {
    return {kSpec, run};
}

} // namespace zeltrona::zpf
