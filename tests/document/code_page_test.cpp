#include "document/code_page.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

using namespace zeltrona::document;

namespace {

struct RealText {
    std::int16_t charset;
    int page;
    const char* utf8;
    const char* bytes;
    friend std::ostream& operator<<(std::ostream& out, const RealText& text) {
        return out << "set " << text.charset;
    }
};

class CodePage : public testing::TestWithParam<RealText> {};

TEST_P(CodePage, BelongsToItsCharacterSet) {
    EXPECT_EQ(codePageOf(GetParam().charset), GetParam().page);
}

TEST_P(CodePage, BytesBecomeText) {
    EXPECT_EQ(toUtf8(GetParam().bytes, GetParam().charset), GetParam().utf8);
}

TEST_P(CodePage, TextBecomesBytes) {
    const Encoded encoded = fromUtf8(GetParam().utf8, GetParam().charset);
    EXPECT_EQ(encoded.bytes, GetParam().bytes);
    EXPECT_TRUE(encoded.complete);
}

TEST_P(CodePage, AsciiIsTheSameInAll) {
    std::string ascii;
    for (char c = 0; c < 127; ++c) {
        ascii.push_back(c);
    }
    EXPECT_EQ(toUtf8(ascii, GetParam().charset), ascii);
    EXPECT_EQ(toUtf8(ascii + GetParam().bytes, GetParam().charset), ascii + GetParam().utf8);
    EXPECT_EQ(fromUtf8(ascii + GetParam().utf8, GetParam().charset).bytes, ascii + GetParam().bytes);
}

TEST_P(CodePage, ACharacterThatItLacksIsToldAndReplaced) {
    const std::string text = std::string("a") + "\xF0\x9F\x8F\x80" + GetParam().utf8 + "\xE1\x8E\xA0";
    const Encoded encoded = fromUtf8(text, GetParam().charset);
    EXPECT_EQ(encoded.bytes, std::string("a?") + GetParam().bytes + "?");
    EXPECT_FALSE(encoded.complete);
}

INSTANTIATE_TEST_SUITE_P(
    RealTexts, CodePage,
    testing::Values(
        RealText{238, 1250, "Odbrana: čćžšđ ČĆŽŠĐ, ąęłńśźż, őű",
                 "\x4F\x64\x62\x72\x61\x6E\x61\x3A\x20\xE8\xE6\x9E\x9A\xF0\x20\xC8\xC6\x8E\x8A\xD0\x2C\x20"
                 "\xB9\xEA\xB3\xF1\x9C\x9F\xBF\x2C\x20\xF5\xFB"},
        RealText{204, 1251, "Нападение и защита, Одбрана љњџ",
                 "\xCD\xE0\xEF\xE0\xE4\xE5\xED\xE8\xE5\x20\xE8\x20\xE7\xE0\xF9\xE8\xF2\xE0\x2C\x20\xCE\xE4"
                 "\xE1\xF0\xE0\xED\xE0\x20\x9A\x9C\x9F"},
        RealText{161, 1253, "Επίθεση και άμυνα",
                 "\xC5\xF0\xDF\xE8\xE5\xF3\xE7\x20\xEA\xE1\xE9\x20\xDC\xEC\xF5\xED\xE1"},
        RealText{162, 1254, "Hücum ve savunma: ğış ĞİŞ",
                 "\x48\xFC\x63\x75\x6D\x20\x76\x65\x20\x73\x61\x76\x75\x6E\x6D\x61\x3A\x20\xF0\xFD\xFE\x20"
                 "\xD0\xDD\xDE"},
        RealText{177, 1255, "הגנה והתקפה", "\xE4\xE2\xF0\xE4\x20\xE5\xE4\xFA\xF7\xF4\xE4"},
        RealText{178, 1256, "دفاع وهجوم", "\xCF\xDD\xC7\xDA\x20\xE6\xE5\xCC\xE6\xE3"},
        RealText{186, 1257, "Puolimas ir gynyba: ąčęėįšųūž",
                 "\x50\x75\x6F\x6C\x69\x6D\x61\x73\x20\x69\x72\x20\x67\x79\x6E\x79\x62\x61\x3A\x20\xE0\xE8"
                 "\xE6\xEB\xE1\xF0\xF8\xFB\xFE"},
        RealText{222, 874, "การรุกและการป้องกัน",
                 "\xA1\xD2\xC3\xC3\xD8\xA1\xE1\xC5\xD0\xA1\xD2\xC3\xBB\xE9\xCD\xA7\xA1\xD1\xB9"},
        RealText{
            128, 932, "速攻とディフェンス、ﾊﾟｽ",
            "\x91\xAC\x8D\x55\x82\xC6\x83\x66\x83\x42\x83\x74\x83\x46\x83\x93\x83\x58\x81\x41\xCA\xDF\xBD"},
        RealText{129, 949, "속공과 수비", "\xBC\xD3\xB0\xF8\xB0\xFA\x20\xBC\xF6\xBA\xF1"},
        RealText{134, 936, "快攻和防守", "\xBF\xEC\xB9\xA5\xBA\xCD\xB7\xC0\xCA\xD8"},
        RealText{136, 950, "快攻與防守", "\xA7\xD6\xA7\xF0\xBB\x50\xA8\xBE\xA6\x75"},
        RealText{0, 1252, "Überzahl, naïve façade, œuvre €",
                 "\xDC\x62\x65\x72\x7A\x61\x68\x6C\x2C\x20\x6E\x61\xEF\x76\x65\x20\x66\x61\xE7\x61\x64\x65"
                 "\x2C\x20\x9C\x75\x76\x72\x65\x20\x80"},
        RealText{77, 1252, "Über", "\xDC\x62\x65\x72"}));

TEST(CodePageTable, GivesWesternForWhatItLacks) {
    for (const int charset : {0, 1, 2, 77, 130, 255, -1, 32767}) {
        EXPECT_EQ(codePageOf(static_cast<std::int16_t>(charset)), 1252) << charset;
    }
}

TEST(CodePageVietnamese, ReadsAccentsBehindTheirLetters) {
    EXPECT_EQ(codePageOf(163), 1258);
    EXPECT_EQ(toUtf8("T\xE2\xECn c\xF4ng", 163), "Tấn công");
    EXPECT_EQ(toUtf8("th\x75\xD2", 163), "thủ")
        << "the last letter is held back until it is sure to be whole";
}

TEST(CodePageVietnamese, WritesWhatReadsBackTheSame) {
    const std::string text = "Tấn công và phòng thủ: ắ ệ ộ ử đ ơ ư";
    const Encoded encoded = fromUtf8(text, 163);
    EXPECT_TRUE(encoded.complete);
    EXPECT_EQ(toUtf8(encoded.bytes, 163), text);
}

TEST(CodePageText, TheLineBreakMarkIsByte174) {
    EXPECT_EQ(toUtf8("First\xAESecond", 238), "First\xC2\xAESecond");
    EXPECT_EQ(toUtf8("First\xAESecond", 0), "First\xC2\xAESecond");
    EXPECT_EQ(fromUtf8("First\xC2\xAESecond", 238).bytes, "First\xAESecond");
}

TEST(CodePageText, AByteWithoutMeaningBecomesTheReplacementCharacter) {
    EXPECT_EQ(toUtf8("a\x81z", 238), "a\xEF\xBF\xBDz");
    EXPECT_EQ(toUtf8("a\x98z", 204), "a\xEF\xBF\xBDz");
    EXPECT_EQ(toUtf8("a\xFF\xFFz", 136), "a\xEF\xBF\xBD\xEF\xBF\xBDz");
}

TEST(CodePageText, HalfOfADoubleByteAtTheEndBecomesTheReplacementCharacter) {
    EXPECT_EQ(toUtf8("\x91\xAC\x8D", 128), "速\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8("\xBF\xEC\xB9", 134), "快\xEF\xBF\xBD");
}

TEST(CodePageText, BrokenUtf8IsToldAndReplaced) {
    const Encoded encoded = fromUtf8("a\xC4z\xFF\xE2\x82", 238);
    EXPECT_EQ(encoded.bytes, "a?z??");
    EXPECT_FALSE(encoded.complete);
    EXPECT_EQ(fromUtf8("\xE2\x82\xAC\xE2\x82", 0).bytes, "\x80?");
}

TEST(CodePageText, LongTextsComeThroughWhole) {
    std::string utf8;
    std::string bytes;
    for (int i = 0; i < 5000; ++i) {
        utf8 += "č€";
        bytes += "\xE8\x80";
    }
    EXPECT_EQ(toUtf8(bytes, 238), utf8);
    EXPECT_EQ(fromUtf8(utf8, 238).bytes, bytes);
    EXPECT_EQ(toUtf8("", 128), "");
    EXPECT_EQ(fromUtf8("", 128).bytes, "");
}

TEST(CodePageText, EveryByteOfASingleByteSetComesBackOrHasNoMeaning) {
    for (const int charset : {0, 161, 162, 177, 178, 186, 204, 222, 238}) {
        for (int byte = 0; byte < 256; ++byte) {
            const std::string one(1, static_cast<char>(byte));
            const std::string text = toUtf8(one, static_cast<std::int16_t>(charset));
            if (text != "\xEF\xBF\xBD") {
                EXPECT_EQ(fromUtf8(text, static_cast<std::int16_t>(charset)).bytes, one)
                    << charset << " " << byte;
            }
        }
    }
}

} // namespace
