#include "render/court_band.h"

#include <array>
#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

TEST(CourtBand, EachCourtHasItsPlaceInItsSheet) {
    const std::array<CourtBand, 9> bands{{{0, 360, 330},
                                          {330, 360, 330},
                                          {0, 530, 290},
                                          {660, 360, 330},
                                          {990, 360, 330},
                                          {290, 530, 290},
                                          {1320, 360, 330},
                                          {1650, 360, 330},
                                          {580, 530, 290}}};
    for (int court = 1; court <= 9; ++court) {
        EXPECT_EQ(courtBandOf(static_cast<std::int16_t>(court)), bands[static_cast<std::size_t>(court - 1)])
            << court;
    }
}

TEST(CourtBand, OtherNumbersHaveNone) {
    for (int court = -32768; court <= 32767; ++court) {
        if (court < 1 || court > 9) {
            ASSERT_FALSE(courtBandOf(static_cast<std::int16_t>(court))) << court;
        }
    }
}

} // namespace
} // namespace zeltrona::render
