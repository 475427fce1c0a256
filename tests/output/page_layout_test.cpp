#include "output/page_layout.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zeltrona::output {
namespace {

/// Every letter is half its size wide, a line as high as its size; the main window's letters are 6 wide.
class PlainMeasure : public PageMeasure {
public:
    double textWidth(std::string_view text, const PageFont& font) const override {
        return static_cast<double>(text.size()) * font.size / 2.0;
    }
    double textHeight(std::string_view, const PageFont& font) const override { return font.size; }
    double windowTextWidth(std::string_view text) const override {
        return static_cast<double>(text.size()) * 6.0;
    }
};

constexpr double kA4Width = 595;
constexpr double kA4Height = 842;
constexpr PrintMode kBig = PrintMode::BigPictures;
constexpr PrintMode kSmall = PrintMode::SmallPictures;

PrintJob jobOf(std::int16_t court, PrintMode mode, std::int16_t frames) {
    PrintJob job;
    job.width = kA4Width;
    job.height = kA4Height;
    job.court = court;
    job.mode = mode;
    job.frames = frames;
    return job;
}

std::vector<Page> pagesOf(const PrintJob& job) {
    return layOutPages(job, PlainMeasure());
}

template<class Op> std::vector<Op> opsOf(const Page& page) {
    std::vector<Op> found;
    for (const PageOp& op : page.ops) {
        if (const auto* one = std::get_if<Op>(&op)) {
            found.push_back(*one);
        }
    }
    return found;
}

std::vector<std::string> textsOf(const Page& page) {
    std::vector<std::string> found;
    for (const TextOp& op : opsOf<TextOp>(page)) {
        found.push_back(op.text);
    }
    return found;
}

TEST(PageGrid, FollowsLayoutAndCourtFamily) {
    EXPECT_EQ(pageGrid(kBig, 1), (PageGrid{2, 2, 4}));
    EXPECT_EQ(pageGrid(kBig, 3), (PageGrid{1, 2, 4}));
    EXPECT_EQ(pageGrid(kSmall, 8), (PageGrid{3, 3, 6}));
    EXPECT_EQ(pageGrid(kSmall, 9), (PageGrid{2, 3, 6}));
}

struct MetricsRow {
    double width, height;
    std::int16_t court;
    PrintMode mode;
    PageMetrics expected;
};

// A4 is 595 x 842: margin 35.7 -> 36, top 42.1, free width 595 - 108 = 487.
// Letter is 612 x 792: margin 36.72 -> 37, top 39.6, free width 612 - 111 = 501.
const MetricsRow kMetrics[] = {
    {595, 842, 1, kBig, {36, 42.1F, 244, 224}},   // 243.5 -> 244 (even), 244 * 0.916 = 223.504
    {595, 842, 3, kBig, {36, 42.1F, 487, 266}},   // 487 * 0.547 = 266.389
    {595, 842, 2, kSmall, {36, 42.1F, 122, 112}}, // 121.75, 122 * 0.916 = 111.752
    {595, 842, 6, kSmall, {36, 42.1F, 244, 133}}, // 243.5 -> 244, 244 * 0.547 = 133.468
    {612, 792, 4, kBig, {37, 39.6F, 250, 229}},   // 250.5 -> 250 (even), 250 * 0.916 = 229
    {612, 792, 9, kBig, {37, 39.6F, 501, 274}},   // 501 * 0.547 = 274.047
    {612, 792, 7, kSmall, {37, 39.6F, 125, 114}}, // 125.25, 125 * 0.916 = 114.5 -> 114 (even)
    {612, 792, 3, kSmall, {37, 39.6F, 250, 137}}, // 250.5 -> 250, 250 * 0.547 = 136.75
};

TEST(PageMetrics, AreWorkedOutFromThePaperAndRounded) {
    for (const MetricsRow& row : kMetrics) {
        const PageMetrics got = pageMetrics(row.width, row.height, row.mode, row.court);
        EXPECT_EQ(got.margin, row.expected.margin) << row.width << " court " << row.court;
        EXPECT_FLOAT_EQ(got.top, row.expected.top);
        EXPECT_EQ(got.picW, row.expected.picW) << row.width << " court " << row.court;
        EXPECT_EQ(got.picH, row.expected.picH) << row.width << " court " << row.court;
    }
}

TEST(PageCount, RoundsRowsAndPagesUp) {
    // Frames 1 to 13 for the four layouts.
    const int bigSmallCourt[] = {1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4};
    const int bigBigCourt[] = {1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7};
    const int smallSmallCourt[] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2};
    const int smallBigCourt[] = {1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 3};
    for (std::int16_t n = 1; n <= 13; ++n) {
        EXPECT_EQ(PageCtn(n, kBig, 1), bigSmallCourt[n - 1]) << n;
        EXPECT_EQ(PageCtn(n, kBig, 3), bigBigCourt[n - 1]) << n;
        EXPECT_EQ(PageCtn(n, kSmall, 1), smallSmallCourt[n - 1]) << n;
        EXPECT_EQ(PageCtn(n, kSmall, 3), smallBigCourt[n - 1]) << n;
    }
    EXPECT_EQ(PageCtn(0, kBig, 1), 0);
}

TEST(PageLayout, PlayOfOneFrameIsOnePageWithHeaderPictureAndFooterInEveryLayout) {
    for (const std::int16_t court : {std::int16_t{1}, std::int16_t{3}}) {
        for (const PrintMode mode : {kBig, kSmall}) {
            const std::vector<Page> pages = pagesOf(jobOf(court, mode, 1));
            ASSERT_EQ(pages.size(), 1U);
            EXPECT_EQ(opsOf<LogoOp>(pages[0]), (std::vector<LogoOp>{{36, 30, 130, 40}}));
            EXPECT_EQ(opsOf<PictureOp>(pages[0]).size(), 1U);
            EXPECT_EQ(textsOf(pages[0]), std::vector<std::string>{"Page 1 of 1"});
        }
    }
}

TEST(PageLayout, PicturesStandInRowsThatBeginAtTheFixedPlace) {
    const std::vector<Page> pages = pagesOf(jobOf(1, kBig, 5));
    ASSERT_EQ(pages.size(), 2U);
    // Second column: (244 + 36) * 1 + 36 = 316. Second row: 170 + 224 + 8 + 3 * 8 = 426.
    EXPECT_EQ(opsOf<PictureOp>(pages[0]), (std::vector<PictureOp>{{1, 36, 170, 244, 224},
                                                                  {2, 316, 170, 244, 224},
                                                                  {3, 36, 426, 244, 224},
                                                                  {4, 316, 426, 244, 224}}));
    EXPECT_EQ(opsOf<PictureOp>(pages[1]), (std::vector<PictureOp>{{5, 36, 170, 244, 224}}));
}

TEST(PageLayout, SmallPicturesLeaveFiveLinesForNotes) {
    const std::vector<Page> pages = pagesOf(jobOf(1, kSmall, 7));
    // Columns at 36, 194 and 352; rows 170 + 112 + 8 + 5 * 8 = 330 apart by 160.
    EXPECT_EQ(opsOf<PictureOp>(pages[0]), (std::vector<PictureOp>{{1, 36, 170, 122, 112},
                                                                  {2, 194, 170, 122, 112},
                                                                  {3, 352, 170, 122, 112},
                                                                  {4, 36, 330, 122, 112},
                                                                  {5, 194, 330, 122, 112},
                                                                  {6, 352, 330, 122, 112},
                                                                  {7, 36, 490, 122, 112}}));
}

TEST(PageLayout, RowPitchStaysWhateverTheNotesTake) {
    PrintJob job = jobOf(1, kBig, 3);
    job.notes = {"", std::string(400, 'x')};
    const auto pictures = opsOf<PictureOp>(pagesOf(job)[0]);
    EXPECT_EQ(pictures[2].y, 426);
}

TEST(PageLayout, NoteStandsUnderItsPictureWrappedToItsWidth) {
    PrintJob job = jobOf(1, kSmall, 2);
    job.notes = {"short", "one two three four five six seven eight"};
    const auto texts = opsOf<TextOp>(pagesOf(job)[0]);
    ASSERT_EQ(texts.size(), 4U);
    // Letters are 4 wide in size 8, so that less than 122 takes 30 of them. 170 + 112 + 8 = 290.
    const PageFont face{"Arial", 238, 8, false};
    EXPECT_EQ(texts[0], (TextOp{36, 290, "short", face}));
    EXPECT_EQ(texts[1], (TextOp{194, 290, "one two three four five six", face}));
    EXPECT_EQ(texts[2], (TextOp{194, 298, "seven eight", face}));
}

TEST(PageLayout, TitleIsCentredByTheWindowsWidthAndClearsTheLogo) {
    PrintJob job = jobOf(1, kBig, 1);
    job.title = "Horns";
    EXPECT_EQ(opsOf<TextOp>(pagesOf(job)[0])[0].x, (595 - 30) / 2.0);
    EXPECT_FLOAT_EQ(static_cast<float>(opsOf<TextOp>(pagesOf(job)[0])[0].y), 42.1F);
    EXPECT_EQ(opsOf<TextOp>(pagesOf(job)[0])[0].font, (PageFont{"Arial", 238, 14, true}));
    job.title = std::string(90, 'x');
    EXPECT_EQ(opsOf<TextOp>(pagesOf(job)[0])[0].x, 130);
}

TEST(PageLayout, HeadingFollowsTheTitleALineAndAQuarterApart) {
    PrintJob job = jobOf(1, kBig, 1);
    job.title = "T";
    job.heading = {"first", "second"};
    const auto texts = opsOf<TextOp>(pagesOf(job)[0]);
    const PageFont face{"Arial", 238, 12, false};
    EXPECT_EQ(texts[1].font, face);
    EXPECT_EQ(texts[1].x, 36);
    EXPECT_NEAR(texts[1].y, 42.1 + 14, 1e-4);
    EXPECT_EQ(texts[2].text, "second");
    EXPECT_NEAR(texts[2].y, 42.1 + 14 + 15, 1e-4);
}

TEST(PageLayout, HeadingWiderThanThePageIsWrapped) {
    PrintJob job = jobOf(1, kBig, 1);
    job.heading = {std::string(60, 'a') + ' ' + std::string(60, 'b')};
    const auto texts = opsOf<TextOp>(pagesOf(job)[0]);
    EXPECT_EQ(texts[0].text, std::string(60, 'a'));
    EXPECT_EQ(texts[1].text, std::string(60, 'b'));
    EXPECT_NEAR(texts[1].y - texts[0].y, 15, 1e-9);
}

TEST(PageLayout, LongHeadingRunsIntoTheFirstRow) {
    PrintJob job = jobOf(1, kBig, 1);
    job.heading = std::vector<std::string>(20, "line");
    const Page page = pagesOf(job)[0];
    EXPECT_GT(opsOf<TextOp>(page)[19].y, 170);
    EXPECT_EQ(opsOf<PictureOp>(page)[0].y, 170);
}

TEST(PageLayout, FooterStandsOnEveryPageCentredByTheWindowsWidth) {
    const std::vector<Page> pages = pagesOf(jobOf(3, kBig, 5));
    ASSERT_EQ(pages.size(), 3U);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const TextOp footer = opsOf<TextOp>(pages[i]).back();
        EXPECT_EQ(footer.text, "Page " + std::to_string(i + 1) + " of 3");
        EXPECT_EQ(footer.x, (595 - 11 * 6) / 2.0);
        EXPECT_EQ(footer.y, 842 - 16);
    }
}

TEST(PageLayout, OnlyTheFirstPageHasTheHeader) {
    PrintJob job = jobOf(1, kBig, 9);
    job.title = "Horns";
    const std::vector<Page> pages = pagesOf(job);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(opsOf<LogoOp>(pages[0]).size(), 1U);
    for (std::size_t i = 1; i < pages.size(); ++i) {
        EXPECT_TRUE(opsOf<LogoOp>(pages[i]).empty());
        EXPECT_EQ(textsOf(pages[i]).size(), 1U);
        EXPECT_EQ(opsOf<PictureOp>(pages[i])[0].y, 170);
    }
}

TEST(PageLayout, PlayWithoutFramesHasNoPages) {
    EXPECT_TRUE(pagesOf(jobOf(1, kBig, 0)).empty());
}

} // namespace
} // namespace zeltrona::output
