// A play from anywhere, through everything that reads it and then through the acts that change it. Reading
// changes no byte; what was loaded, saved and loaded again comes back the same from then on; an act on one
// frame leaves the others as they were. Nothing reaches the disk but the temporary file of a deletion.
//
// Input: the bytes of a play.

#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/object_removal.h"
#include "document/sequence.h"
#include "document/user_texts.h"
#include "fuzz/check.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

using namespace zeltrona::document;

namespace {

constexpr std::int16_t kFramesLookedAt = 4;

/// A folder for the one temporary file, gone at the end of the run.
struct Scratch {
    Scratch() {
        std::string name = (std::filesystem::temp_directory_path() / "zeltrona-fuzz-XXXXXX").string();
        FUZZ_CHECK(::mkdtemp(name.data()) != nullptr);
        folder = name;
    }
    ~Scratch() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    std::string folder;
};

const std::string& scratchFolder() {
    static const Scratch scratch;
    return scratch.folder;
}

FrameRecords loaded(const PlayFile& play, std::int16_t frame) {
    Session session;
    FrameRecords records;
    loadFrame(play, session, records, frame);
    return records;
}

void writeLabels(PlayFile& play, const std::string& tail, const std::vector<PlayerRec>& players) {
    for (std::size_t i = 0; i < players.size(); ++i) {
        play.writeText(kConfigSection, indexedKey("txt" + tail, i), players[i].txt);
        play.writeString(kConfigSection, indexedKey("skin" + tail, i), std::to_string(players[i].skin));
    }
}

/// The records after a way through a play of their own. What counts as absent comes back empty.
FrameRecords throughAPlay(const FrameRecords& records) {
    PlayFile play(scratchFolder() + "/other.zpf");
    const WriteBatch neverCommitted(play);
    play.replaceAll("");
    writeLabels(play, "Off", records.offPlayers);
    writeLabels(play, "Def", records.defPlayers);
    saveFrame(play, Session(), records, 1, false);
    FrameRecords back = loaded(play, 1);
    // A place may have been rounded into the empty state.
    for (std::vector<PlayerRec>* side : {&back.offPlayers, &back.defPlayers}) {
        if (!hasPlayers(*side)) {
            resetPlayers(*side);
        }
    }
    return back;
}

bool nearTo(float a, float b) {
    return std::abs(a - b) <= std::max(std::abs(a), std::abs(b)) * 1e-6F;
}

template<class Record>
void checkPlaces(bool hasData, const std::vector<Record>& before, const std::vector<Record>& after) {
    FUZZ_CHECK(after.size() == (hasData ? before.size() : 1U));
    for (std::size_t i = 0; hasData && i < before.size(); ++i) {
        FUZZ_CHECK(nearTo(before[i].x, after[i].x) && nearTo(before[i].y, after[i].y));
    }
}

void checkSavedLoadsEqual(const FrameRecords& records) {
    const FrameRecords once = throughAPlay(records);
    checkPlaces(hasBalls(records.balls), records.balls, once.balls);
    checkPlaces(hasTriangles(records.triangles), records.triangles, once.triangles);
    checkPlaces(hasShadows(records.shadows), records.shadows, once.shadows);
    FUZZ_CHECK(throughAPlay(once) == once);
}

void checkReading(const PlayFile& play) {
    const std::string before = play.bytes();
    Session session;
    FrameRecords records;
    loadConfig(play, session, records);
    FUZZ_CHECK(records.offPlayers.size() <= kSlotCount && records.defPlayers.size() <= kSlotCount);
    std::string font = "Arial";
    std::int16_t charset = 238;
    readFontConfig(play, font, charset);
    FUZZ_CHECK(withBreakMarks(withLineBreaks(readHead(play))) == readHead(play));
    FUZZ_CHECK(readNote(play, 1).size() <= 498);
    for (std::int16_t frame = 1; frame <= kFramesLookedAt; ++frame) {
        checkSavedLoadsEqual(loaded(play, frame));
    }
    FUZZ_CHECK(play.bytes() == before);
}

void checkNewFrame(PlayFile& play) {
    const WriteBatch neverCommitted(play);
    Session session;
    FrameRecords records = loaded(play, 1);
    const std::int16_t count = countFrames(play);
    makeNewFrame(play, session, records);
    FUZZ_CHECK(session.currFrame == (count == 32767 ? 1 : count + 1));
    FUZZ_CHECK(count == 32767
               || play.readInt(frameSection(session.currFrame), "frame", 0) == session.currFrame);
    FUZZ_CHECK(!hasPaths(records.offPaths) || count == 32767);
}

void checkDeletion(PlayFile& play) {
    const WriteBatch neverCommitted(play);
    Session session;
    session.currFrame = 2;
    FrameRecords records = loaded(play, 2);
    const std::string before = play.bytes();
    const bool allowed = checkDeletion(play, session) == Deletion::Allowed;
    FUZZ_CHECK(deleteShownFrame(play, session, records, scratchFolder()).ok());
    FUZZ_CHECK(allowed || play.bytes() == before);
    FUZZ_CHECK(!std::filesystem::exists(scratchFolder() + "/zqTmp.zpf"));
}

void checkRemoval(PlayFile& play, ObjectClass kind) {
    const WriteBatch neverCommitted(play);
    Session session;
    session.currFrame = 2;
    FrameRecords records = loaded(play, 2);
    const FrameRecords first = loaded(play, 1);
    const FrameRecords third = loaded(play, 3);
    removeObject(play, session, records, kind, 0);
    FUZZ_CHECK(loaded(play, 1) == first);
    FUZZ_CHECK(loaded(play, 3) == third);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    PlayFile play(scratchFolder() + "/play.zpf");
    const WriteBatch neverCommitted(play);
    play.replaceAll(std::string(reinterpret_cast<const char*>(data), size));
    checkReading(play);
    checkNewFrame(play);
    checkDeletion(play);
    for (const ObjectClass kind : {ObjectClass::Ball, ObjectClass::Triangle, ObjectClass::Shadow,
                                   ObjectClass::TxtPic, ObjectClass::Line}) {
        checkRemoval(play, kind);
    }
    return 0;
}
