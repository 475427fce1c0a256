#include "output/report_lines.h"

#include <gtest/gtest.h>

namespace zeltrona::output {
namespace {

Report reportOf(std::int16_t court, std::int16_t frames) {
    Report report;
    report.court = court;
    report.frames = frames;
    report.wrapNote = [](const std::string& text) { return std::vector<std::string>{text}; };
    return report;
}

/// The steps as text: a line as it is, other steps in braces.
std::string textOf(const std::vector<ReportStep>& steps) {
    std::string text;
    for (const ReportStep& step : steps) {
        if (const auto* line = std::get_if<ReportLine>(&step)) {
            text += line->text + "\n";
        } else if (const auto* frame = std::get_if<SaveFrame>(&step)) {
            text += "{frame " + std::to_string(frame->frame) + "}\n";
        } else {
            text += "{logo}\n";
        }
    }
    return text;
}

std::string bodyOf(const Report& report) {
    const std::string text = textOf(reportSteps(report));
    return text.substr(text.find("<body>"));
}

const char* const kTable =
    "<table border=\"0\" width=\"100%\" cellspacing=\"0\" align=\"left\" cellpadding=\"0\">\n"
    "<tr height=\"30\"> <td> </td><td> </td> </tr>\n";

TEST(ReportLines, HeadStandsAsAgreed) {
    const std::string text = textOf(reportSteps(reportOf(1, 0)));
    EXPECT_EQ(text.substr(0, text.find("<meta name=\"keywords\"")),
              "<html>\n\n<head>\n<title>zelTrona report - www.zeltrona.example</title>\n"
              "<meta http-equiv=Content-Type content=\"text/html; charset=Windows-1250\">\n"
              "<meta name=\"GENERATOR\" content=\"zq 9.0\">\n");
    EXPECT_NE(text.find("<meta name=\"description\""), std::string::npos);
    EXPECT_NE(text.find("</head>\n<body>\n"), std::string::npos);
}

TEST(ReportLines, OneFrameInTwoColumnsLeavesTheSecondCellsEmpty) {
    Report report = reportOf(1, 1);
    report.notes = {"Cut"};
    EXPECT_EQ(bodyOf(report),
              std::string("<body>\n{logo}\n<img src=\"Zeltronalogo.bmp\" alt=\" -Zeltrona Logo- \">\n"
                          "<BR>\n")
                  + kTable
                  + "<tr>\n     <td>\n{frame 1}\n"
                    "<img src=\"img1.bmp\" alt=\" -Zeltrona sequence- \">\n"
                    "     </td>\n     <td>\n     </td>\n</tr>\n"
                    "<tr>\n     <td>\nCut\n     </td>\n     <td>\n"
                    "<tr height=\"15\"><td> </td><td> </td> </tr>\n     </td>\n</tr>\n"
                    "</table>\n</body>\n</html>\n");
}

TEST(ReportLines, WholeCourtsStandInOneColumn) {
    for (const std::int16_t court : {std::int16_t{3}, std::int16_t{6}, std::int16_t{9}}) {
        const std::string body = bodyOf(reportOf(court, 2));
        EXPECT_NE(
            body.find("{frame 1}\n<img src=\"img1.bmp\" alt=\" -Zeltrona sequence- \">\n     </td>\n</tr>\n"
                      "<tr>\n     <td>\n<tr height=\"15\"><td> </td><td> </td> </tr>\n     </td>\n</tr>\n"
                      "<tr>\n     <td>\n{frame 2}\n"),
            std::string::npos);
    }
}

TEST(ReportLines, OddNumberOfFramesEndsWithAnEmptyCell) {
    const std::string body = bodyOf(reportOf(1, 3));
    EXPECT_NE(
        body.find("img3.bmp\" alt=\" -Zeltrona sequence- \">\n     </td>\n     <td>\n     </td>\n</tr>\n"),
        std::string::npos);
}

TEST(ReportLines, TitleAndDescriptionStandOnlyWhereThereAreSome) {
    Report report = reportOf(1, 0);
    report.title = "Horns <1>";
    report.heading = "First\xAESecond\xAE";
    const std::string body = bodyOf(report);
    EXPECT_NE(body.find("<H2 ALIGN=CENTER>Horns <1></H2>\n<BR>\n"
                        "<H4 ALIGN=LEFT>First<BR>Second<BR></H4>\n"),
              std::string::npos);
    EXPECT_EQ(bodyOf(reportOf(1, 0)).find("<H"), std::string::npos);
}

TEST(ReportLines, WrappedNoteEndsAllLinesButTheLastWithABreak) {
    Report report = reportOf(1, 1);
    report.notes = {"note"};
    report.wrapNote = [](const std::string&) { return std::vector<std::string>{"a", "b", "c"}; };
    EXPECT_NE(bodyOf(report).find("     <td>\na<br>\nb<br>\nc\n     </td>\n"), std::string::npos);
}

TEST(ReportLines, EmptyNoteLeavesAnEmptyCell) {
    Report report = reportOf(1, 2);
    report.notes = {"", "second"};
    EXPECT_NE(bodyOf(report).find("<tr>\n     <td>\n     </td>\n     <td>\nsecond\n"), std::string::npos);
}

TEST(WebCharsetName, FollowsTheTable) {
    const std::pair<int, const char*> rows[] = {{128, "932"},  {129, "949"},  {134, "936"},  {136, "950"},
                                                {161, "1253"}, {162, "1254"}, {163, "1258"}, {177, "1255"},
                                                {178, "1256"}, {186, "1257"}, {204, "1251"}, {222, "874"},
                                                {238, "1250"}, {0, "1252"},   {77, "1252"}};
    for (const auto& [charset, page] : rows) {
        EXPECT_EQ(webCharsetName(static_cast<std::int16_t>(charset)), std::string("Windows-") + page);
    }
}

TEST(FrameImageName, HasNoPadding) {
    EXPECT_EQ(frameImageName(1), "img1.bmp");
    EXPECT_EQ(frameImageName(120), "img120.bmp");
}

} // namespace
} // namespace zeltrona::output
