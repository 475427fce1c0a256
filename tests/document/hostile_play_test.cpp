#include "document/frame_store.h"
#include "document/sequence.h"
#include "document/user_texts.h"
#include "tests/document/temporary_play.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <random>

namespace zeltrona::document {

namespace {

using tests::crlf;
using tests::PlayFolder;

/// The bytes are made when the case runs: some are many.
struct HostileCase {
    const char* name;
    std::string (*bytes)();
    friend std::ostream& operator<<(std::ostream& out, const HostileCase& row) { return out << row.name; }
};

std::string randomBytes() {
    std::mt19937 engine(4711);
    std::string bytes(100'000, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(engine());
    }
    return bytes;
}

class NoPlay : public testing::TestWithParam<HostileCase> {};

/// All that reads a play.
void readEverything(const PlayFile& play, Session& session, FrameRecords& records) {
    loadConfig(play, session, records);
    for (std::int16_t frame = 0; frame <= 2; ++frame) {
        loadFrame(play, session, records, frame);
    }
    std::string font = "Arial";
    readFontConfig(play, font, session.fontCharset);
    EXPECT_EQ(font, "Arial");
    EXPECT_EQ(readTitle(play), "");
    EXPECT_EQ(readHead(play), "");
    EXPECT_EQ(readNote(play, 1), "");
}

TEST_P(NoPlay, LoadsAsAPlayWithoutDataAndStaysAsItIs) {
    const std::string bytes = GetParam().bytes();
    const PlayFolder folder;
    const PlayFile play(folder.put(bytes));
    Session session;
    FrameRecords records;
    readEverything(play, session, records);
    EXPECT_EQ(countFrames(play), 0);
    EXPECT_EQ(records, FrameRecords());
    EXPECT_EQ(session.lineWidth, 1);
    EXPECT_EQ(session.court, 0);
    EXPECT_EQ(session.fontCharset, 238);
    EXPECT_TRUE(folder.get() == bytes);
}

INSTANTIATE_TEST_SUITE_P(
    HostilePlay, NoPlay,
    testing::Values(HostileCase{"Empty", [] { return std::string(); }}, HostileCase{"Binary", randomBytes},
                    HostileCase{"ZeroBytes", [] { return std::string(5000, '\0'); }},
                    HostileCase{"OneLongLine", [] { return std::string(50'000'000, 'x'); }},
                    HostileCase{"LineEndsOnly", [] { return std::string(100'000, '\n'); }},
                    HostileCase{"BracketsOnly", [] { return std::string(100'000, '['); }}),
    [](const auto& given) { return given.param.name; });

TEST(HostilePlay, WhatCannotBeReadLoadsAsAPlayWithoutData) {
    const PlayFolder folder;
    std::filesystem::create_directory(folder.path("folder.zpf"));
    for (const std::string& path : {folder.path("missing.zpf"), folder.path("folder.zpf"), std::string()}) {
        const PlayFile play(path);
        Session session;
        FrameRecords records;
        readEverything(play, session, records);
        EXPECT_EQ(countFrames(play), 0) << path;
        EXPECT_EQ(records, FrameRecords()) << path;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path("missing.zpf")));
}

class OddPlay : public testing::TestWithParam<HostileCase> {};

TEST_P(OddPlay, LoadsLikeAnyOther) {
    const std::string bytes = GetParam().bytes();
    const PlayFolder folder;
    const PlayFile play(folder.put(bytes));
    Session session;
    FrameRecords records;
    loadConfig(play, session, records);
    loadFrame(play, session, records, 2);
    EXPECT_EQ(countFrames(play), 2);
    EXPECT_EQ(session.court, 3);
    EXPECT_EQ(records.offPlayers, (std::vector<PlayerRec>{{1, 2, "4", 0, 0, 0}}));
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{5, 6.5F}}));
    EXPECT_TRUE(folder.get() == bytes);
}

constexpr const char* kPlay =
    "header\n[Config]\ncourt=3\ntxtOff0=4\n[Frame1]\nframe=1\n[Frame2]\nframe=2\noff0=1,2\n"
    "Ball0=5,6.5,\n";

std::string carriageReturnsOnly() {
    std::string text = kPlay;
    std::replace(text.begin(), text.end(), '\n', '\r');
    return text;
}

std::string noFinalLineEnd() {
    const std::string text = crlf(kPlay);
    return text.substr(0, text.size() - 2);
}

std::string zeroBytesBetween() {
    return std::string("\0\0\r\n", 4) + crlf(kPlay) + std::string("\0x=1\r\n", 6);
}

std::string longEnding(const std::string& start) {
    return crlf(kPlay) + start + std::string(5'000'000, 'x');
}

INSTANTIATE_TEST_SUITE_P(
    HostilePlay, OddPlay,
    testing::Values(HostileCase{"LineFeedsOnly", [] { return std::string(kPlay); }},
                    HostileCase{"CarriageReturnsOnly", carriageReturnsOnly},
                    HostileCase{"NoFinalLineEnd", noFinalLineEnd},
                    HostileCase{"MarkAtTheStart", [] { return "\xEF\xBB\xBF" + crlf(kPlay); }},
                    HostileCase{"ZeroBytesBetween", zeroBytesBetween},
                    HostileCase{"AVeryLongComment", [] { return longEnding(";"); }},
                    HostileCase{"AVeryLongValue", [] { return longEnding("Shadow0="); }}),
    [](const auto& given) { return given.param.name; });

TEST(HostilePlay, HugeAndNegativeFrameNumbersCanBeSteppedThrough) {
    for (const char* number : {"-5", "0", "32767", "70000", "-32768", "99999999999"}) {
        const PlayFolder folder;
        PlayFile play(folder.put(crlf("[Frame1]\nframe=" + std::string(number) + "\n")));
        Session session;
        FrameRecords records;
        const std::int16_t count = countFrames(play);
        stepUp(play, session, records, count);
        EXPECT_TRUE(session.currFrame == 1 || session.currFrame == count) << number;
        stepDown(play, session, records);
        EXPECT_EQ(session.currFrame, 1) << number;
        EXPECT_TRUE(makeNewFrame(play, session, records).ok()) << number;
    }
}

TEST(HostilePlay, AnOwnerOfAPathWithoutItsObjectMovesNobody) {
    const PlayFolder folder;
    PlayFile play(folder.put(crlf("[Config]\ntxtOff0=4\n[Frame1]\nframe=1\noff0=1,2\noff9curve=7,8,9,9,\n"
                                  "Ball0=3,4,\nball100curve=1,1,2,2,\n")));
    Session session;
    FrameRecords records;
    loadFrame(play, session, records, 1);
    EXPECT_TRUE(makeNewFrame(play, session, records).ok());
    EXPECT_EQ(play.readWhole("Frame2", "off0"), "1,2");
    EXPECT_EQ(play.readWhole("Frame2", "Ball0"), "3,4,");
}

} // namespace

} // namespace zeltrona::document
