#include "editor/path_recording.h"

#include "document/frame_records.h"
#include "editor/array_elements.h"

#include <algorithm>

namespace zeltrona::editor {

using document::PathRec;
using document::PointF;

namespace {

constexpr std::size_t kMostPoints = 902;
constexpr std::int16_t kLargestOwner = 255;

void setFirstPoint(PathRec& path, std::int16_t owner, PointF place) {
    path.owner = static_cast<std::uint8_t>(owner);
    if (path.pts.empty()) {
        path.pts.resize(1);
    }
    path.pts[0] = place;
}

} // namespace

PathPoint recordPathPoint(std::vector<PathRec>& paths, std::int16_t owner, PointF place) {
    if (owner < 0 || owner > kLargestOwner) {
        return PathPoint::Recorded;
    }
    if (!hasPaths(paths)) {
        setFirstPoint(paths[0], owner, place);
        return PathPoint::Recorded;
    }
    const auto path =
        std::find_if(paths.begin(), paths.end(), [&](const PathRec& p) { return p.owner == owner; });
    if (path == paths.end()) {
        setFirstPoint(paths.emplace_back(), owner, place);
        return PathPoint::Recorded;
    }
    if (path->pts.size() >= kMostPoints) {
        return PathPoint::PathFull;
    }
    path->pts.push_back(place);
    return PathPoint::Recorded;
}

} // namespace zeltrona::editor
