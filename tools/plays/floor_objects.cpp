#include "tools/plays/floor_objects.h"

#include "document/code_page.h"
#include "document/session.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::plays {

using document::PointF;

namespace {

constexpr float kTriangleSide = 12;

float whole(double value) {
    return static_cast<float>(std::nearbyint(value));
}

document::ShadowRec shadowOf(const Shade& shade, bool isWhole, const CourtMap& map) {
    const PointF middle = map.at(shade.middle);
    double x = map.length(shade.across);
    double y = map.length(shade.along);
    if (isWhole) {
        std::swap(x, y);
    }
    return {whole(middle.x - x), whole(middle.y - y), static_cast<std::int16_t>(std::nearbyint(middle.x + x)),
            static_cast<std::int16_t>(std::nearbyint(middle.y + y)), shade.color};
}

/// About how wide bold Arial is: the maker knows no fonts.
double aboutWidth(const std::string& utf8, int size) {
    const auto isCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto count = std::count_if(utf8.begin(), utf8.end(), isCharacter);
    return 0.58 * static_cast<double>(count) * size * 96 / 72;
}

document::TxtPicRec textOf(const Label& label, const CourtMap& map) {
    const PointF middle = map.at(label.middle);
    document::TxtPicRec text;
    text.text = document::fromUtf8(label.text, kCharset).bytes;
    text.x = whole(middle.x - aboutWidth(label.text, label.size) / 2);
    text.y = whole(middle.y + label.size * 0.75);
    text.fontName = "Arial";
    text.fontSize = label.size;
    text.color = label.color;
    text.bold = true;
    text.italic = label.italic;
    text.underline = label.underline;
    text.strikethrough = label.strikethrough;
    return text;
}

document::TriangleRec triangleOf(const Mark& mark, const CourtMap& map) {
    const PointF middle = map.at(mark.middle);
    return {whole(middle.x - kTriangleSide / 2), whole(middle.y + kTriangleSide / 2), mark.color};
}

} // namespace

void addFloorObjects(document::FrameRecords& records, const PlayScript& play, const CourtMap& map,
                     const Frame& frame) {
    if (!frame.shades.empty()) {
        records.shadows.clear();
    }
    for (const Shade& shade : frame.shades) {
        records.shadows.push_back(shadowOf(shade, document::isBigCourt(play.look.court), map));
    }
    if (!frame.labels.empty()) {
        records.txtPics.clear();
    }
    for (const Label& label : frame.labels) {
        records.txtPics.push_back(textOf(label, map));
    }
    if (!frame.marks.empty()) {
        records.triangles.clear();
    }
    for (const Mark& mark : frame.marks) {
        records.triangles.push_back(triangleOf(mark, map));
    }
}

} // namespace zeltrona::plays
