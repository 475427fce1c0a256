// A list value cut into fields, held against the rule told plainly: a field is what stands between two commas
// and has one behind it, and where the test asks for numbers the others are passed over.

#include "document/field_list.h"
#include "document/number_text.h"
#include "fuzz/check.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using namespace zeltrona::document;

namespace {

std::vector<std::string> endedByCommas(std::string_view value) {
    std::vector<std::string> fields;
    std::string field;
    for (const char c : value) {
        if (c == ',') {
            fields.push_back(field);
            field.clear();
        } else {
            field.push_back(c);
        }
    }
    return fields;
}

void checkAny(std::string_view value) {
    const std::vector<std::string> plain = endedByCommas(value);
    const std::vector<ListField> fields = splitFields(value, FieldTest::Any);
    FUZZ_CHECK(fields.size() == plain.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        FUZZ_CHECK(fields[i].text == plain[i]);
        FUZZ_CHECK(std::isfinite(fields[i].number));
    }
}

void checkNumeric(std::string_view value) {
    std::vector<double> plain;
    for (const std::string& field : endedByCommas(value)) {
        if (const auto number = numericField(field)) {
            plain.push_back(*number);
        }
    }
    const std::vector<ListField> fields = splitFields(value, FieldTest::Numeric);
    FUZZ_CHECK(fields.size() == plain.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        FUZZ_CHECK(fields[i].number == plain[i]);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view value(reinterpret_cast<const char*>(data), size);
    checkAny(value);
    checkNumeric(value);
    return 0;
}
