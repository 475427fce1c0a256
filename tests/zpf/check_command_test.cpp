#include "tests/zpf/command_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace zeltrona::zpf {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class CheckCommand : public CommandTest {
protected:
    QString writeFaulty() const {
        return write("faulty.zpf", QByteArray(kConfig) + kFrames + "Ball1=1,2,\r\n");
    }
};

TEST_F(CheckCommand, CleanPlaySaysNothing) {
    const ProgramRun run({"check", writePlay("horns.zpf")});
    EXPECT_EQ(run.code, ExitCode::Done);
    EXPECT_THAT(run.out, IsEmpty());
    EXPECT_THAT(run.err, IsEmpty());
}

TEST_F(CheckCommand, FindingsAreLinesAndAStatus) {
    const QString play = writeFaulty();
    const ProgramRun run({"check", writePlay("horns.zpf"), play});
    EXPECT_EQ(run.code, ExitCode::Found);
    EXPECT_EQ(run.out,
              play.toStdString() + ":14: [Frame2] Ball1: Ball0 is missing, and the list ends there (hole)\n");
}

TEST_F(CheckCommand, QuietTellsByItsStatusAlone) {
    const ProgramRun run({"check", "--quiet", "--json", writeFaulty()});
    EXPECT_EQ(run.code, ExitCode::Found);
    EXPECT_THAT(run.out, IsEmpty());
}

TEST_F(CheckCommand, JsonIsAnArrayOfPlays) {
    const ProgramRun run({"check", "--json", writePlay("horns.zpf"), writeFaulty()});
    const QJsonArray plays = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).array();
    ASSERT_EQ(plays.size(), 2);
    EXPECT_EQ(plays[0]["findings"].toArray().size(), 0);
    EXPECT_EQ(plays[1]["frames"].toInt(), 2);
    EXPECT_EQ(plays[1]["findings"][0]["kind"].toString(), "hole");
    EXPECT_EQ(plays[1]["findings"][0]["line"].toInt(), 14);
}

TEST_F(CheckCommand, PlayThatCannotBeReadIsWorseThanAFinding) {
    const ProgramRun run({"check", writeFaulty(), path("missing.zpf")});
    EXPECT_EQ(run.code, ExitCode::Failed);
    EXPECT_THAT(run.out, HasSubstr("(hole)"));
    EXPECT_THAT(run.err, HasSubstr("missing.zpf: No such file"));
}

TEST_F(CheckCommand, FileThatIsNoPlayIsAFinding) {
    const ProgramRun run({"check", write("letter.txt", "Dear coach\r\n")});
    EXPECT_EQ(run.code, ExitCode::Found);
    EXPECT_THAT(run.out, HasSubstr("(no-frame)"));
}

TEST_F(CheckCommand, JsonWithoutAPlayIsAnEmptyArray) {
    const ProgramRun run({"check", "--json", path("missing.zpf")});
    EXPECT_EQ(run.out, "[]\n");
}

} // namespace
} // namespace zeltrona::zpf
