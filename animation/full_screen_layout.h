#pragma once

#include <cstdint>
#include <functional>

namespace zeltrona::animation {

/// Sizes that the full screen is laid out from.
/// Units: logical pixels of the window; `boardWidth`, `boardHeight` of the board's picture.
struct FullScreenMeasures {
    int scaleWidth = 0;
    int scaleHeight = 0;
    int toolWidth = 0;
    int toolHeight = 0;
    int hintHeight = 0; ///< of the line "Press ESC to EXIT" in its font
    int boardWidth = 0;
    int boardHeight = 0;
};

struct TextExtent {
    int width = 0;
    int height = 0;
};
/// Extent of the product's name in the window's bold font at a size in points.
using MeasureName = std::function<TextExtent(int fontSize)>;

/// The product's name in the margins on both sides of the tool bar.
struct NamePlaces {
    bool shown = false;
    int fontSize = 0;
    double y = 0.0;
    double leftX = 0.0;
    double rightX = 0.0;
    friend bool operator==(const NamePlaces&, const NamePlaces&) = default;
};

struct ToolPlaces {
    int left = 0;
    std::int16_t toolTop = 0; ///< also the height available for the picture
    NamePlaces name;
    friend bool operator==(const ToolPlaces&, const ToolPlaces&) = default;
};

struct BoardView {
    double picScale = 1.0; ///< 1.0 or 1.4 at first, lowered in steps of 0.1
    bool fits = true; ///< false: no scale leaves room above the tool bar, and the other fields say nothing
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// Top of the hint, three of its lines above the lower edge. The hint stands at x = 10.
std::int16_t hintTopOf(const FullScreenMeasures& measures);

/// The tool bar centred below the picture, nearer to the hint on a window of at most 610 rows.
/// The name shrinks while it is *higher* than the margin is wide; below size 8 it is left out.
ToolPlaces placeAnimTools(const FullScreenMeasures& measures, std::int16_t hintTop,
                          const MeasureName& measureName);

/// The picture centred above the tool bar. A board under 500 wide is enlarged on a window at least 810 wide;
/// a whole court never. The scale falls by 0.1 until the picture fits, and gives up before it would reach 0.
BoardView sizeBoardView(const FullScreenMeasures& measures, std::int16_t toolTop);

} // namespace zeltrona::animation
