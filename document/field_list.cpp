#include "document/field_list.h"

#include "document/number_text.h"

#include <optional>

namespace zeltrona::document {

namespace {

std::optional<double> numberOf(std::string_view text, FieldTest test) {
    return test == FieldTest::Numeric ? numericField(text) : leadingNumber(text);
}

} // namespace

std::vector<ListField> splitFields(std::string_view value, FieldTest test) {
    std::vector<ListField> fields;
    std::size_t begin = 0;
    for (std::size_t comma = value.find(','); comma != value.npos; comma = value.find(',', begin)) {
        const std::string_view text = value.substr(begin, comma - begin);
        if (const std::optional<double> number = numberOf(text, test)) {
            fields.push_back({text, *number});
        }
        begin = comma + 1;
    }
    return fields;
}

} // namespace zeltrona::document
