#include "output/web_report.h"
#include "tests/output/output_fixture.h"

#include <filesystem>

namespace zeltrona::output {
namespace {

constexpr const char* kTitle = "Select name of web page";

class WebReport : public tests::OutputTest {
protected:
    WebReport() : logo(173, 53, QImage::Format_RGB32) { logo.fill(Qt::red); }

    std::string reportOf() {
        EXPECT_TRUE(writeWebReport(walk, path("play.html"), logo));
        return play.folder.get("play.html");
    }
    /// The part between the meta lines, whose words carry no behaviour, and the end.
    static std::string bodyOf(const std::string& page) { return page.substr(page.find("</head>")); }

    QImage logo;
};

TEST_F(WebReport, IsTheseBytes) {
    begin(1, 1, "font=Arial,238,\ntxtTitle=Horns \xE8\ntxtHead=One\xAETwo\nNotes1=Cut\n");
    const std::string page = reportOf();
    EXPECT_EQ(page.substr(0, page.find("<meta name=\"keywords\"")),
              tests::crlf("<html>\n\n<head>\n<title>zelTrona report - www.zeltrona.example</title>\n"
                          "<meta http-equiv=Content-Type content=\"text/html; charset=Windows-1250\">\n"
                          "<meta name=\"GENERATOR\" content=\"zq 9.0\">\n"));
    EXPECT_EQ(
        bodyOf(page),
        tests::crlf("</head>\n<body>\n<img src=\"Zeltronalogo.bmp\" alt=\" -Zeltrona Logo- \">\n"
                    "<H2 ALIGN=CENTER>Horns \xE8</H2>\n<BR>\n<H4 ALIGN=LEFT>One<BR>Two</H4>\n"
                    "<table border=\"0\" width=\"100%\" cellspacing=\"0\" align=\"left\" cellpadding=\"0\">\n"
                    "<tr height=\"30\"> <td> </td><td> </td> </tr>\n"
                    "<tr>\n     <td>\n<img src=\"img1.bmp\" alt=\" -Zeltrona sequence- \">\n     </td>\n"
                    "     <td>\n     </td>\n</tr>\n<tr>\n     <td>\nCut\n     </td>\n     <td>\n"
                    "<tr height=\"15\"><td> </td><td> </td> </tr>\n     </td>\n</tr>\n"
                    "</table>\n</body>\n</html>\n"));
}

TEST_F(WebReport, WritesLogoAndOnePictureAFrameBeside) {
    begin(2);
    reportOf();
    EXPECT_EQ(QImage(path("Zeltronalogo.bmp")).convertToFormat(QImage::Format_RGB32), logo);
    EXPECT_EQ(QImage(path("img1.bmp")).convertToFormat(QImage::Format_RGB32), boardOf(1));
    EXPECT_EQ(QImage(path("img2.bmp")).convertToFormat(QImage::Format_RGB32), boardOf(2));
    EXPECT_EQ(play.folder.othersThan(), 4U);
}

TEST_F(WebReport, TextsStayTheBytesOfTheirCharacterSet) {
    begin(1, 1, "font=Arial,204,\ntxtTitle=\xC8\xE3\xF0\xE0 <b>\n");
    const std::string page = reportOf();
    EXPECT_NE(page.find("charset=Windows-1251\""), std::string::npos);
    EXPECT_NE(page.find("<H2 ALIGN=CENTER>\xC8\xE3\xF0\xE0 <b></H2>"), std::string::npos);
}

TEST_F(WebReport, LongNoteIsBrokenToTheWidthOfTheBoard) {
    std::string note;
    for (int i = 0; i < 40; ++i) {
        note += "\xE8"
                "etiri ";
    }
    begin(1, 1, "font=Arial,238,\nNotes1=" + note + "\n");
    const std::string page = reportOf();
    EXPECT_NE(page.find("\xE8"
                        "etiri<br>\r\n\xE8"
                        "etiri"),
              std::string::npos);
    EXPECT_NE(page.find("\xE8"
                        "etiri\r\n     </td>"),
              std::string::npos)
        << "the last line has no break";
}

TEST_F(WebReport, CancelledDialogWritesNothing) {
    begin(1);
    answers.expectFileCancelled(QLatin1String(kTitle));
    exportWebReport(walk, nullptr, dialog, logo);
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

TEST_F(WebReport, NoAtTheOverwriteQuestionAsksForANameAgain) {
    begin(1);
    play.folder.put("old", "a.html");
    for (int i = 0; i < 2; ++i) {
        answers.expectFile(QLatin1String(kTitle), path("a.html"));
        answers.expectMessage(QStringLiteral("File exist.Overwrite ?"), QStringLiteral("No"));
    }
    answers.expectFileCancelled(QLatin1String(kTitle));
    exportWebReport(walk, nullptr, dialog, logo);
    EXPECT_EQ(play.folder.get("a.html"), "old");
    EXPECT_EQ(answers.answered(), 5);
}

TEST_F(WebReport, YesAtTheOverwriteQuestionReplacesThePage) {
    begin(1);
    play.folder.put("old", "a.html");
    answers.expectFile(QLatin1String(kTitle), path("a.html"));
    answers.expectMessage(QStringLiteral("File exist.Overwrite ?"), QStringLiteral("Yes"));
    exportWebReport(walk, nullptr, dialog, logo);
    EXPECT_EQ(play.folder.get("a.html").substr(0, 6), "<html>");
}

TEST_F(WebReport, PictureThatCannotBeWrittenEndsTheReportQuietly) {
    begin(2);
    std::filesystem::create_directory(play.folder.path("img1.bmp"));
    EXPECT_FALSE(writeWebReport(walk, path("play.html"), logo));
    EXPECT_EQ(play.folder.get("play.html").find("</html>"), std::string::npos);
}

TEST_F(WebReport, PageThatCannotBeWrittenIsNoReport) {
    begin(1);
    EXPECT_FALSE(writeWebReport(walk, path("missing/play.html"), logo));
}

} // namespace
} // namespace zeltrona::output
