#include "editor/delete_tool.h"

#include "document/number_text.h"
#include "editor/hit_test.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zeltrona::editor {

using document::PointF;
using document::roundToInt16;

namespace {

// The boxes differ from those that pick: they follow how each mark is drawn around its stored point.
constexpr double kBallSide = 26.0;
constexpr double kTriangleSide = 12.0;
constexpr double kLineThickness = 4.0;

struct Box {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
};

bool isInside(const Box& box, PointF place) {
    return pointInBox(roundToInt16(box.left), roundToInt16(box.top), roundToInt16(box.width),
                      roundToInt16(box.height), roundToInt16(place.x), roundToInt16(place.y));
}

Box boxBetween(double x1, double y1, double x2, double y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::abs(x1 - x2), std::abs(y1 - y2)};
}

Box boxOf(const document::BallRec& ball) {
    return {ball.x - 13.0, ball.y - 20.0, kBallSide, kBallSide};
}

Box boxOf(const document::TriangleRec& triangle) {
    return {triangle.x, triangle.y - kTriangleSide, kTriangleSide, kTriangleSide};
}

Box boxOf(const document::ShadowRec& shadow) {
    return boxBetween(shadow.x, shadow.y, shadow.w, shadow.h);
}

Box boxOf(const document::TxtPicRec& picture, EditorHost& host) {
    const double height = host.textHeight(picture.text);
    return {picture.x, picture.y - height, static_cast<double>(host.textWidth(picture.text)), height};
}

/// Around an upright or a level segment a narrow band, else the segment's whole rectangle.
Box boxOf(PointF a, PointF b) {
    Box box = boxBetween(a.x, a.y, b.x, b.y);
    if (a.x == b.x) {
        box.width = kLineThickness;
        box.left = std::max(box.left - 2.0, 0.0);
    } else if (a.y == b.y) {
        box.height = kLineThickness;
        box.top = std::max(box.top - 2.0, 0.0);
    }
    return box;
}

bool isOnLine(const document::LineRec& line, PointF place) {
    for (std::size_t i = 1; i < line.pts.size(); ++i) {
        if (isInside(boxOf(line.pts[i - 1], line.pts[i]), place)) {
            return true;
        }
    }
    return false;
}

template<typename Record, typename Test>
std::optional<std::size_t> firstOf(const std::vector<Record>& array, Test isHit) {
    const auto hit = std::find_if(array.begin(), array.end(), isHit);
    if (hit == array.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(hit - array.begin());
}

struct Hit {
    document::ObjectClass kind = document::ObjectClass::Ball;
    std::size_t index = 0;
};

std::optional<Hit> objectAt(EditorContext& editor, PointF place) {
    using Kind = document::ObjectClass;
    const auto& records = editor.records;
    const auto isHit = [&](const auto& record) { return isInside(boxOf(record), place); };
    const auto isTextHit = [&](const auto& picture) { return isInside(boxOf(picture, editor.host), place); };
    const auto isLineHit = [&](const auto& line) { return isOnLine(line, place); };
    if (const auto index = firstOf(records.balls, isHit)) {
        return Hit{Kind::Ball, *index};
    }
    if (const auto index = firstOf(records.triangles, isHit)) {
        return Hit{Kind::Triangle, *index};
    }
    if (const auto index = firstOf(records.shadows, isHit)) {
        return Hit{Kind::Shadow, *index};
    }
    if (const auto index = firstOf(records.txtPics, isTextHit)) {
        return Hit{Kind::TxtPic, *index};
    }
    if (const auto index = firstOf(records.lines, isLineHit)) {
        return Hit{Kind::Line, *index};
    }
    return std::nullopt;
}

} // namespace

void deleteObjectAt(EditorContext& editor, float x, float y) {
    const auto hit = objectAt(editor, {x, y});
    if (!hit) {
        return;
    }
    editor.host.removeObject(hit->kind, hit->index);
    editor.host.redrawBoard(0.0F, 0.0F);
}

} // namespace zeltrona::editor
