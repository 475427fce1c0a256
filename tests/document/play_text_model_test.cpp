#include "document/play_text.h"
#include "tests/document/slow_play.h"

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>

using zeltrona::document::PlayText;
using zeltrona::tests::SlowPlay;

namespace {

class Maker {
public:
    explicit Maker(unsigned seed) : m_random(seed) {}

    template<std::size_t N> std::string pick(const std::array<const char*, N>& from) {
        return from[m_random() % N];
    }
    bool oneIn(unsigned n) { return m_random() % n == 0; }
    unsigned below(unsigned n) { return static_cast<unsigned>(m_random() % n); }

    std::string name() {
        static constexpr std::array<const char*, 14> kNames = {
            "A", "a", "B", "Frame1", "frame1", "x", "X", "y", " y", "x\t", "", ";c", "[", "x=z"};
        return pick(kNames);
    }
    std::string value() {
        static constexpr std::array<const char*, 10> kValues = {"1",   "",     "2",       " 3 ", "'q'",
                                                                "a=b", "x\ny", "\r\n[A]", "[B]", "\r"};
        return pick(kValues);
    }
    std::string text() {
        static constexpr std::array<const char*, 18> kBits = {
            "[A]", "[B]",  "[a", "x=1", " x = 2 ", "y=3", ";c=1", "junk", "[ A ] z",
            "=0",  "\r\n", "\n", "\r",  "\r\n",    "\n",  "\r\n", " ",    "\t"};
        std::string text;
        for (unsigned i = below(30); i > 0; --i) {
            text += pick(kBits);
        }
        return text;
    }

private:
    std::mt19937 m_random;
};

void changeBoth(Maker& maker, PlayText& text, SlowPlay& model) {
    const std::string section = maker.name();
    const std::string key = maker.name();
    const unsigned act = maker.below(10);
    if (act < 7) {
        const std::string value = maker.value();
        const bool changed = text.write(section, key, value);
        const std::string before = model.bytes();
        model.write(section, key, value);
        ASSERT_EQ(changed, before != model.bytes());
    } else if (act < 9) {
        text.deleteKey(section, key);
        model.deleteKey(section, key);
    } else {
        text.deleteSection(section);
        model.deleteSection(section);
    }
}

TEST(PlayTextModel, RowsOfRandomActsAgreeByteForByte) {
    constexpr unsigned kSeed = 4711;
    for (unsigned round = 0; round < 1200; ++round) {
        SCOPED_TRACE("seed " + std::to_string(kSeed + round));
        Maker maker(kSeed + round);
        const std::string start = maker.text();
        PlayText text(start);
        SlowPlay model(start);
        ASSERT_EQ(text.bytes(), start);
        for (int step = 0; step < 12; ++step) {
            const PlayText copy = text;
            const std::string before = model.bytes();
            changeBoth(maker, text, model);
            ASSERT_EQ(text.bytes(), model.bytes()) << "after " << before;
            ASSERT_EQ(copy.bytes(), before) << "a copy changed";
            const std::string section = maker.name();
            const std::string key = maker.name();
            const auto value = text.value(section, key);
            ASSERT_EQ(value ? std::optional<std::string>(*value) : std::nullopt, model.value(section, key));
        }
        for (const auto& [section, key] : model.names()) {
            ASSERT_EQ(std::string(text.value(section, key).value_or("(absent)")),
                      model.value(section, key).value_or("(absent)"));
        }
    }
}

} // namespace
