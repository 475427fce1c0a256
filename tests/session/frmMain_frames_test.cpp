#include "document/play_file.h"
#include "session/file_names.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::click;
using testing::control;
using testing::DialogAnswerer;
using testing::expectedBoard;
using testing::OpenPlay;

void to(OpenPlay& play, int frame) {
    while (play.session().currFrame < frame) {
        click(play.window(), QStringLiteral("cmdSeqNoUp"));
    }
}

std::string fourFramePlay() {
    std::string bytes = testing::threeFramePlay();
    bytes += "[Frame4]\r\nframe=4\r\noff0=1,2\r\noff1=3,4\r\ndef0=5,6\r\n";
    bytes.replace(bytes.find("Notes3="), 7, "Notes3=three\r\nNotes4=four");
    return bytes;
}

TEST(MainFrames, NewFrameGoesToTheEndFromTheShownState) {
    OpenPlay play(fourFramePlay());
    to(play, 2);
    click(play.window(), QStringLiteral("seqNew"));
    EXPECT_EQ(play.session().currFrame, 5);
    EXPECT_EQ(play.txtSeq(), "5of5");
    EXPECT_EQ(play.key("Frame5", "off0"), "140,120");
    EXPECT_EQ(play.key("Frame5", "off1"), "71,188") << "at the end of its path";
    EXPECT_EQ(play.key("Frame5", "frame"), "5");
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 5));
}

TEST(MainFrames, DeletionInTheMiddleClosesTheGap) {
    OpenPlay play(fourFramePlay());
    to(play, 2);
    click(play.window(), QStringLiteral("seqDel"));
    EXPECT_EQ(play.txtSeq(), "2 of 3");
    EXPECT_EQ(play.key("Frame2", "off0"), "10,20");
    EXPECT_EQ(play.key("Frame3", "off0"), "1,2");
    EXPECT_EQ(play.key("Frame3", "frame"), "3");
    EXPECT_EQ(play.key("Frame4", "frame"), "(none)");
    EXPECT_EQ(play.key("Config", "Notes2"), "three");
    EXPECT_EQ(play.key("Config", "Notes3"), "four");
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 2));
}

TEST(MainFrames, DeletionOfTheLastShowsTheOneBefore) {
    OpenPlay play;
    to(play, 3);
    click(play.window(), QStringLiteral("seqDel"));
    EXPECT_EQ(play.session().currFrame, 2);
    EXPECT_EQ(play.txtSeq(), "2of2");
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 2));
}

TEST(MainFrames, FirstFrameCannotBeDeleted) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Frirst frame can't be deleted"));
    click(play.window(), QStringLiteral("seqDel"));
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

TEST(MainFrames, OnlyFrameIsKeptWithoutAWord) {
    OpenPlay play("[Config]\r\ncourt=1\r\n[Frame1]\r\nframe=1\r\n");
    const std::string before = play.bytes();
    DialogAnswerer answers;
    click(play.window(), QStringLiteral("seqDel"));
    EXPECT_EQ(answers.answered(), 0);
    EXPECT_EQ(play.bytes(), before);
}

TEST(MainFrames, NewAndDeleteStopARunningPlaybackOnTheLastFrame) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    click(play.window(), QStringLiteral("seqNew"));
    EXPECT_FALSE(control<QTimer>(play.window(), QStringLiteral("Timer1")).isActive());
    EXPECT_EQ(play.session().currFrame, 4);
    EXPECT_EQ(play.key("Frame4", "off0"), "10,20") << "made from frame 3";

    click(play.window(), QStringLiteral("cmdAnimPlay"));
    click(play.window(), QStringLiteral("seqDel"));
    EXPECT_FALSE(control<QTimer>(play.window(), QStringLiteral("Timer1")).isActive());
    EXPECT_EQ(play.txtSeq(), "3of3");
}

TEST(MainFrames, WalkingAndSavingStopAPlayback) {
    OpenPlay play;
    const auto& timer = control<QTimer>(play.window(), QStringLiteral("Timer1"));
    for (const char* button : {"cmdSeqNoUp", "cmdSeqNoDown", "seqSave"}) {
        click(play.window(), QStringLiteral("cmdAnimPlay"));
        EXPECT_TRUE(timer.isActive());
        click(play.window(), QString::fromLatin1(button));
        EXPECT_FALSE(timer.isActive()) << button;
    }
}

TEST(MainFrames, MovingToAnotherFrameDropsWhatWasNotSaved) {
    OpenPlay play;
    testing::drag(play.pic(), {{110, 110}, {210, 220}});
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    click(play.window(), QStringLiteral("cmdSeqNoDown"));
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 1));
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

TEST(MainFrames, NotesAreKeptForTheShownFrame) {
    OpenPlay play;
    to(play, 2);
    DialogAnswerer answers;
    answers.expect([](QWidget& notes) {
        EXPECT_EQ(notes.objectName(), QStringLiteral("frmNotes"));
        control<QPlainTextEdit>(notes, QStringLiteral("Text2")).setPlainText(QStringLiteral("Cut hard"));
        click(notes, QStringLiteral("Command1"));
    });
    click(play.window(), QStringLiteral("seqNotes"));
    EXPECT_EQ(play.key("Config", "Notes2"), "Cut hard");
    EXPECT_EQ(play.key("Config", "Notes1"), "");
}

TEST(MainFrames, TitleIsWrittenByItsWindow) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expect([](QWidget& title) {
        EXPECT_EQ(title.objectName(), QStringLiteral("frmTitle"));
        testing::typeInto(title, QStringLiteral("Text1"), QStringLiteral("Horns"));
        control<QPlainTextEdit>(title, QStringLiteral("Text2")).setPlainText(QStringLiteral("one\ntwo"));
        click(title, QStringLiteral("Command1"));
    });
    testing::choose(play.window(), QStringLiteral("mnuEditTitle"));
    EXPECT_EQ(play.key("Config", "txtTitle"), "Horns");
    EXPECT_EQ(play.key("Config", "txtHead"), "one\xAEtwo");
}

} // namespace
} // namespace zeltrona::session
