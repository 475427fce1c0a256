#include "document/sequence.h"

#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/sequence_rewrite.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zeltrona::document {

namespace {

template<class Object> void carryEnds(const std::vector<PathRec>& paths, std::vector<Object>& objects) {
    if (!hasPaths(paths)) {
        return;
    }
    for (std::size_t k = 0; k < paths.size() && k < objects.size(); ++k) {
        const PathRec& path = paths[k];
        if (path.owner < objects.size() && !path.pts.empty()) {
            objects[path.owner].x = path.pts.back().x;
            objects[path.owner].y = path.pts.back().y;
        }
    }
}

void resetAllPaths(FrameRecords& records) {
    resetPaths(records.offPaths);
    resetPaths(records.defPaths);
    resetPaths(records.ballPaths);
}

/// The shown frame is stored, and `after` becomes the state of the new one.
WriteResult storeBoth(PlayFile& play, WriteBatch& batch, Session& session, FrameRecords& after,
                      std::int16_t newFrame) {
    saveFrame(play, session, after, session.currFrame, false);
    session.currFrame = newFrame;
    carryPathEnds(after);
    resetAllPaths(after);
    saveFrame(play, session, after, session.currFrame, true);
    return batch.commit();
}

/// Takes frame and note out and closes the gap; `shown` becomes the frame to show.
WriteResult takeFrameOut(PlayFile& play, std::int16_t frame, const std::string& programFolder,
                         std::int16_t& shown) {
    WriteBatch batch(play);
    const bool leavesGap = frame >= 1 && frame < countFrames(play);
    play.deleteSection(frameSection(frame));
    play.deleteKey(kConfigSection, noteKey(frame));
    shown = frame;
    if (!leavesGap) {
        shown = std::max<std::int16_t>(countFrames(play), 1);
    } else {
        WriteResult rewritten =
            replaceThroughTemporary(play, closeFrameGap(play.bytes(), frame), programFolder);
        if (!rewritten.ok()) {
            return batch.fail(std::move(rewritten));
        }
    }
    return batch.commit();
}

} // namespace

void carryPathEnds(FrameRecords& records) {
    carryEnds(records.offPaths, records.offPlayers);
    carryEnds(records.defPaths, records.defPlayers);
    carryEnds(records.ballPaths, records.balls);
}

StepOutcome stepDown(const PlayFile& play, Session& session, FrameRecords& records) {
    if (session.currFrame <= 1) {
        return StepOutcome::AtEnd;
    }
    while (session.currFrame > 1) {
        --session.currFrame;
        if (frameExists(play, session.currFrame)) {
            loadFrame(play, session, records, session.currFrame);
            return StepOutcome::Shown;
        }
    }
    return StepOutcome::NoFirst;
}

StepOutcome stepUp(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t count) {
    if (session.currFrame >= count) {
        return StepOutcome::AtEnd;
    }
    bool found = false;
    while (!found && session.currFrame < count) {
        ++session.currFrame;
        found = frameExists(play, session.currFrame);
    }
    loadFrame(play, session, records, session.currFrame);
    return found ? StepOutcome::Shown : StepOutcome::NoLast;
}

WriteResult makeNewFrame(PlayFile& play, Session& session, FrameRecords& records) {
    // Counted within the act: a play that cannot be read just now has frames all the same, and they must not
    // be written over by a new first one.
    WriteBatch batch(play);
    const std::int16_t count = countFrames(play);
    if (count == std::numeric_limits<std::int16_t>::max()) {
        saveFrame(play, session, records, session.currFrame, false);
        return batch.commit();
    }
    const std::int16_t shown = session.currFrame;
    FrameRecords after = records;
    WriteResult result = storeBoth(play, batch, session, after, static_cast<std::int16_t>(count + 1));
    if (!result.ok()) {
        session.currFrame = shown;
        return result;
    }
    resetTxtPics(after.txtPics);
    resetShadows(after.shadows);
    resetLines(after.lines);
    records = std::move(after);
    return result;
}

Deletion checkDeletion(const PlayFile& play, const Session& session) {
    if (countFrames(play) == 1) {
        return Deletion::OnlyFrame;
    }
    return session.currFrame == 1 ? Deletion::FirstFrame : Deletion::Allowed;
}

WriteResult deleteShownFrame(PlayFile& play, Session& session, FrameRecords& records,
                             const std::string& programFolder) {
    if (checkDeletion(play, session) != Deletion::Allowed) {
        return {};
    }
    std::int16_t shown = session.currFrame;
    WriteResult result = takeFrameOut(play, session.currFrame, programFolder, shown);
    if (result.ok()) {
        session.currFrame = shown;
        loadFrame(play, session, records, shown);
    }
    return result;
}

} // namespace zeltrona::document
