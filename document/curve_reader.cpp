#include "document/field_list.h"
#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/number_text.h"
#include "document/text_buffers.h"

#include <string>

namespace zeltrona::document {

namespace {

/// Gathers the values of curve keys into an array of paths that is in its empty state at first.
class PathGatherer {
public:
    explicit PathGatherer(std::vector<PathRec>& paths) : m_paths(paths) {}

    void takeValue(std::uint8_t owner, std::string_view value) {
        bool isX = true;
        for (const ListField& field : splitFields(value, FieldTest::Numeric)) {
            if (m_started) {
                takeNumber(owner, isX, toSingle(field.number));
            } else {
                takeFirstPoint(owner, isX, toSingle(field.number));
            }
            isX = !isX;
        }
    }

private:
    /// The first path found goes into element 0. It only counts as begun with its y: a key of one single
    /// number leaves the element to the next key.
    void takeFirstPoint(std::uint8_t owner, bool isX, float number) {
        PathRec& path = m_paths.front();
        path.owner = owner;
        if (isX) {
            path.pts.front().x = number;
        } else {
            path.pts.front().y = number;
            m_started = true;
        }
    }

    void takeNumber(std::uint8_t owner, bool isX, float number) {
        // Owners rise from key to key, so that the last element is the only one that can be this owner's.
        if (m_paths.back().owner != owner) {
            m_paths.push_back({owner, {{number, 0.0F}}});
        } else if (isX) {
            m_paths.back().pts.push_back({number, 0.0F});
        } else {
            m_paths.back().pts.back().y = number;
        }
    }

    std::vector<PathRec>& m_paths;
    bool m_started = false;
};

void readCurves(const PlayFile& play, std::int16_t frame, std::string_view name, int lastOwner,
                std::vector<PathRec>& dest) {
    const ReadScope scope(play);
    resetPaths(dest);
    PathGatherer gatherer(dest);
    const std::string section = frameSection(frame);
    for (int owner = 0; owner <= lastOwner; ++owner) {
        const std::string key = curveKey(name, static_cast<std::size_t>(owner));
        gatherer.takeValue(static_cast<std::uint8_t>(owner), readText(play, section, key, TextBuffer::List));
    }
}

} // namespace

void readFramePaths(const PlayFile& play, std::int16_t frame, std::string_view side,
                    std::vector<PathRec>& dest) {
    readCurves(play, frame, side, kLastPlayerPath, dest);
}

void readFrameBallPaths(const PlayFile& play, std::int16_t frame, std::string_view kind,
                        std::vector<PathRec>& dest) {
    if (kind == "Ball") {
        readCurves(play, frame, kind, kLastBallPath, dest);
    }
}

} // namespace zeltrona::document
