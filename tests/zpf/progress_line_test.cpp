#include "tools/zpf/progress_line.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

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

TEST(ProgressLine, LeavesAnEmptyLineToWhatIsToldNext) {
    std::ostringstream out;
    std::ostringstream err;
    ProgressLine line({out, err, true}, milliseconds(-1));
    line.clear();
    EXPECT_EQ(err.str(), "") << "nothing was shown yet";
    line.show("horns.zpf", 1, 2);
    line.clear();
    line.clear();
    EXPECT_EQ(err.str(), "\r\x1B[Khorns.zpf: frame 1 of 2\r\x1B[K");
}

TEST(ProgressLine, NameIsShortAndCannotMoveTheCursor) {
    std::ostringstream out;
    std::ostringstream err;
    ProgressLine line({out, err, true}, milliseconds(-1));
    line.show("/a/very/long/way/to/" + std::string(60, 'x') + "\xC5\xA1" + std::string(39, 'y'), 1, 2);
    line.show("a/b\x1B.zpf", 2, 2);
    EXPECT_EQ(err.str(),
              "\r\x1B[K..." + std::string(39, 'y') + ": frame 1 of 2\r\x1B[Kb\\x1B.zpf: frame 2 of 2");
}

TEST(ProgressLine, ShortWorkShowsNothing) {
    EXPECT_EQ(shownWith(true, milliseconds(60000)), "");
}

TEST(ProgressLine, AFileGetsNone) {
    EXPECT_EQ(shownWith(false, milliseconds(-1)), "");
}

} // namespace
} // namespace zeltrona::zpf
