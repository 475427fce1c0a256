#include "tests/art/pictures.h"

#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

struct Expected {
    const char* name;
    int width;
    int height;
    int depth; ///< bits a pixel as stored: 1, 24, or 32 with transparency
};

std::ostream& operator<<(std::ostream& out, const Expected& row) {
    return out << row.name;
}

class Sizes : public ::testing::TestWithParam<Expected> {};

int depthOf(const QImage& picture) {
    if (picture.hasAlphaChannel()) {
        return 32;
    }
    return picture.depth() == 1 ? 1 : 24;
}

} // namespace

TEST_P(Sizes, AreThoseThatDrawingReliesOn) {
    const Expected row = GetParam();
    const QImage picture = committed(QLatin1String(row.name) + QLatin1String(".png"));
    EXPECT_EQ(picture.size(), QSize(row.width, row.height));
    EXPECT_EQ(depthOf(picture), row.depth);
}

INSTANTIATE_TEST_SUITE_P(
    Board, Sizes,
    ::testing::Values(Expected{"picT", 361, 1980, 24}, Expected{"picTblack", 361, 1980, 1},
                      Expected{"picTbig", 530, 870, 24}, Expected{"picTbigBlack", 530, 870, 1},
                      Expected{"picTparket", 360, 329, 24}, Expected{"picTbigParket", 530, 290, 24},
                      Expected{"pKrugMask", 26, 26, 1}, Expected{"pBall", 26, 26, 24},
                      Expected{"bodies_skin", 50, 1200, 1}, Expected{"bodies_shirt", 50, 300, 1},
                      Expected{"bodies_mask", 50, 1200, 1}));

INSTANTIATE_TEST_SUITE_P(
    Dialogs, Sizes,
    ::testing::Values(Expected{"config_base", 26, 26, 24}, Expected{"config_skin_region", 26, 26, 24},
                      Expected{"config_skin_mask", 26, 26, 24}, Expected{"config_suit_region", 26, 26, 24},
                      Expected{"config_suit_mask", 26, 26, 24}, Expected{"court_strip_black", 160, 1755, 24},
                      Expected{"court_strip_white", 160, 1755, 24}, Expected{"court_texture", 160, 146, 24},
                      Expected{"body_pose_0", 50, 50, 32}, Expected{"body_pose_3", 50, 50, 32}));

INSTANTIATE_TEST_SUITE_P(
    Signs, Sizes,
    ::testing::Values(Expected{"tool_strip", 440, 20, 32}, Expected{"tool_strip_2x", 880, 40, 32},
                      Expected{"tool_strip_3x", 1320, 60, 32}, Expected{"tool_strip_light", 440, 20, 32},
                      Expected{"logo", 320, 120, 32}, Expected{"logo_export", 173, 53, 24},
                      Expected{"splash", 400, 200, 24}, Expected{"splash_2x", 800, 400, 24},
                      Expected{"zeltrona_16", 16, 16, 32}, Expected{"zeltrona_24", 24, 24, 32},
                      Expected{"zeltrona_32", 32, 32, 32}, Expected{"zeltrona_48", 48, 48, 32},
                      Expected{"zeltrona_64", 64, 64, 32}, Expected{"zeltrona_128", 128, 128, 32},
                      Expected{"zeltrona_256", 256, 256, 32}, Expected{"zeltrona_512", 512, 512, 32}));

} // namespace zeltrona::art
