#include "document/object_removal.h"

#include "document/frame_keys.h"
#include "document/frame_store.h"

#include <algorithm>
#include <string>
#include <utility>

namespace zeltrona::document {

namespace {

/// Takes one element out of an array; an array is never left without one.
template<class Record, class Reset>
void takeOut(std::vector<Record>& records, std::size_t index, Reset reset) {
    if (records.size() == 1) {
        reset(records);
    } else {
        records.erase(records.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

template<class Record, class Reset>
bool removeElement(PlayFile& play, const std::string& section, std::string_view name,
                   std::vector<Record>& records, std::size_t index, Reset reset) {
    if (index >= records.size()) {
        return false;
    }
    for (std::size_t k = index; k < records.size(); ++k) {
        play.deleteKey(section, indexedKey(name, k));
    }
    takeOut(records, index, reset);
    return true;
}

void removeBallPath(PlayFile& play, const std::string& section, std::vector<PathRec>& paths,
                    std::size_t ball) {
    if (!hasPaths(paths)) {
        return;
    }
    const auto found =
        std::find_if(paths.begin(), paths.end(), [ball](const PathRec& path) { return path.owner == ball; });
    if (found == paths.end()) {
        return;
    }
    const auto place = static_cast<std::size_t>(found - paths.begin());
    for (std::size_t k = place; k < paths.size(); ++k) {
        play.deleteKey(section, curveKey("Ball", k));
        if (k > place && paths[k].owner > 0) {
            --paths[k].owner;
        }
    }
    takeOut(paths, place, resetPaths);
}

bool removeBall(PlayFile& play, const std::string& section, FrameRecords& records, std::size_t index) {
    if (!removeElement(play, section, "Ball", records.balls, index, resetBalls)) {
        return false;
    }
    removeBallPath(play, section, records.ballPaths, index);
    return true;
}

bool removeOfClass(PlayFile& play, const std::string& section, FrameRecords& records, ObjectClass kind,
                   std::size_t index) {
    switch (kind) {
    case ObjectClass::Ball:
        return removeBall(play, section, records, index);
    case ObjectClass::Triangle:
        return removeElement(play, section, "Triangle", records.triangles, index, resetTriangles);
    case ObjectClass::Shadow:
        return removeElement(play, section, "Shadow", records.shadows, index, resetShadows);
    case ObjectClass::TxtPic:
        return removeElement(play, section, "txtPic", records.txtPics, index, resetTxtPics);
    case ObjectClass::Line:
        return removeElement(play, section, "Line", records.lines, index, resetLines);
    }
    return false;
}

} // namespace

WriteResult removeObject(PlayFile& play, const Session& session, FrameRecords& records, ObjectClass kind,
                         std::size_t index) {
    FrameRecords after = records;
    WriteBatch batch(play);
    if (!removeOfClass(play, frameSection(session.currFrame), after, kind, index)) {
        return {};
    }
    saveFrame(play, session, after, session.currFrame, false);
    WriteResult result = batch.commit();
    if (result.ok()) {
        records = std::move(after);
    }
    return result;
}

} // namespace zeltrona::document
