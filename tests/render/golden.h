#pragma once

#include <QImage>

#include <gtest/gtest.h>

namespace zeltrona::render {

/// Whether the picture equals tests/render/golden/NAME.png, pixel by pixel.
/// A mismatch leaves NAME_actual.png, NAME_expected.png and NAME_difference.png (red where they differ) in
/// the folder `golden` of the build. With ZELTRONA_REWRITE_GOLDEN set to 1 the picture is stored instead:
/// look at it then.
testing::AssertionResult looksLikeGolden(const QImage& actual, const char* name);

} // namespace zeltrona::render
