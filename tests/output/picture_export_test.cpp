#include "output/board_picture.h"
#include "output/picture_export.h"
#include "tests/output/output_fixture.h"

#include <QFile>

#include <filesystem>

namespace zeltrona::output {
namespace {

constexpr const char* kTitle = "Select name of pictures and export folder.";

class PictureExport : public tests::OutputTest {
protected:
    int exportAs(const char* name) {
        answers.expectFile(QLatin1String(kTitle), path(name));
        return exportPictures(walk, nullptr, dialog);
    }
    QImage saved(const char* name) { return QImage(path(name)).convertToFormat(QImage::Format_RGB32); }
};

int littleEndian(const std::string& bytes, std::size_t at, int count) {
    int value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value * 256 + static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    }
    return value;
}

TEST_F(PictureExport, WritesOnePictureAFrameUnderTheBaseName) {
    begin(3);
    EXPECT_EQ(exportAs("horns.bmp"), 3);
    EXPECT_EQ(saved("horns1.bmp"), boardOf(1));
    EXPECT_EQ(saved("horns2.bmp"), boardOf(2));
    EXPECT_EQ(saved("horns3.bmp"), boardOf(3));
    EXPECT_NE(boardOf(1), boardOf(2));
    EXPECT_EQ(play.folder.othersThan(), 3U) << "and nothing else";
}

TEST_F(PictureExport, PictureIsA24BitBitmapWithTheBottomRowFirst) {
    begin(1);
    exportAs("a.bmp");
    const std::string bytes = play.folder.get("a1.bmp");
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(littleEndian(bytes, 18, 4), 363);
    EXPECT_EQ(littleEndian(bytes, 22, 4), 332) << "a positive height says bottom row first";
    EXPECT_EQ(littleEndian(bytes, 28, 2), 24);
    EXPECT_EQ(littleEndian(bytes, 30, 4), 0) << "not packed";
    const std::size_t row = (363 * 3 + 3) / 4 * 4;
    EXPECT_EQ(bytes.size(), static_cast<std::size_t>(littleEndian(bytes, 10, 4)) + row * 332);
    const QRgb corner = boardOf(1).pixel(0, 331);
    EXPECT_EQ(static_cast<unsigned char>(bytes[static_cast<std::size_t>(littleEndian(bytes, 10, 4))]),
              qBlue(corner));
}

TEST_F(PictureExport, ExistingFilesAreOverwrittenWithoutAQuestion) {
    begin(1);
    play.folder.put("old", "a1.bmp");
    EXPECT_EQ(exportAs("a.bmp"), 1);
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(saved("a1.bmp"), boardOf(1));
}

TEST_F(PictureExport, PicturesOfAReportInTheSameFolderStay) {
    begin(1);
    play.folder.put("report", "img1.bmp");
    exportAs("a.bmp");
    EXPECT_EQ(play.folder.get("img1.bmp"), "report");
}

TEST_F(PictureExport, BaseNameImgKeepsItsFiles) {
    begin(2);
    EXPECT_EQ(exportAs("img.bmp"), 2);
    EXPECT_EQ(saved("img2.bmp"), boardOf(2));
}

TEST_F(PictureExport, BaseNameEndsAtItsLastPoint) {
    begin(1);
    exportAs("a.b.bmp");
    EXPECT_TRUE(QFile::exists(path("a.b1.bmp")));
}

TEST_F(PictureExport, CancelledDialogWritesNothing) {
    begin(1);
    answers.expectFileCancelled(QLatin1String(kTitle));
    EXPECT_EQ(exportPictures(walk, nullptr, dialog), 0);
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

TEST_F(PictureExport, NameWithoutAPointWritesNothing) {
    begin(1);
    EXPECT_EQ(exportAs("horns"), 0);
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

TEST_F(PictureExport, FailureEndsTheExportQuietlyAndLeavesWhatIsDone) {
    begin(3);
    std::filesystem::create_directory(play.folder.path("a2.bmp"));
    EXPECT_EQ(exportAs("a.bmp"), 1);
    EXPECT_EQ(saved("a1.bmp"), boardOf(1));
    EXPECT_FALSE(QFile::exists(path("a3.bmp")));
    EXPECT_EQ(play.folder.othersThan(), 2U) << "no half picture stays";
}

TEST_F(PictureExport, TellsHowFarItIs) {
    begin(2);
    std::vector<std::pair<int, int>> told;
    walk.progress = [&told](int frame, int frames) { told.emplace_back(frame, frames); };
    exportAs("a.bmp");
    EXPECT_EQ(told, (std::vector<std::pair<int, int>>{{1, 2}, {2, 2}}));
}

TEST_F(PictureExport, FrameImageIsNamedByItsNumber) {
    begin(2);
    EXPECT_EQ(exportFrameImage(walk, 2, path("")), QStringLiteral("img2.bmp"));
    EXPECT_EQ(session.currFrame, 2);
    EXPECT_EQ(saved("img2.bmp"), boardOf(2));
}

} // namespace
} // namespace zeltrona::output
