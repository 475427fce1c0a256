#include "tools/zpf/render_command.h"

#include "tools/zpf/play_desk.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSet>

#include <ostream>

namespace zeltrona::zpf {

namespace {

constexpr const char* kUsage =
    "Usage: zpf render PLAY... -o FOLDER [-f png|bmp] [-s SCALE]\n"
    "Draws every frame of each play, as the board shows it, to FOLDER/<play>-<n>.png.\n\n"
    "  -o, --output FOLDER   where the pictures go; it is made when it is not there\n"
    "  -f, --format FORMAT   png (the default) or bmp\n"
    "  -s, --scale SCALE     1 (the default) to 8: pixels of the picture to one of the board\n"
    "  -h, --help            this help\n";

struct RenderWishes {
    QStringList plays;
    QDir folder;
    QString format;
    int scale = 1;
};

/// Complaints are whole sentences without the program's name; empty when the wishes are good.
QString readWishes(const QStringList& words, RenderWishes& wishes, bool& help) {
    QCommandLineParser parser;
    const QCommandLineOption output({"o", "output"}, {}, "folder");
    const QCommandLineOption format({"f", "format"}, {}, "format", "png");
    const QCommandLineOption scale({"s", "scale"}, {}, "scale", "1");
    const QCommandLineOption helpWish(QStringList{"h", "help"});
    parser.addOptions({output, format, scale, helpWish});
    const bool parsed = parser.parse(QStringList("zpf render") + words);
    help = parser.isSet(helpWish);
    if (!parsed) {
        return parser.errorText();
    }
    wishes.plays = parser.positionalArguments();
    wishes.format = parser.value(format).toLower();
    wishes.scale = parser.value(scale).toInt();
    wishes.folder = QDir(parser.value(output));
    if (wishes.plays.isEmpty()) {
        return QStringLiteral("No play is named.");
    }
    if (parser.value(output).isEmpty()) {
        return QStringLiteral("No folder is named; give one with -o.");
    }
    if (wishes.format != QLatin1String("png") && wishes.format != QLatin1String("bmp")) {
        return QStringLiteral("The format is png or bmp.");
    }
    const bool scaleIsGood = wishes.scale >= 1 && wishes.scale <= 8;
    return scaleIsGood ? QString() : QStringLiteral("The scale is a whole number from 1 to 8.");
}

/// Writes one picture; gives the reason of a failure.
QString savePicture(const QImage& picture, const RenderWishes& wishes, const QString& path) {
    QImageWriter writer(path, wishes.format.toLatin1());
    const QImage scaled = wishes.scale == 1 ? picture : picture.scaled(picture.size() * wishes.scale);
    return writer.write(scaled) ? QString() : writer.errorString();
}

/// Draws one play; gives the reason of a failure.
QString renderPlay(const QString& path, const RenderWishes& wishes, const render::BoardArt& art) {
    const QString fault = playFault(path);
    if (!fault.isEmpty()) {
        return fault;
    }
    PlayDesk desk(path, art);
    if (desk.frames() < 1) {
        return QStringLiteral("holds no frame");
    }
    const QString base = QFileInfo(path).completeBaseName();
    for (std::int16_t frame = 1; frame <= desk.frames(); ++frame) {
        const QString name = QStringLiteral("%1-%2.%3").arg(base).arg(frame).arg(wishes.format);
        const QString target = wishes.folder.filePath(name);
        const QString reason = savePicture(desk.drawFrame(frame), wishes, target);
        if (!reason.isEmpty()) {
            return QStringLiteral("%1: %2").arg(target, reason);
        }
    }
    return desk.errors().empty() ? QString() : QString::fromStdString(desk.errors().front());
}

} // namespace

ExitCode runRender(const QStringList& words, Streams streams) {
    RenderWishes wishes;
    bool help = false;
    const QString complaint = readWishes(words, wishes, help);
    if (help) {
        streams.out << kUsage;
        return ExitCode::Done;
    }
    if (!complaint.isEmpty()) {
        streams.err << "zpf render: " << complaint.toStdString() << '\n' << kUsage;
        return ExitCode::Usage;
    }
    if (!QDir().mkpath(wishes.folder.path())) {
        streams.err << "zpf render: cannot make the folder " << wishes.folder.path().toStdString() << '\n';
        return ExitCode::Failed;
    }
    const render::BoardArt art = render::loadBoardArt();
    ExitCode code = ExitCode::Done;
    QSet<QString> done;
    for (const QString& play : wishes.plays) {
        const QString base = QFileInfo(play).completeBaseName();
        const QString reason = done.contains(base)
                                   ? QStringLiteral("another play of this name was drawn before it")
                                   : renderPlay(play, wishes, art);
        done.insert(base);
        if (!reason.isEmpty()) {
            streams.err << "zpf render: " << play.toStdString() << ": " << reason.toStdString() << '\n';
            code = ExitCode::Failed;
        }
    }
    return code;
}

} // namespace zeltrona::zpf
