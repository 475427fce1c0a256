#pragma once

#include "document/frame_store.h"
#include "output/frame_walk.h"
#include "platform/common_dialog.h"
#include "tests/document/temporary_play.h"
#include "tests/session/window_harness.h"

#include <QImage>

#include <gtest/gtest.h>
#include <string>

namespace zeltrona::tests {

/// A play of some frames on the disk with one ball that stands elsewhere in each, and everything that an
/// output borrows of the main window.
class OutputTest : public ::testing::Test {
protected:
    static const render::BoardArt& art() {
        static const render::BoardArt loaded = render::loadBoardArt();
        return loaded;
    }

    static std::string playOf(int frames, int court, const std::string& config = {}) {
        std::string lines = "[Config]\ncourt=" + std::to_string(court)
                            + "\ncourtColor=16777215\ntxtOff0=4\ncolorOff=255\ncolorOffFont=16777215\n"
                            + config;
        for (int n = 1; n <= frames; ++n) {
            const std::string number = std::to_string(n);
            lines += "[Frame" + number + "]\nframe=" + number + "\noff0=" + std::to_string(20 * n)
                     + ",40\nBall0=" + std::to_string(15 * n) + ",150,\n";
        }
        return lines;
    }

    void begin(int frames, int court = 1, const std::string& config = {}) {
        play.folder.put(crlf(playOf(frames, court, config)));
        document::loadConfig(play.file, session, records);
        const QSize size = render::boardSizeOf(session.court);
        pic.resize(size.width(), size.height());
    }

    /// The board of a frame, drawn on a board of its own.
    QImage boardOf(std::int16_t frame) {
        render::BoardSurface other(pic.width(), pic.height());
        render::Board otherBoard{other, art()};
        document::Session otherSession = session;
        document::FrameRecords otherRecords;
        for (std::int16_t n = 1; n <= frame; ++n) {
            document::loadFrame(play.file, otherSession, otherRecords, n);
        }
        render::redrawBoard(otherBoard, {otherSession, otherRecords}, 0, 0);
        return other.image().copy();
    }

    QString path(const char* name) { return QString::fromStdString(play.folder.path(name)); }

    TemporaryPlay play;
    document::Session session;
    document::FrameRecords records;
    render::BoardSurface pic;
    render::Board board{pic, art()};
    output::FrameWalk walk{play.file, session, records, board};
    platform::CommonDialog dialog;
    zeltrona::testing::DialogAnswerer answers;
};

} // namespace zeltrona::tests
