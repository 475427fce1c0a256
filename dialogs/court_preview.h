#pragma once

#include "document/records.h"

#include <QImage>

#include <cstdint>

namespace zeltrona::dialogs {

/// Size of the court preview, in pixels.
inline constexpr int kCourtPreviewWidth = 160;
inline constexpr int kCourtPreviewHeight = 146;

/// Place of a court in the strips of drawings.
struct StripPlace {
    int top = 0;
    int height = 0;
    friend bool operator==(const StripPlace&, const StripPlace&) = default;
};
StripPlace stripPlace(std::int16_t court);

/// What the court window has chosen.
struct CourtChoice {
    std::int16_t court = 1;
    document::Color color = 0xFFFFFF;
    bool texture = true;
    bool whiteLines = false;
};

/// The court's lines on its background. A whole court is twice as high in the strip and is brought down so
/// that no line is lost: of two rows the darker (of white lines the lighter) pixel stays.
QImage courtPreview(const CourtChoice& choice);

} // namespace zeltrona::dialogs
