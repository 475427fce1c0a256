#include "render/board_art.h"
#include "tests/output/short_files.h"
#include "tests/zpf/command_fixture.h"
#include "tools/zpf/play_desk.h"

#include <QDir>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class RenderCommand : public CommandTest {
protected:
    QStringList pictures() const { return QDir(path("out")).entryList(QDir::Files, QDir::Name); }
    ProgramRun render(const QStringList& words) const {
        return ProgramRun(QStringList("render") + words + QStringList{"-o", path("out")});
    }
};

TEST_F(RenderCommand, DrawsEveryFrameOfEachPlay) {
    const ProgramRun run = render({writePlay("horns.zpf"), writePlay("flex.v2.zpf")});
    EXPECT_EQ(run.code, ExitCode::Done) << run.err;
    EXPECT_THAT(run.err, IsEmpty());
    EXPECT_EQ(pictures(), QStringList({"flex.v2-1.png", "flex.v2-2.png", "horns-1.png", "horns-2.png"}));
}

TEST_F(RenderCommand, PictureIsTheBoardOfItsFrame) {
    const QString play = writePlay("horns.zpf");
    render({play});
    const render::BoardArt art = render::loadBoardArt();
    PlayDesk desk(play.toStdString(), art);
    output::FrameWalker walker(desk.walk(), desk.frames());
    const QImage first = walker.upTo(1).copy();
    EXPECT_EQ(first.size(), QSize(363, 332));
    EXPECT_EQ(QImage(path("out/horns-1.png")).convertToFormat(QImage::Format_RGB32), first);
    const QImage second = QImage(path("out/horns-2.png")).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(second, walker.upTo(2));
    EXPECT_NE(second, first);
    EXPECT_EQ(first.pixel(100 + 6, 200 + 8), qRgb(255, 0, 0)) << "the disc of the player";
}

TEST_F(RenderCommand, WholeCourtHasItsSizeWithTheTextureToo) {
    QByteArray text = QByteArray(kConfig) + kFrames;
    text.replace("court=1", "court=3\r\ncourtTexture=1");
    render({write("press.zpf", text)});
    EXPECT_EQ(QImage(path("out/press-1.png")).size(), QSize(532, 295));
}

TEST_F(RenderCommand, FrameWithoutPlayersShowsThoseOfTheFrameBefore) {
    const QByteArray text =
        QByteArray(kConfig) + "[Frame1]\r\nframe=1\r\noff0=100,200\r\n[Frame2]\r\nframe=2\r\n";
    render({write("still.zpf", text)});
    EXPECT_EQ(QImage(path("out/still-1.png")), QImage(path("out/still-2.png")));
}

TEST_F(RenderCommand, WritesBitmapsOnRequest) {
    EXPECT_EQ(render({writePlay("horns.zpf"), "--format", "bmp"}).code, ExitCode::Done);
    EXPECT_EQ(pictures(), QStringList({"horns-1.bmp", "horns-2.bmp"}));
    EXPECT_EQ(QImage(path("out/horns-1.bmp"), "BMP").size(), QSize(363, 332));
}

TEST_F(RenderCommand, ScaleRepeatsEachPixel) {
    const QString play = writePlay("horns.zpf");
    render({play, "-s", "3"});
    const render::BoardArt art = render::loadBoardArt();
    PlayDesk desk(play.toStdString(), art);
    const QImage board = output::FrameWalker(desk.walk(), desk.frames()).upTo(1);
    const QImage scaled(path("out/horns-1.png"));
    ASSERT_EQ(scaled.size(), board.size() * 3);
    for (int y = 0; y < scaled.height(); y += 7) {
        for (int x = 0; x < scaled.width(); ++x) {
            ASSERT_EQ(scaled.pixel(x, y) | 0xFF000000U, board.pixel(x / 3, y / 3));
        }
    }
}

TEST_F(RenderCommand, DrawsTheFramesAskedFor) {
    const QString play = writePlay("horns.zpf");
    EXPECT_EQ(render({play, "--frames", "2-"}).code, ExitCode::Done);
    EXPECT_EQ(pictures(), QStringList("horns-2.png"));
    const ProgramRun run = render({play, "--frames", "7"});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("has only 2 frames"));
}

TEST_F(RenderCommand, FrameBehindOthersKeepsTheirPlayers) {
    const QByteArray text =
        QByteArray(kConfig) + "[Frame1]\r\nframe=1\r\noff0=100,200\r\n[Frame2]\r\nframe=2\r\n";
    const QString play = write("still.zpf", text);
    render({play});
    const QImage whole(path("out/still-2.png"));
    render({play, "--frames", "2"});
    EXPECT_EQ(QImage(path("out/still-2.png")), whole);
}

TEST_F(RenderCommand, WithoutAFolderPicturesGoWhereTheProgramStands) {
    const QString play = writePlay("horns.zpf");
    const QString stood = QDir::currentPath();
    QDir::setCurrent(path("."));
    EXPECT_EQ(ProgramRun({"render", play}).code, ExitCode::Done);
    QDir::setCurrent(stood);
    EXPECT_TRUE(QFile::exists(path("horns-1.png")));
}

TEST_F(RenderCommand, FailedPlaysAreToldAndTheOthersGoOn) {
    const QString good = writePlay("good.zpf");
    const QString empty = write("empty.zpf", {});
    QDir().mkpath(path("folder.zpf"));
    const ProgramRun run = render({path("missing.zpf"), path("folder.zpf"), empty, good});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("missing.zpf: No such file"));
    EXPECT_THAT(run.err, HasSubstr("folder.zpf: Is a directory"));
    EXPECT_THAT(run.err, HasSubstr("empty.zpf: holds no frame"));
    EXPECT_EQ(pictures(), QStringList({"good-1.png", "good-2.png"}));
}

TEST_F(RenderCommand, BinaryFileHoldsNoFrame) {
    QByteArray bytes;
    for (int i = 0; i < 5000; ++i) {
        bytes.append(static_cast<char>(i * 31 % 256));
    }
    EXPECT_THAT(render({write("noise.zpf", bytes)}).err, HasSubstr("holds no frame"));
}

TEST_F(RenderCommand, SecondPlayOfANameIsRefused) {
    const QString play = writePlay("horns.zpf");
    const ProgramRun run = render({play, play});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("another play of this name"));
    EXPECT_EQ(pictures(), QStringList({"horns-1.png", "horns-2.png"}));
}

TEST_F(RenderCommand, FolderThatCannotBeMadeIsTold) {
    write("out", "a file in the way");
    const ProgramRun run = render({writePlay("horns.zpf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("cannot make the folder"));
    EXPECT_THAT(run.err, HasSubstr("out: Not a directory"));
}

TEST_F(RenderCommand, PictureThatCannotBeWrittenIsTold) {
    QDir().mkpath(path("out/horns-1.png"));
    const ProgramRun run = render({writePlay("horns.zpf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("horns-1.png"));
}

TEST_F(RenderCommand, DiskThatTakesNoMoreIsTold) {
    for (const char* format : {"png", "bmp"}) {
        const QString play = writePlay("horns.zpf");
        const tests::ShortFiles full(500);
        const ProgramRun run = render({play, "-f", format});
        EXPECT_EQ(run.code, ExitCode::Failed);
        EXPECT_THAT(run.err, HasSubstr(std::string("horns-1.") + format + ": File too large"));
        EXPECT_THAT(pictures(), IsEmpty());
    }
}

TEST_F(RenderCommand, PlayIsNeverWrittenOver) {
    QDir().mkpath(path("out"));
    const QString other = writePlay("out/horns-2.png");
    const QByteArray before = read("out/horns-2.png");
    const ProgramRun run = render({writePlay("horns.zpf"), other});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("horns-2.png: would be written over a play"));
    EXPECT_EQ(read("out/horns-2.png"), before);
}

TEST_F(RenderCommand, OneFrameIsOne) {
    const QString play = write("one.zpf", QByteArray(kConfig) + "[Frame1]\r\nframe=1\r\noff0=1,2\r\n");
    EXPECT_THAT(render({play, "-n", "2"}).err, HasSubstr("has only 1 frame\n"));
}

TEST_F(RenderCommand, SenselessWishesDrawNothing) {
    const QString play = writePlay("horns.zpf");
    for (const QStringList& words :
         {QStringList{}, QStringList{play, "-f", "gif"}, QStringList{play, "-s", "0"},
          QStringList{play, "-s", "9"}, QStringList{play, "-s", "two"}, QStringList{play, "--dance"},
          QStringList{play, "-n", "2-1"}}) {
        const ProgramRun run = render(words);
        EXPECT_EQ(run.code, ExitCode::Usage) << words.join(' ').toStdString();
        EXPECT_THAT(run.err, HasSubstr("zpf render --help"));
    }
    EXPECT_THAT(pictures(), IsEmpty());
}

TEST_F(RenderCommand, HelpIsNoFault) {
    const ProgramRun run({"render", "--help"});
    EXPECT_EQ(run.code, ExitCode::Done);
    EXPECT_THAT(run.out, HasSubstr("Usage: zpf render"));
}

} // namespace
} // namespace zeltrona::zpf
