#include "document/frame_store.h"

#include "document/frame_keys.h"
#include "document/frame_writer.h"
#include "document/list_reader.h"
#include "document/player_reader.h"

#include <limits>

namespace zeltrona::document {

namespace {

constexpr std::int16_t kNoFrame = -1;

/// The frame's own number as stored, kNoFrame when it does not exist.
std::int16_t storedNumber(const PlayFile& play, std::int16_t frame) {
    return static_cast<std::int16_t>(play.readInt(frameSection(frame), "frame", kNoFrame));
}

/// Every stored frame has a note key, empty or not, so that the keys come into being in the order of the
/// frames: the renumbering at a deletion depends on that. A note that is there stands as it is, also one
/// longer than the note window takes.
void keepNoteKey(PlayFile& play, std::int16_t frame) {
    if (!play.hasKey(kConfigSection, noteKey(frame))) {
        play.writeString(kConfigSection, noteKey(frame), "");
    }
}

} // namespace

std::int16_t countFrames(const PlayFile& play) {
    const ReadScope scope(play);
    std::int16_t last = 0;
    for (std::int32_t number = 1; number <= std::numeric_limits<std::int16_t>::max(); ++number) {
        const std::int16_t stored = storedNumber(play, static_cast<std::int16_t>(number));
        if (stored == kNoFrame) {
            break;
        }
        last = stored;
    }
    return last;
}

bool frameExists(const PlayFile& play, std::int16_t n) {
    return storedNumber(play, n) != kNoFrame;
}

WriteResult saveFrame(PlayFile& play, const Session& session, const FrameRecords& records,
                      std::int16_t /*frame*/, bool partial) {
    const std::int16_t frame = session.currFrame;
    WriteBatch batch(play);
    keepNoteKey(play, frame);
    play.writeString(frameSection(frame), "frame", std::to_string(frame));
    writeSidePlayers(play, frame, "off", records.offPlayers);
    writeSidePlayers(play, frame, "def", records.defPlayers);
    writeBallKeys(play, frame, records.balls);
    writePathKeys(play, frame, "off", records.offPaths);
    writePathKeys(play, frame, "def", records.defPaths);
    writePathKeys(play, frame, "Ball", records.ballPaths);
    writeTriangleKeys(play, frame, records.triangles);
    if (!partial) {
        writeLineKeys(play, frame, records.lines);
        writeShadowKeys(play, frame, records.shadows);
        writeTxtPicKeys(play, frame, records.txtPics);
    }
    return batch.commit();
}

void loadFrame(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t frame) {
    const ReadScope scope(play);
    readTriangles(play, frame, records.triangles);
    readBalls(play, frame, records.balls);
    readLines(play, frame, records.lines);
    readShadows(play, frame, records.shadows);
    readTxtPics(play, frame, records.txtPics);
    readSidePlayers(play, frame, "off", session.scratchPlayer, records.offPlayers);
    readSidePlayers(play, frame, "def", session.scratchPlayer, records.defPlayers);
    readFramePaths(play, frame, "off", records.offPaths);
    readFramePaths(play, frame, "def", records.defPaths);
    readFrameBallPaths(play, frame, "Ball", records.ballPaths);
}

} // namespace zeltrona::document
