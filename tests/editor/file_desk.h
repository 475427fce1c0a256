#pragma once

#include "document/frame_store.h"
#include "document/object_removal.h"
#include "tests/document/temporary_play.h"
#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor::testing {

/// A desk over a play on the disk, with one of its frames on the board; `lines` as the program writes them,
/// with \n for each line end.
struct FileDesk : Desk {
    explicit FileDesk(const std::string& lines, std::int16_t frame = 1) : play(lines) {
        session.currFrame = frame;
        records = document::FrameRecords();
        loadFrame(play.file, session, records, frame);
        host.onRemove = [this](document::ObjectClass kind, std::size_t index) {
            EXPECT_TRUE(removeObject(play.file, session, records, kind, index).ok());
        };
    }

    zeltrona::tests::TemporaryPlay play;
};

} // namespace zeltrona::editor::testing
