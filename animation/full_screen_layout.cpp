#include "animation/full_screen_layout.h"

#include "document/number_text.h"

#include <cmath>

namespace zeltrona::animation {

namespace {

constexpr int kLowWindow = 610;
constexpr int kWideWindow = 810;
constexpr int kSmallBoard = 500;
constexpr int kLargestName = 20;
constexpr int kSmallestName = 8;
constexpr double kEnlarged = 1.4;
constexpr double kScaleStep = 0.1;
// Ten subtractions of 0.1 leave a hair above 0, not 0 itself.
constexpr double kNoScale = kScaleStep / 2.0;

int wholePart(double value) {
    return static_cast<int>(std::floor(value));
}

NamePlaces placeName(const FullScreenMeasures& measures, int left, int toolTop,
                     const MeasureName& measureName) {
    NamePlaces name;
    name.fontSize = kLargestName;
    TextExtent extent = measureName(name.fontSize);
    while (extent.height > left) {
        name.fontSize -= 2;
        if (name.fontSize < kSmallestName) {
            return NamePlaces{};
        }
        extent = measureName(name.fontSize);
    }
    const int margin = wholePart((left - extent.width) / 2.0);
    name.shown = true;
    name.leftX = margin;
    name.rightX = (measures.scaleWidth + measures.toolWidth) / 2.0 + margin;
    name.y = toolTop + measures.toolHeight / 2.0 - extent.height / 2.0;
    return name;
}

} // namespace

std::int16_t hintTopOf(const FullScreenMeasures& measures) {
    return document::roundToInt16(measures.scaleHeight - 3 * measures.hintHeight);
}

ToolPlaces placeAnimTools(const FullScreenMeasures& measures, std::int16_t hintTop,
                          const MeasureName& measureName) {
    ToolPlaces places;
    places.left = wholePart((measures.scaleWidth - measures.toolWidth) / 2.0);
    const int lines = measures.scaleHeight <= kLowWindow ? 2 : 3;
    places.toolTop = document::roundToInt16(hintTop - lines * measures.toolHeight);
    places.name = placeName(measures, places.left, places.toolTop, measureName);
    return places;
}

BoardView sizeBoardView(const FullScreenMeasures& measures, std::int16_t toolTop) {
    BoardView view;
    const bool enlarge = measures.scaleWidth >= kWideWindow && measures.boardWidth < kSmallBoard;
    view.picScale = enlarge ? kEnlarged : 1.0;
    view.top = wholePart((toolTop - measures.boardHeight * view.picScale) / 2.0);
    while (view.top < 0) {
        // After repeated subtraction the scale is hardly ever 0.1 exactly.
        if (view.picScale == kScaleStep || view.picScale - kScaleStep < kNoScale) {
            view.fits = false;
            return view;
        }
        view.picScale -= kScaleStep;
        view.top = wholePart((toolTop - measures.boardHeight * view.picScale) / 2.0);
    }
    view.left = wholePart((measures.scaleWidth - measures.boardWidth * view.picScale) / 2.0);
    view.width = document::roundToInt32(measures.boardWidth * view.picScale);
    view.height = document::roundToInt32(measures.boardHeight * view.picScale);
    return view;
}

} // namespace zeltrona::animation
