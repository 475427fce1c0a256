#include "session/file_names.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::control;
using testing::OpenPlay;

QString captionOf(QObject& window, const char* name) {
    return control<QAbstractButton>(window, QString::fromLatin1(name)).text();
}

TEST(MainLoad, ShowsFrameOneOfThePlay) {
    OpenPlay play;
    EXPECT_EQ(play.window().objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    EXPECT_EQ(play.board(), testing::expectedBoard(toPath(play.path()), 1));
}

TEST(MainLoad, PlayOfOneFrameShowsOneOfOne) {
    const OpenPlay play("[Config]\r\ncourt=1\r\n[Frame1]\r\nframe=1\r\n");
    EXPECT_EQ(const_cast<OpenPlay&>(play).txtSeq(), "1 of 1");
}

TEST(MainLoad, ResetsTheSessionOfTheWindow) {
    document::Session session;
    session.currFrame = 7;
    session.showCurves = -1;
    session.hideCharsetMessage = true;
    session.animLoop = true;
    const OpenPlay source;
    session.playFilePath = toPath(source.path());
    frmMain window(session, testing::boardArt());
    ASSERT_FALSE(window.load().has_value());
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(session.showCurves, 0);
    EXPECT_FALSE(session.hideCharsetMessage);
    EXPECT_FALSE(session.animLoop);
    EXPECT_EQ(session.court, 1);
    EXPECT_EQ(session.fontCharset, 238);
}

TEST(MainLoad, StatusIsReadyAndSpeedIsThree) {
    OpenPlay play;
    EXPECT_EQ(play.status(), " Ready");
    EXPECT_EQ(control<QLineEdit>(play.window(), QStringLiteral("txtAnimSpeed")).text(), QStringLiteral("3"));
}

TEST(MainLoad, TimerIsOff) {
    OpenPlay play;
    const auto& timer = control<QTimer>(play.window(), QStringLiteral("Timer1"));
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(timer.timerType(), Qt::PreciseTimer);
    EXPECT_EQ(timer.parent(), &play.window());
}

TEST(MainLoad, AllToolsAreUp) {
    OpenPlay play;
    for (int number = 0; number < 11; ++number) {
        EXPECT_EQ(control<QWidget>(play.window(), QStringLiteral("Picture1_%1").arg(number))
                      .property("Tag")
                      .toString(),
                  QStringLiteral("0"));
    }
}

TEST(MainLoad, CaptionsAreEnglish) {
    OpenPlay play;
    EXPECT_EQ(control<QLabel>(play.window(), QStringLiteral("Label3")).text(), QStringLiteral("Curve"));
    EXPECT_EQ(control<QGroupBox>(play.window(), QStringLiteral("Frame1")).title(),
              QStringLiteral("Sequence"));
    EXPECT_EQ(captionOf(play.window(), "seqSave"), QStringLiteral("Save"));
    EXPECT_EQ(captionOf(play.window(), "seqNew"), QStringLiteral("New"));
    EXPECT_EQ(captionOf(play.window(), "seqDel"), QStringLiteral("Delete"));
    EXPECT_EQ(captionOf(play.window(), "seqNotes"), QStringLiteral("Notes"));
}

TEST(MainLoad, CaptionsAreSerbian) {
    OpenPlay play(testing::threeFramePlay(), 2);
    EXPECT_EQ(control<QLabel>(play.window(), QStringLiteral("Label3")).text(), QStringLiteral("Kriva"));
    EXPECT_EQ(control<QGroupBox>(play.window(), QStringLiteral("Frame1")).title(),
              QStringLiteral("Sekvenca"));
    EXPECT_EQ(captionOf(play.window(), "seqSave"), QStringLiteral("Snimi"));
    EXPECT_EQ(captionOf(play.window(), "seqNew"), QStringLiteral("Nova"));
    EXPECT_EQ(captionOf(play.window(), "seqDel"), QStringLiteral("Obrisi"));
    EXPECT_EQ(captionOf(play.window(), "seqNotes"), QStringLiteral("Beleska"));
}

TEST(MainLoad, LanguageWithoutStringsNamesTheFirstMissingOneAndLeavesThePlay) {
    const OpenPlay source;
    for (const int language : {4, 5, 6, 7}) {
        document::Session session;
        chooseLanguage(session, language);
        session.playFilePath = toPath(source.path());
        frmMain window(session, testing::boardArt());
        EXPECT_EQ(window.load(), stringId(session, 22)) << language;
        EXPECT_EQ(source.bytes(), testing::threeFramePlay());
    }
}

TEST(MainLoad, OpeningAPlayWritesNothing) {
    const OpenPlay play;
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

TEST(MainLoad, NewPlayIsLaidOutAndStored) {
    document::Session session;
    const OpenPlay source("[Config]\r\ncolorOff=255\r\ntxtOff0=4\r\nskinOff0=0\r\ntxtOff1=5\r\nskinOff1=0\r\n"
                          "txtDef0=X\r\nskinDef0=0\r\ncourt=1\r\n"
                          "[Frame1]\r\nframe=1\r\noff0=10,10\r\noff1=40,10\r\ndef0=10,40\r\n");
    session.playFilePath = toPath(source.path());
    session.newFileFlag = true;
    frmMain window(session, testing::boardArt());
    ASSERT_FALSE(window.load().has_value());
    const document::PlayFile play(session.playFilePath);
    EXPECT_EQ(play.readWhole("Frame1", "off0"), "10,2");
    EXPECT_EQ(play.readWhole("Frame1", "off1"), "10,29");
    EXPECT_EQ(play.readWhole("Frame1", "def0"), "324,2");
    EXPECT_TRUE(play.hasKey("Config", "Notes1"));
}

TEST(MainLoad, BrokenFontKeyIsToldInItsOwnBoxAndLeavesTheDefaults) {
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("Arial,238,"), 10, "Arial,abc,");
    testing::DialogAnswerer answers;
    answers.expect([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Error"));
        window.close();
    });
    OpenPlay play(bytes);
    EXPECT_EQ(play.session().fontCharset, 238);
}

TEST(MainLoad, PointerIsBackToNormalAfterwards) {
    const OpenPlay play;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(MainLoad, FileThatIsNoPlayShowsAnEmptyBoard) {
    OpenPlay play(std::string("\x00\xFF\x01 no play\n", 11));
    EXPECT_EQ(play.txtSeq(), "1 of 0");
    EXPECT_EQ(play.board().size(), QSize(363, 332));
}

} // namespace
} // namespace zeltrona::session
