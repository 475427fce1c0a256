#include "output/picture_export.h"

#include "document/frame_store.h"
#include "output/board_picture.h"
#include "output/report_lines.h"

namespace zeltrona::output {
namespace {

bool exportFrameAs(FrameWalk& walk, std::int16_t frame, const QString& path) {
    prepareFramePicture(walk, frame);
    return saveBitmap(walk.board.pic.image(), path);
}

} // namespace

QString exportFrameImage(FrameWalk& walk, std::int16_t frame, const QString& folder) {
    const QString name = QString::fromStdString(frameImageName(frame));
    return exportFrameAs(walk, frame, folder + name) ? name : QString();
}

int exportPictures(FrameWalk& walk, QWidget* parent, platform::CommonDialog& dialog) {
    const std::int16_t frames = document::countFrames(walk.play);
    const platform::FileQuestion question{QStringLiteral("Select name of pictures and export folder."),
                                          QStringLiteral("Bitmap Picture(*.bmp)"),
                                          {}};
    if (!platform::showSave(parent, dialog, question) || dialog.fileTitle.isEmpty()) {
        return 0;
    }
    const QString folder = dialog.fileName.left(dialog.fileName.lastIndexOf(u'/') + 1);
    const auto point = dialog.fileTitle.lastIndexOf(u'.');
    if (point < 0) {
        return 0;
    }
    const QString base = folder + dialog.fileTitle.left(point);
    for (int frame = 1; frame <= frames; ++frame) {
        if (walk.progress) {
            walk.progress(frame, frames);
        }
        if (!exportFrameAs(walk, static_cast<std::int16_t>(frame), base + QString::number(frame) + ".bmp")) {
            return frame - 1;
        }
    }
    return frames;
}

} // namespace zeltrona::output
