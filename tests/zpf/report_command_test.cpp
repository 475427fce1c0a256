#include "tests/zpf/command_fixture.h"

#include <QDir>
#include <QImage>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;

class ReportCommand : public CommandTest {
protected:
    QStringList filesIn(const QString& name) const {
        return QDir(path(name)).entryList(QDir::Files, QDir::Name);
    }
};

TEST_F(ReportCommand, EachPlayGetsAFolderWithItsPage) {
    const ProgramRun run({"report", writePlay("horns.zpf"), writePlay("flex.zpf"), "-o", path("site")});
    EXPECT_EQ(run.code, ExitCode::Done) << run.err;
    for (const char* folder : {"site/horns", "site/flex"}) {
        EXPECT_EQ(filesIn(folder), QStringList({"Zeltronalogo.bmp", "img1.bmp", "img2.bmp", "index.html"}));
    }
    EXPECT_TRUE(read("site/horns/index.html").contains("<img src=\"img2.bmp\""));
    EXPECT_EQ(QImage(path("site/horns/img1.bmp")).size(), QSize(363, 332));
    EXPECT_EQ(QImage(path("site/horns/Zeltronalogo.bmp")).size(), QSize(173, 53));
}

TEST_F(ReportCommand, OnePlayMayNameItsPage) {
    EXPECT_EQ(ProgramRun({"report", writePlay("horns.zpf"), "-o", path("web/set.html")}).code,
              ExitCode::Done);
    EXPECT_EQ(filesIn("web"), QStringList({"Zeltronalogo.bmp", "img1.bmp", "img2.bmp", "set.html"}));
}

TEST_F(ReportCommand, PageNamedWithoutAFolderLiesWhereTheProgramStands) {
    const QString play = writePlay("horns.zpf");
    const QString stood = QDir::currentPath();
    QDir::setCurrent(path("."));
    EXPECT_EQ(ProgramRun({"report", play, "-o", "set.html"}).code, ExitCode::Done);
    QDir::setCurrent(stood);
    EXPECT_TRUE(filesIn(".").contains("img2.bmp"));
}

TEST_F(ReportCommand, SeveralPlaysDoNotFitIntoOnePage) {
    const ProgramRun run({"report", writePlay("a.zpf"), writePlay("b.zpf"), "-o", path("set.html")});
    EXPECT_EQ(run.code, ExitCode::Usage);
    EXPECT_THAT(run.err, HasSubstr("several plays"));
    EXPECT_FALSE(QFile::exists(path("set.html")));
}

TEST_F(ReportCommand, ReportThatCannotBeWrittenIsTold) {
    QDir().mkpath(path("site/horns/img2.bmp"));
    const ProgramRun run({"report", writePlay("horns.zpf"), "-o", path("site")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("site/horns/index.html"));
}

TEST_F(ReportCommand, PlayIsNeverWrittenOver) {
    const QString play = writePlay("horns.html");
    const ProgramRun run({"report", play, "-o", play});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("would be written over a play"));
    EXPECT_EQ(read("horns.html"), QByteArray(kConfig) + kFrames);
    EXPECT_EQ(filesIn("."), QStringList("horns.html"));
}

TEST_F(ReportCommand, FileWithoutAFrameGetsNoPage) {
    const ProgramRun run({"report", write("letter.txt", "Dear coach\r\n"), "-o", path("site")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_FALSE(QFile::exists(path("site")));
}

} // namespace
} // namespace zeltrona::zpf
