#include "tools/art/team_preview.h"

#include "tools/art/body_drawing.h"
#include "tools/art/parquet.h"
#include "tools/art/pixel_grid.h"

namespace zeltrona::art {

TeamPreview drawTeamPreview() {
    constexpr int kSize = 26;
    const BodyMasks masks = drawBody(Pose::Standing, 90.0, 0.74, kSize);
    TeamPreview preview;
    preview.base = drawParquet({kSize, kSize}, BoardRun::Down, 12);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (isBlack(masks.mask, x, y)) {
                preview.base.setPixel(x, y, qRgb(0, 0, 0));
            }
        }
    }
    preview.skinRegion = maskAsRgb(invertedMask(masks.skin));
    preview.skinMask = maskAsRgb(masks.skin);
    preview.suitRegion = maskAsRgb(invertedMask(masks.jersey));
    preview.suitMask = maskAsRgb(masks.jersey);
    return preview;
}

} // namespace zeltrona::art
