// Files that are no plays, or plays that someone has bent: reads answer, nothing crashes or hangs, reading
// leaves the file as it is, and a write changes its own line alone.

#include "document/play_file.h"
#include "document/play_text.h"
#include "tests/document/play_folder.h"

#include <array>
#include <charconv>
#include <gtest/gtest.h>
#include <malloc.h>
#include <random>
#include <string>

using namespace zeltrona::document;
using zeltrona::tests::PlayFolder;

namespace {

constexpr std::size_t kMillion = 1'000'000;

std::string repeated(std::string_view what, std::size_t length) {
    std::string text;
    text.reserve(length + what.size());
    while (text.size() < length) {
        text.append(what);
    }
    return text;
}

class HostileFile : public testing::Test {
protected:
    // Reads one key, writes another behind it, and looks at every byte.
    void expectReadsAndTakesAWrite(const std::string& ahead, const std::string& behind) {
        const std::string bytes = ahead + "[Config]\r\ncourt=3\r\n" + behind;
        PlayFile play(m_folder.put(bytes));
        EXPECT_EQ(play.readInt("config", "Court", 0), 3);
        EXPECT_EQ(play.readInt("Frame1", "frame", -1), -1);
        EXPECT_TRUE(m_folder.get() == bytes) << "a read changed the file";
        EXPECT_TRUE(play.writeString("Config", "court", "4").ok());
        EXPECT_TRUE(m_folder.get() == ahead + "[Config]\r\ncourt=4\r\n" + behind);
        EXPECT_EQ(PlayFile(m_folder.path()).readInt("Config", "court", 0), 4);
    }
    PlayFolder m_folder;
};

TEST_F(HostileFile, OfTwoHundredMillionBytes) {
    PlayFile play(m_folder.put("[Config]\r\ncourt=3\r\n" + repeated("junk without end, ", 200 * kMillion)
                               + "\r\n[Z]\r\nx=7"));
    EXPECT_EQ(play.readInt("Config", "court", 0), 3);
    EXPECT_EQ(play.readInt("Z", "x", 0), 7);
    EXPECT_EQ(play.readInt("Frame1", "frame", -1), -1);
}

TEST_F(HostileFile, WithALineOfFiftyMillionBytes) {
    const std::string line = "long=" + std::string(50 * kMillion, 'x') + "\r\n";
    const PlayFile play(m_folder.put("[Config]\r\n" + line + "court=3\r\n"));
    EXPECT_EQ(play.readInt("Config", "court", 0), 3);
    EXPECT_EQ(play.readString("Config", "long", "", 6999), std::string(6998, 'x'));
    PlayText text("[Config]\r\n" + line + "court=3\r\n");
    EXPECT_TRUE(text.write("Config", "court", "4"));
    EXPECT_TRUE(text.bytes() == "[Config]\r\n" + line + "court=4\r\n");
}

TEST_F(HostileFile, WithManyShortLinesOfOneKind) {
    for (const char* line : {"\r", "\n", "=\n", "[\n", "x=1\r", " [ ", ";\n", "\n\r"}) {
        SCOPED_TRACE(line);
        const std::string many = repeated(line, kMillion);
        expectReadsAndTakesAWrite(many + "\r\n", "z=1\r\n" + many);
    }
}

TEST_F(HostileFile, WithManySectionsAndKeys) {
    std::string many;
    for (int i = 0; i < 60'000; ++i) {
        many += "[S" + std::to_string(i) + "]\nk" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    }
    expectReadsAndTakesAWrite("", many);
    EXPECT_EQ(PlayFile(m_folder.path()).readInt("s59999", "K59999", 0), 59999);
    many.clear();
    for (int i = 0; i < 60'000; ++i) {
        many += "k" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    }
    expectReadsAndTakesAWrite("", many);
    EXPECT_EQ(PlayFile(m_folder.path()).readInt("Config", "K59999", 0), 59999);
}

TEST_F(HostileFile, ThatIsEmpty) {
    PlayFile play(m_folder.put(""));
    EXPECT_EQ(play.readString("Config", "font", "Arial,238,", 254), "Arial,238,");
    EXPECT_EQ(m_folder.get(), "");
    EXPECT_TRUE(play.writeString("Config", "court", "4").ok());
    EXPECT_EQ(m_folder.get(), "[Config]\r\ncourt=4\r\n");
}

TEST_F(HostileFile, OfRandomBytes) {
    std::mt19937 random(99);
    std::string noise(kMillion, '\0');
    for (char& c : noise) {
        c = static_cast<char>(random());
    }
    expectReadsAndTakesAWrite(noise + "\n", noise);
}

TEST_F(HostileFile, OfZeroBytes) {
    expectReadsAndTakesAWrite(std::string(kMillion, '\0') + "\r\n", std::string(kMillion, '\0'));
}

TEST_F(HostileFile, WithoutALastLineEnd) {
    expectReadsAndTakesAWrite("", "[Frame2]\r\nframe=2");
}

TEST_F(HostileFile, WithAMarkOfUtf8InFront) {
    expectReadsAndTakesAWrite("\xEF\xBB\xBF  Zeltrona\r\n", "");
    PlayFile swallowed(m_folder.put("\xEF\xBB\xBF[Config]\r\ncourt=3\r\n"));
    EXPECT_EQ(swallowed.readInt("Config", "court", 0), 0) << "the mark is part of the first line";
}

TEST_F(HostileFile, WithLfOrCrAlone) {
    for (const std::string end : {"\n", "\r"}) {
        PlayFile play(m_folder.put("head" + end + "[Config]" + end + "court=3" + end + "[Frame1]" + end
                                   + "frame=1" + end));
        EXPECT_EQ(play.readInt("Config", "court", 0), 3);
        EXPECT_EQ(play.readInt("Frame1", "frame", 0), 1);
        EXPECT_TRUE(play.writeString("Config", "court", "5").ok());
        EXPECT_EQ(m_folder.get(),
                  "head" + end + "[Config]" + end + "court=5" + end + "[Frame1]" + end + "frame=1" + end);
    }
}

// What is in use on the heap.
std::size_t memoryInUse() {
    const struct mallinfo2 now = ::mallinfo2();
    return now.uordblks + now.hblkhd;
}

std::string numbered(const char* ahead, const char* behind, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; text.size() < length; ++i) {
        std::array<char, 20> digits{}; // the shortest names that differ
        const auto made = std::to_chars(digits.data(), digits.data() + digits.size(), i, 36);
        text.append(ahead).append(digits.data(), made.ptr).append(behind);
    }
    return text;
}

TEST_F(HostileFile, TakesMemoryInStepWithItsSize) {
    constexpr std::size_t kLength = kMillion;
    constexpr std::size_t kConstant = kMillion;
    for (const std::string& bytes :
         {repeated("=\n", kLength), repeated("[\n", kLength), repeated("[A\n[\n", kLength),
          numbered("[", "\n", kLength), numbered("[", "\n[\n", kLength),
          "[A]\n" + numbered("", "=\n", kLength)}) {
        SCOPED_TRACE(bytes.substr(0, 20));
        const std::size_t before = memoryInUse();
        PlayText text(bytes);
        EXPECT_EQ(text.value("A", "none"), std::nullopt);
        EXPECT_EQ(text.value("", "none"), std::nullopt);
        EXPECT_TRUE(text.write("A", "some", "1"));
        EXPECT_LE(memoryInUse() - before, 20 * bytes.size() + kConstant);
    }
}

} // namespace
