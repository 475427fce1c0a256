// A text and a row of edits, done by the program's quick reader and by the slow model of the same rules:
// bytes and values must agree after each, and an edit must leave a text that reads the same when it is read
// anew.
//
// Input: the text, then for each edit the byte 0x1E, a letter and up to three fields parted by 0x1F:
// w section, key, value writes; k section, key and s section delete.

#include "document/play_text.h"
#include "fuzz/check.h"
#include "tests/document/slow_play.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using zeltrona::document::PlayText;
using zeltrona::tests::SlowPlay;

namespace {

constexpr char kEdit = '\x1E';
constexpr char kField = '\x1F';
constexpr std::size_t kMostText = 20'000; // the model is slow
constexpr int kMostEdits = 40;

std::string_view takeUpTo(std::string_view& rest, char mark) {
    const std::size_t end = rest.find(mark);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

void checkAgreement(const PlayText& text, const SlowPlay& model) {
    FUZZ_CHECK(text.bytes() == model.bytes());
    const PlayText anew(model.bytes());
    for (const auto& [section, key] : model.names()) {
        const auto expected = model.value(section, key);
        const auto value = text.value(section, key);
        FUZZ_CHECK(value.has_value() == expected.has_value());
        FUZZ_CHECK(!value || *value == *expected);
        FUZZ_CHECK(anew.value(section, key) == value);
    }
}

void doEdit(std::string_view edit, PlayText& text, SlowPlay& model) {
    const char act = edit.empty() ? 'w' : edit.front();
    edit.remove_prefix(edit.empty() ? 0 : 1);
    const std::string section(takeUpTo(edit, kField));
    const std::string key(takeUpTo(edit, kField));
    if (act == 's') {
        text.deleteSection(section);
        model.deleteSection(section);
    } else if (act == 'k') {
        text.deleteKey(section, key);
        model.deleteKey(section, key);
    } else {
        text.write(section, key, edit);
        model.write(section, key, std::string(edit));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const std::string start(takeUpTo(rest, kEdit).substr(0, kMostText));
    PlayText text(start);
    SlowPlay model(start);
    FUZZ_CHECK(text.bytes() == start);
    for (int edits = 0; !rest.empty() && edits < kMostEdits; ++edits) {
        const PlayText before = text;
        const std::string bytesBefore = model.bytes();
        doEdit(takeUpTo(rest, kEdit), text, model);
        FUZZ_CHECK(text.bytes() == model.bytes());
        FUZZ_CHECK(before.bytes() == bytesBefore);
        text.tidy();
    }
    checkAgreement(text, model);
    return 0;
}
