#include "output/board_picture.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/number_ranges.h"
#include "tools/zpf/output_target.h"
#include "tools/zpf/play_desk.h"
#include "tools/zpf/progress_line.h"

#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QSaveFile>

#include <array>
#include <limits>

namespace zeltrona::zpf {

namespace {

constexpr int kMostScale = 8;
constexpr std::array kOptions{
    OptionSpec{'o', "output", "FOLDER", "where the pictures go, . when not given; it is made if need be"},
    OptionSpec{'f', "format", "FORMAT", "png (the default) or bmp"},
    OptionSpec{'s', "scale", "SCALE", "1 (the default) to 8: pixels of the picture to one of the board"},
    OptionSpec{'n', "frames", "RANGE", "frames to draw, as 2, 1-3, 4- or 1-2,5; all when not given"},
};
constexpr CommandSpec kSpec{"render", "PLAY...",
                            "Draw frames of plays to pictures, as the board shows them\n"
                            "Writes FOLDER/NAME-FRAME.png, over what is there.",
                            kOptions};

struct RenderWishes {
    QDir folder;
    std::string format;
    int scale = 1;
    std::string frames; ///< as parseRanges takes it
};

/// A complaint about the wishes; empty when they make sense.
std::string readWishes(const Arguments& arguments, RenderWishes& wishes) {
    const auto scale = parseNumber(arguments.valueOf("scale", "1"), 1, kMostScale);
    wishes.format = QString::fromStdString(arguments.valueOf("format", "png")).toLower().toStdString();
    wishes.frames = arguments.valueOf("frames", "1-");
    if (!scale) {
        return "the scale is a whole number from 1 to 8";
    }
    if (wishes.format != "png" && wishes.format != "bmp") {
        return "the format is png or bmp";
    }
    if (!parseRanges(wishes.frames, 1)) {
        return "\"" + wishes.frames + "\" names no frames";
    }
    wishes.scale = *scale;
    return {};
}

/// Writes one picture whole or not at all; gives the reason of a failure.
std::string savePicture(const QImage& board, const RenderWishes& wishes, const QString& path) {
    const QImage picture = wishes.scale == 1 ? board : board.scaled(board.size() * wishes.scale);
    if (wishes.format == "bmp") {
        return output::saveBitmap(picture, path) ? "" : "cannot be written";
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString().toStdString();
    }
    QImageWriter writer(&file, "png");
    if (!writer.write(picture)) {
        return writer.errorString().toStdString();
    }
    return file.commit() ? "" : file.errorString().toStdString();
}

/// Draws one play; gives the reason of a failure.
std::string renderPlay(PlayDesk& desk, const QString& base, const RenderWishes& wishes) {
    const auto ranges = *parseRanges(wishes.frames, desk.frames());
    output::FrameWalker walker(desk.walk(), desk.frames());
    bool drawn = false;
    for (std::int16_t frame = 1; frame <= desk.frames(); ++frame) {
        if (!contains(ranges, frame)) {
            continue;
        }
        const QString name =
            QStringLiteral("%1-%2.%3").arg(base).arg(frame).arg(QString::fromStdString(wishes.format));
        const QString target = wishes.folder.filePath(name);
        if (const std::string reason = savePicture(walker.upTo(frame), wishes, target); !reason.empty()) {
            return QFile::encodeName(target).toStdString() + ": " + reason;
        }
        drawn = true;
    }
    if (!drawn) {
        return "has only " + std::to_string(desk.frames()) + " frames";
    }
    return desk.errors().empty() ? std::string() : desk.errors().front();
}

ExitCode run(const Arguments& arguments, Streams streams) {
    RenderWishes wishes;
    OutputTarget target(arguments, {});
    const std::string fault = readWishes(arguments, wishes);
    if (!fault.empty() || !target.fault().empty()) {
        return usageFault(kSpec, streams, fault.empty() ? target.fault() : fault);
    }
    wishes.folder = QDir(target.name());
    if (const std::string reason = OutputTarget::makeFolder(target.name()); !reason.empty()) {
        streams.err << "zpf render: " << reason << '\n';
        return ExitCode::Failed;
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
        return renderPlay(desk, OutputTarget::baseOf(play), wishes);
    });
}

} // namespace

Command renderCommand() {
    return {kSpec, run};
}

} // namespace zeltrona::zpf
