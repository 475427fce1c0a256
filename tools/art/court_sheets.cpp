#include "tools/art/court_sheets.h"

#include "tools/art/court_drawing.h"
#include "tools/art/court_placing.h"
#include "tools/art/pixel_grid.h"

namespace zeltrona::art {

namespace {

/// The widths between the side lines of the small pictures, in pixels.
constexpr double kHalfPreviewWidth = 148.0;
constexpr double kWholePreviewWidth = 82.0;

constexpr int kPreviewWidth = 160;
constexpr int kHalfPreviewHeight = 146;
constexpr int kWholePreviewHeight = 293;

QImage drawWholePreview(const CourtFacts& facts) {
    const QImage shown =
        drawWholeCourt(planOfWidth(facts, kWholePreviewWidth, 1), {kPreviewWidth, kHalfPreviewHeight});
    return drawMask({kPreviewWidth, kWholePreviewHeight}, [&](Spot at) {
        return isBlack(shown, static_cast<int>(at.x), static_cast<int>(at.y) / 2);
    });
}

} // namespace

QImage drawSmallCourtSheet() {
    constexpr int kBand = 330;
    QImage sheet = whiteMask({361, 6 * kBand});
    int y = 0;
    for (const int court : {1, 4, 7}) {
        const CourtPlan plan = planOfCourt(court);
        for (const BasketSide side : {BasketSide::Top, BasketSide::Bottom}) {
            placePart(sheet, drawHalfCourt(plan, {360, kBand}, side), 0, y);
            y += kBand;
        }
    }
    return sheet;
}

QImage drawBigCourtSheet() {
    constexpr int kBand = 290;
    QImage sheet = whiteMask({530, 3 * kBand});
    int y = 0;
    for (const int court : {3, 6, 9}) {
        placePart(sheet, drawWholeCourt(planOfCourt(court), {530, kBand}), 0, y);
        y += kBand;
    }
    return sheet;
}

QImage drawPreviewStrip() {
    QImage strip = whiteMask({kPreviewWidth, 3 * (2 * kHalfPreviewHeight + kWholePreviewHeight)});
    int y = 0;
    for (const CourtFacts& facts : courtFacts()) {
        const CourtPlan half = planOfWidth(facts, kHalfPreviewWidth, 1);
        for (const BasketSide side : {BasketSide::Top, BasketSide::Bottom}) {
            placePart(strip, drawHalfCourt(half, {kPreviewWidth, kHalfPreviewHeight}, side), 0, y);
            y += kHalfPreviewHeight;
        }
        placePart(strip, drawWholePreview(facts), 0, y);
        y += kWholePreviewHeight;
    }
    return strip;
}

} // namespace zeltrona::art
