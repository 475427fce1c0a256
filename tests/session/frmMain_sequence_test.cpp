#include "document/play_file.h"
#include "session/file_names.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <unistd.h>

namespace zeltrona::session {
namespace {

using testing::click;
using testing::DialogAnswerer;
using testing::expectedBoard;
using testing::OpenPlay;

const QString kUp = QStringLiteral("cmdSeqNoUp");
const QString kDown = QStringLiteral("cmdSeqNoDown");

TEST(SequencePanel, ArrowsWalkTheFrames) {
    OpenPlay play;
    const std::string path = toPath(play.path());
    click(play.window(), kUp);
    EXPECT_EQ(play.txtSeq(), "2 of 3");
    EXPECT_EQ(play.board(), expectedBoard(path, 2));
    click(play.window(), kUp);
    EXPECT_EQ(play.txtSeq(), "3 of 3");
    EXPECT_EQ(play.board(), expectedBoard(path, 3));
    click(play.window(), kDown);
    EXPECT_EQ(play.txtSeq(), "2 of 3");
    EXPECT_EQ(play.board(), expectedBoard(path, 2));
    EXPECT_EQ(play.session().currFrame, 2);
}

TEST(SequencePanel, ArrowsAtTheEndsOnlyRefreshTheCounter) {
    OpenPlay play;
    click(play.window(), kDown);
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    EXPECT_EQ(play.session().currFrame, 1);
    click(play.window(), kUp);
    click(play.window(), kUp);
    click(play.window(), kUp);
    EXPECT_EQ(play.txtSeq(), "3 of 3");
    EXPECT_EQ(play.session().currFrame, 3);
}

TEST(SequencePanel, WalkingWritesNothing) {
    OpenPlay play;
    click(play.window(), kUp);
    click(play.window(), kDown);
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

TEST(SequencePanel, DownWithoutAFirstFrameTellsAndLeavesTheCounter) {
    OpenPlay play;
    click(play.window(), kUp);
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("frame=1"), 7, "framx=1");
    play.writeBytes(bytes);
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Error:Sequence-frame No.1 not exist!"));
    click(play.window(), kDown);
    EXPECT_EQ(play.session().currFrame, 1);
    EXPECT_EQ(play.txtSeq(), "2 of 3");
}

TEST(SequencePanel, FileChangedOutsideIsSeenAtTheNextStep) {
    OpenPlay play;
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("off0=140,120"), 12, "off0=11,12\r\n");
    play.writeBytes(bytes);
    click(play.window(), kUp);
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 2));
}

TEST(SequencePanel, GapEndsTheCount) {
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("[Frame2]\r\nframe=2"), 17, "[Frame4]\r\nframe=4");
    OpenPlay play(bytes);
    EXPECT_EQ(play.txtSeq(), "1 of 1");
    click(play.window(), kUp);
    EXPECT_EQ(play.txtSeq(), "1 of 1");
}

TEST(SequencePanel, SaveStoresTheShownFrame) {
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("off0=100,100"), 12, "off0=7.5,8.5");
    OpenPlay play(bytes);
    click(play.window(), QStringLiteral("seqSave"));
    const document::PlayFile file(toPath(play.path()));
    EXPECT_EQ(file.readWhole("Frame1", "off0"), "8,8");
    EXPECT_EQ(file.readWhole("Frame1", "angleoff0"), "0");
}

TEST(SequencePanel, ShowHideButtonTurnsTheCurvePointsOnAndOff) {
    OpenPlay play;
    const std::string path = toPath(play.path());
    click(play.window(), kUp);
    click(play.window(), QStringLiteral("cmdCurveShowHide"));
    EXPECT_EQ(play.session().showCurves, -1);
    EXPECT_EQ(play.board(), expectedBoard(path, 2, -1));
    EXPECT_NE(play.board(), expectedBoard(path, 2, 0));
    click(play.window(), QStringLiteral("cmdCurveShowHide"));
    EXPECT_EQ(play.session().showCurves, 0);
    EXPECT_EQ(play.board(), expectedBoard(path, 2, 0));
}

/// A folder in which no file can be replaced. For a user who may do everything, a missing one serves as well.
class LockedFolder {
public:
    explicit LockedFolder(const OpenPlay& play)
        : m_path(play.folder()), m_away(m_path + QStringLiteral("-away")) {
        EXPECT_TRUE(QDir().rename(m_path, m_away));
    }
    void unlock() { EXPECT_TRUE(QDir().rename(m_away, m_path)); }

private:
    QString m_path;
    QString m_away;
};

TEST(UnsavedSign, FailedSaveIsToldInLineAndTitleUntilOneSucceeds) {
    OpenPlay play;
    EXPECT_EQ(play.window().windowTitle(), QStringLiteral("Zeltrona - play.zpf"));
    LockedFolder locked(play);
    click(play.window(), QStringLiteral("seqSave"));
    EXPECT_NE(play.status().find("The play is not saved: "), std::string::npos) << play.status();
    EXPECT_NE(play.status().find(" Ready"), std::string::npos) << "the hint stays readable";
    EXPECT_TRUE(play.window().windowTitle().startsWith(QStringLiteral("Zeltrona - play.zpf - not saved: ")))
        << qPrintable(play.window().windowTitle());
    EXPECT_GT(play.window().windowTitle().size(), 35) << "the reason is missing";

    locked.unlock();
    click(play.window(), QStringLiteral("seqSave"));
    EXPECT_EQ(play.status(), " Ready");
    EXPECT_EQ(play.window().windowTitle(), QStringLiteral("Zeltrona - play.zpf"));
}

TEST(UnsavedSign, PlayThatCanBeSavedHasNone) {
    OpenPlay play;
    EXPECT_EQ(play.status(), " Ready");
}

} // namespace
} // namespace zeltrona::session
