#include "tools/zpf/progress_line.h"

#include <gtest/gtest.h>
#include <sstream>

namespace zeltrona::zpf {
namespace {

using std::chrono::milliseconds;

std::string shownWith(bool terminal, milliseconds patience) {
    std::ostringstream out;
    std::ostringstream err;
    {
        ProgressLine line({out, err, terminal}, patience);
        line.show("horns.zpf", 1, 2);
        line.show("horns.zpf", 2, 2);
    }
    EXPECT_EQ(out.str(), "");
    return err.str();
}

TEST(ProgressLine, IsWrittenOverAndGoneAtTheEnd) {
    EXPECT_EQ(shownWith(true, milliseconds(-1)),
              "\r\x1B[Khorns.zpf: frame 1 of 2\r\x1B[Khorns.zpf: frame 2 of 2\r\x1B[K");
}

TEST(ProgressLine, ShortWorkShowsNothing) {
    EXPECT_EQ(shownWith(true, milliseconds(60000)), "");
}

TEST(ProgressLine, AFileGetsNone) {
    EXPECT_EQ(shownWith(false, milliseconds(-1)), "");
}

} // namespace
} // namespace zeltrona::zpf
