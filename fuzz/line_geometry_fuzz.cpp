// Lines with points from anywhere: the walk over them ends, makes nothing that can't be seen, and leaves the
// pen in a state that a surface can have.
//
// Input: line width, index of the line under construction, then lines: style, number of points (the high bit
// makes them curved), and the points, eight bytes each.

#include "fuzz/check.h"
#include "render/line_geometry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

using namespace zeltrona;
using namespace zeltrona::render;

namespace {

constexpr ClipBox kBoard{0, 0, 363, 332};
constexpr std::size_t kMostLines = 4;
constexpr std::size_t kMostPoints = 32;

/// Takes bytes from the front; zeros when there are none left.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : m_data(data), m_left(size) {}

    bool isEmpty() const { return m_left == 0; }
    std::uint8_t byte() { return take<std::uint8_t>(); }
    float single() { return take<float>(); }

private:
    template<class T> T take() {
        T value{};
        const std::size_t count = std::min(m_left, sizeof(T));
        std::memcpy(&value, m_data, count);
        m_data += count;
        m_left -= count;
        return value;
    }
    const std::uint8_t* m_data;
    std::size_t m_left;
};

document::LineRec lineFrom(Bytes& bytes) {
    document::LineRec line;
    line.style = bytes.byte();
    const std::uint8_t shape = bytes.byte();
    line.curved = (shape & 0x80U) != 0;
    const std::size_t count = std::min<std::size_t>(shape & 0x7FU, kMostPoints);
    for (std::size_t i = 0; i < count && !bytes.isEmpty(); ++i) {
        const float x = bytes.single();
        line.pts.push_back({x, bytes.single()});
    }
    return line;
}

void checkSeen(const LineDrawing& drawing, const ClipBox& seen) {
    for (const LinePrimitive& primitive : drawing.primitives) {
        if (const auto* arc = std::get_if<ArcPrimitive>(&primitive)) {
            FUZZ_CHECK(isInside(grown(seen, 6), arc->centre));
            FUZZ_CHECK(arc->radius >= 0);
        }
        FUZZ_CHECK(std::visit([](const auto& p) { return p.width >= 1; }, primitive));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    const auto lineWidth = static_cast<std::int16_t>(static_cast<std::int8_t>(bytes.byte()));
    const auto editLineIndex = static_cast<std::int16_t>(static_cast<std::int8_t>(bytes.byte()));
    std::vector<document::LineRec> lines;
    while (!bytes.isEmpty() && lines.size() < kMostLines) {
        lines.push_back(lineFrom(bytes));
    }
    if (lines.empty()) {
        return 0;
    }
    LineDrawing drawing;
    drawPaths(drawing, {lines, lineWidth, editLineIndex, kBoard}, 100, 100);
    checkSeen(drawing, grown(kBoard, std::max<int>(lineWidth, 1) / 2.0 + 8));
    FUZZ_CHECK(drawing.primitives.size() < kMostLines * 40000);
    FUZZ_CHECK(drawing.pen.drawWidth == 1 || drawing.pen.drawWidth == lineWidth);
    return 0;
}
