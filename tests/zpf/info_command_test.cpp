#include "tests/zpf/command_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class InfoCommand : public CommandTest {
protected:
    QString writeRich() const {
        return write("rich.zpf", "[Config]\r\ntxtOff0=4\r\ntxtDef0=\x8A\r\ncourt=6\r\nbodyType=1\r\n"
                                 "font=Times,238,\r\ntxtTitle=Press\r\ntxtHead=One\xAETwo\r\nNotes2=Go\r\n"
                                 "[Frame1]\r\nframe=1\r\noff0=1,2\r\ndef0=1,2\r\n"
                                 "[Frame2]\r\nframe=2\r\noff0=1,2\r\nBall0=1,2,\r\nBall1=3,4,\r\n"
                                 "off0curve=1,2,3,4,\r\nLine0=4,0,0,1,2,3,4,\r\nShadow0=1,2,3,4,5,\r\n"
                                 "Triangle0=1,2,3,\r\ntxtPic0=A,1,2,Arial,8,0,0,0,0,0,\r\n");
    }
};

TEST_F(InfoCommand, TellsSetUpAndEachFrame) {
    const QString play = writeRich();
    const ProgramRun run({"info", play});
    EXPECT_EQ(run.code, ExitCode::Done);
    EXPECT_EQ(
        run.out,
        play.toStdString()
            + "\n  title     Press\n  heading   One / Two\n"
              "  court     6, whole court, former international markings\n  players   bodies\n"
              "  offence   4\n  defence   \xC5\xA0\n"
              "  font      Times, character set 238 (code page 1250)\n  frames    2\n"
              "  frame 1   1 offence, 1 defence\n"
              "  frame 2   1 offence, 1 defence, 2 balls, 1 path, 1 line, 1 triangle, 1 shadow, 1 text\n"
              "            Go\n");
}

TEST_F(InfoCommand, JsonHoldsTheSame) {
    const ProgramRun run({"info", "-j", writeRich()});
    const QJsonArray plays = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).array();
    ASSERT_EQ(plays.size(), 1);
    EXPECT_EQ(plays[0]["title"].toString(), "Press");
    EXPECT_EQ(plays[0]["heading"][1].toString(), "Two");
    EXPECT_EQ(plays[0]["court"].toInt(), 6);
    EXPECT_TRUE(plays[0]["bodies"].toBool());
    EXPECT_EQ(plays[0]["defence"][0].toString(), QString::fromUtf8("\xC5\xA0"));
    EXPECT_EQ(plays[0]["frames"][1]["balls"].toInt(), 2);
    EXPECT_EQ(plays[0]["frames"][1]["note"].toString(), "Go");
}

TEST_F(InfoCommand, FileWithoutAFrameIsNoPlay) {
    const ProgramRun run({"info", write("letter.txt", "Dear coach\r\n"), writePlay("horns.zpf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.err, HasSubstr("letter.txt: holds no frame"));
    EXPECT_THAT(run.out, HasSubstr("horns.zpf"));
}

TEST_F(InfoCommand, TextsOfThePlayCannotMoveTheCursor) {
    const QString play =
        write("x.zpf", QByteArray(kConfig) + "txttitle=\x1B[2Jred\x9B\r\n[\x1B[2J]\r\n" + kFrames);
    EXPECT_THAT(ProgramRun({"info", play}).out, HasSubstr("title     \\x1B[2Jred"));
    for (const char* command : {"info", "check"}) {
        EXPECT_THAT(ProgramRun({command, play}).out, Not(HasSubstr("\x1B"))) << command;
    }
    EXPECT_THAT(ProgramRun({"info", path("no\x1B.zpf")}).err, HasSubstr("no\\x1B.zpf: No such file"));
}

} // namespace
} // namespace zeltrona::zpf
