#include "document/frame_store.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

Session configOf(std::string_view keys) {
    const TemporaryPlay play("[Config]\n" + std::string(keys));
    Session session;
    session.bodyType = session.court = session.courtTexture = session.useTexture = 7;
    session.lineWidth = 7;
    session.colorOff = session.colorDef = session.colorOffFont = session.colorDefFont = 7;
    session.colorLine = session.courtColor = 7;
    FrameRecords frame;
    loadConfig(play.file, session, frame);
    return session;
}

TEST(Config, ReadsEveryKey) {
    const Session session = configOf("bodyType=1\ncolorOff=255\ncolorDef=16711680\ncolorOffFont=16777215\n"
                                     "colorDefFont=1\ncolorLine=2\nline=3\ncourt=9\ncourtColor=4\n"
                                     "courtTexture=1\nuseTexture=1\n");
    EXPECT_EQ(session.bodyType, 1);
    EXPECT_EQ(session.colorOff, 255);
    EXPECT_EQ(session.colorDef, 16711680);
    EXPECT_EQ(session.colorOffFont, 16777215);
    EXPECT_EQ(session.colorDefFont, 1);
    EXPECT_EQ(session.colorLine, 2);
    EXPECT_EQ(session.lineWidth, 3);
    EXPECT_EQ(session.court, 9);
    EXPECT_EQ(session.courtColor, 4);
    EXPECT_EQ(session.courtTexture, 1);
    EXPECT_EQ(session.useTexture, 1);
}

TEST(Config, AbsentKeysGiveTheirDefaults) {
    const Session session = configOf("");
    EXPECT_EQ(session.bodyType, 0);
    EXPECT_EQ(session.colorOff, 0);
    EXPECT_EQ(session.colorDef, 0);
    EXPECT_EQ(session.colorOffFont, 0);
    EXPECT_EQ(session.colorDefFont, 0);
    EXPECT_EQ(session.colorLine, 0);
    EXPECT_EQ(session.lineWidth, 1);
    EXPECT_EQ(session.court, 0);
    EXPECT_EQ(session.courtColor, 0);
    EXPECT_EQ(session.courtTexture, 0);
    EXPECT_EQ(session.useTexture, 0);
}

TEST(Config, SwitchesKnowOnlyOne) {
    for (const char* value : {"2", "-1", "0", "x", ""}) {
        const std::string text = value;
        const Session session =
            configOf("bodyType=" + text + "\ncourtTexture=" + text + "\nuseTexture=" + text + "\n");
        EXPECT_EQ(session.bodyType, 0) << value;
        EXPECT_EQ(session.courtTexture, 0) << value;
        EXPECT_EQ(session.useTexture, 0) << value;
    }
}

TEST(Config, ALineWidthOfZeroReadsAsOne) {
    EXPECT_EQ(configOf("line=0\n").lineWidth, 1);
    EXPECT_EQ(configOf("line=65536\n").lineWidth, 1);
    EXPECT_EQ(configOf("line=-1\n").lineWidth, -1);
    EXPECT_EQ(configOf("line=9999\n").lineWidth, 9999);
}

TEST(Config, NumbersBeyondTheirWidthWrap) {
    EXPECT_EQ(configOf("court=65537\n").court, 1);
    EXPECT_EQ(configOf("court=10\n").court, 10);
    EXPECT_EQ(configOf("court=0\n").court, 0);
    EXPECT_EQ(configOf("colorOff=16777216\n").colorOff, 16777216);
    EXPECT_EQ(configOf("colorOff=4294967297\n").colorOff, 1);
    EXPECT_EQ(configOf("colorOff=-1\n").colorOff, -1);
}

TEST(Config, FillsThePlayersFromFrameOne) {
    const TemporaryPlay play("[Config]\ntxtOff0=4\ntxtDef0=A\n[Frame1]\noff0=1,2\ndef0=3,4\nBall0=5,6,\n"
                             "[Frame2]\noff0=9,9\n");
    Session session;
    FrameRecords frame;
    loadConfig(play.file, session, frame);
    ASSERT_EQ(frame.offPlayers.size(), 1U);
    EXPECT_EQ(frame.offPlayers[0], (PlayerRec{1, 2, "4", 0, 0, 0}));
    ASSERT_EQ(frame.defPlayers.size(), 1U);
    EXPECT_EQ(frame.defPlayers[0], (PlayerRec{3, 4, "A", 0, 0, 0}));
    EXPECT_FALSE(hasBalls(frame.balls));
}

TEST(Config, AFileThatIsNoPlayGivesDefaultsAndNoData) {
    const TemporaryPlay play("just some text\nBall0=1,2,\ncourt=3\n");
    Session session;
    FrameRecords frame;
    loadConfig(play.file, session, frame);
    loadFrame(play.file, session, frame, 1);
    EXPECT_EQ(session.court, 0);
    EXPECT_EQ(frame, FrameRecords());
    EXPECT_EQ(countFrames(play.file), 0);
}

struct Font {
    std::string name = "Default";
    std::int16_t charset = 77;
    std::optional<TrappedError> error;
};

Font fontOf(const std::string& config) {
    const TemporaryPlay play("[Config]\n" + config);
    Font font;
    font.error = readFontConfig(play.file, font.name, font.charset);
    return font;
}

TEST(FontConfig, ReadsNameAndCharacterSet) {
    const Font font = fontOf("font=Times New Roman,204,\n");
    EXPECT_EQ(font.name, "Times New Roman");
    EXPECT_EQ(font.charset, 204);
    EXPECT_FALSE(font.error);
}

TEST(FontConfig, AbsentOrEmptyLeavesTheCallersDefaults) {
    for (const char* config : {"", "font=\n"}) {
        const Font font = fontOf(config);
        EXPECT_EQ(font.name, "Default");
        EXPECT_EQ(font.charset, 77);
        EXPECT_FALSE(font.error);
    }
}

TEST(FontConfig, APartThatNoCommaEndsKeepsItsDefault) {
    const Font noComma = fontOf("font=Arial\n");
    EXPECT_EQ(noComma.name, "Default");
    EXPECT_EQ(noComma.charset, 77);
    const Font oneComma = fontOf("font=Arial,204\n");
    EXPECT_EQ(oneComma.name, "Arial");
    EXPECT_EQ(oneComma.charset, 77);
}

TEST(FontConfig, ACharacterSetThatIsNoNumberIsToldAndLeavesTheDefaults) {
    for (const char* config : {"font=Arial,abc,\n", "font=Arial,,\n"}) {
        const Font font = fontOf(config);
        EXPECT_EQ(font.name, "Default");
        EXPECT_EQ(font.charset, 77);
        EXPECT_EQ(font.error, (TrappedError{13, "Type mismatch"}));
    }
}

TEST(FontConfig, ACharacterSetBeyondItsWidthWraps) {
    EXPECT_EQ(fontOf("font=Arial,65774,\n").charset, 238);
}

TEST(FontConfig, ReadsTwoHundredFiftyThreeCharacters) {
    const std::string name(250, 'n');
    EXPECT_EQ(fontOf("font=" + name + ",1,\n").charset, 1);
    EXPECT_EQ(fontOf("font=" + name + ",12,\n").name, name);
    EXPECT_EQ(fontOf("font=" + name + ",12,\n").charset, 77);
}

TEST(FontConfig, WritesNameAndCharacterSetEachWithAComma) {
    TemporaryPlay play("[Config]\ncourt=1\n");
    EXPECT_TRUE(writeFontConfig(play.file, "Arial", 238).ok());
    EXPECT_TRUE(play.holds("[Config]\ncourt=1\nfont=Arial,238,\n"));
}

} // namespace

} // namespace zeltrona::document
