#include "tools/zpf/commands.h"
#include "tools/zpf/counted.h"
#include "tools/zpf/desk_command.h"
#include "tools/zpf/number_ranges.h"
#include "tools/zpf/printable.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <array>
#include <ostream>

namespace zeltrona::zpf {

namespace {

constexpr int kMostScale = 8;
constexpr std::array kOptions{
    OptionForm{'o', "output", "FOLDER", "where the pictures go, . when not given; it is made if need be"},
    OptionForm{'f', "format", "FORMAT", "png (the default) or bmp"},
    OptionForm{'s', "scale", "SCALE", "1 (the default) to 8: pixels of the picture to one of the board"},
    OptionForm{'n', "frames", "RANGE", "frames to draw, as 2, 1-3, 4- or 1-2,5; all when not given"},
};
constexpr CommandForm kForm{"render", "PLAY...",
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
    wishes.format = arguments.wordOf("format", "png");
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

/// The picture in its format; empty when it cannot be made.
QByteArray encode(const QImage& board, const RenderWishes& wishes) {
    // The alpha channel of the board means nothing.
    const QImage picture = board.scaled(board.size() * wishes.scale).convertToFormat(QImage::Format_RGB32);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, wishes.format.c_str()) ? bytes : QByteArray();
}

/// Draws one play; gives the reason of a failure.
std::string renderPlay(PlayDesk& desk, const QString& base, const RenderWishes& wishes,
                       const OutputTarget& target) {
    const auto ranges = *parseRanges(wishes.frames, desk.frames());
    const QString ending = QString::fromStdString(wishes.format);
    output::FrameWalker walker(desk.walk(), desk.frames());
    bool drawn = false;
    for (std::int16_t frame = 1; frame <= desk.frames(); ++frame) {
        if (!contains(ranges, frame)) {
            continue;
        }
        const QString name = QStringLiteral("%1-%2.%3").arg(base).arg(frame).arg(ending);
        const QByteArray picture = encode(walker.upTo(frame), wishes);
        if (picture.isEmpty()) {
            return "there is no memory for the picture of frame " + std::to_string(frame);
        }
        if (std::string reason = target.write(wishes.folder.filePath(name), picture); !reason.empty()) {
            return reason;
        }
        drawn = true;
    }
    if (!drawn) {
        return "has only " + counted(static_cast<std::size_t>(desk.frames()), "frame");
    }
    return desk.errors().empty() ? std::string() : desk.errors().front();
}

ExitCode run(const Arguments& arguments, Streams streams) {
    RenderWishes wishes;
    OutputTarget target(arguments, {});
    const std::string fault = readWishes(arguments, wishes);
    if (!fault.empty() || !target.fault().empty()) {
        return usageFault(kForm, streams, fault.empty() ? target.fault() : fault);
    }
    wishes.folder = QDir(target.name());
    if (const std::string reason = OutputTarget::makeFolder(target.name()); !reason.empty()) {
        streams.err << "zpf render: " << printable(reason) << '\n';
        return ExitCode::Failed;
    }
    return forEachDesk(kForm, arguments, streams, target, [&](PlayDesk& desk, const QString& play) {
        return renderPlay(desk, OutputTarget::baseOf(play), wishes, target);
    });
}

} // namespace

Command renderCommand() {
    return {kForm, run};
}

} // namespace zeltrona::zpf
