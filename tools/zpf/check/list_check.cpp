#include "tools/zpf/check/list_check.h"

#include "document/field_list.h"
#include "document/number_text.h"
#include "tools/zpf/counted.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::zpf {
namespace {

using document::FieldTest;
using document::ListField;
using document::TextBuffer;

constexpr std::size_t kTextFields = 10;
constexpr std::size_t kLineHead = 3; ///< style, curved and colour
constexpr int kLastStyle = 4;

/// Fields of a key of fixed length; 0 for a line and a text, which have rules of their own.
std::size_t fieldsOf(std::string_view list) {
    if (list == "Ball") {
        return 2;
    }
    if (list == "Triangle") {
        return 3;
    }
    return list == "Shadow" ? 5 : 0;
}

void checkClosingComma(const CheckDesk& desk, std::string_view key, std::string_view value) {
    const std::size_t comma = value.rfind(',');
    const std::string_view rest = comma == value.npos ? value : value.substr(comma + 1);
    const bool cut = desk.whole(key).size() > value.size();
    if (!rest.empty() && !cut) {
        desk.add(FindingKind::NoClosingComma, key, "no comma ends " + desk.quoted(rest) + ", so it is lost");
    }
}

void checkNumbers(const CheckDesk& desk, std::string_view key, std::string_view value) {
    std::string first;
    std::size_t count = 0;
    for (const ListField& field : document::splitFields(value, FieldTest::Any)) {
        if (!document::numericField(field.text)) {
            first = count++ == 0 ? desk.quoted(field.text) : first;
        }
    }
    if (count > 0) {
        desk.add(FindingKind::NotANumber, key,
                 first + " is no number: it is skipped, and the next field takes its place"
                     + (count > 1 ? " (" + counted(count, "such field") + ")" : std::string()));
    }
}

void checkFlag(const CheckDesk& desk, std::string_view key, const ListField& field, const char* what) {
    if (field.text != "1" && field.text != "0") {
        desk.add(FindingKind::BadValue, key,
                 std::string(what) + " " + desk.quoted(field.text) + " is neither 1 nor 0: it reads as 0");
    }
}

/// A whole number from 0 to `most`.
void checkCode(const CheckDesk& desk, std::string_view key, const ListField& field, const char* what,
               int most) {
    if (field.number < 0 || field.number > most || field.number != std::floor(field.number)) {
        desk.add(FindingKind::BadValue, key,
                 std::string(what) + " " + desk.quoted(field.text) + " is no whole number from 0 to "
                     + std::to_string(most));
    }
}

void checkColor(const CheckDesk& desk, std::string_view key, const ListField& field) {
    checkCode(desk, key, field, "colour", 0xFFFFFF);
}

void checkFixedFields(const CheckDesk& desk, std::string_view key, std::size_t count, std::size_t wanted) {
    if (count < wanted) {
        desk.add(FindingKind::MissingField, key,
                 counted(count, "field") + " of " + std::to_string(wanted) + ": what is missing reads as 0");
    } else if (count > wanted) {
        desk.add(FindingKind::ExtraField, key,
                 "only " + std::to_string(wanted) + " of its " + counted(count, "field") + " are read");
    }
}

void checkPairs(const CheckDesk& desk, std::string_view key, std::size_t coordinates) {
    if (coordinates % 2 == 1) {
        desk.add(FindingKind::MissingField, key, "the last point has no y, which reads as 0");
    }
}

void checkLineFields(const CheckDesk& desk, std::string_view key, const std::vector<ListField>& fields) {
    if (!fields.empty()) {
        checkCode(desk, key, fields[0], "style", kLastStyle);
    }
    if (fields.size() > 1) {
        checkFlag(desk, key, fields[1], "curved");
    }
    if (fields.size() > 2) {
        checkColor(desk, key, fields[2]);
    }
    if (fields.size() <= kLineHead) {
        desk.add(FindingKind::MissingField, key, "a line without points, which shows nothing");
    } else if (fields.size() <= kLineHead + 2) {
        desk.add(FindingKind::MissingField, key, "a line of one point, which shows nothing");
    } else {
        checkPairs(desk, key, fields.size() - kLineHead);
    }
}

void checkTextFields(const CheckDesk& desk, std::string_view key, std::string_view value) {
    const std::vector<ListField> fields = document::splitFields(value, FieldTest::Any);
    desk.checkCharacters(key);
    if (fields.size() > kTextFields) {
        desk.add(FindingKind::CommaInText, key,
                 counted(fields.size(), "field")
                     + " instead of 10: the text ends at its first comma, and all "
                     + "behind that is shifted");
        return;
    }
    checkFixedFields(desk, key, fields.size(), kTextFields);
    for (const std::size_t place : {1U, 2U, 4U, 5U}) {
        if (place < fields.size() && !document::numericField(fields[place].text)) {
            desk.add(FindingKind::NotANumber, key,
                     desk.quoted(fields[place].text) + " is no number: it reads as "
                         + document::singleText(document::toSingle(fields[place].number)));
        }
    }
    if (fields.size() > 5 && document::numericField(fields[5].text)) {
        checkColor(desk, key, fields[5]);
    }
    for (std::size_t place = 6; place < fields.size(); ++place) {
        checkFlag(desk, key, fields[place], "style");
    }
}

} // namespace

void checkListKey(const CheckDesk& desk, std::string_view key, const FrameKey& shape, std::size_t readable) {
    const std::string value = desk.read(key, TextBuffer::List);
    if (value.empty()) {
        return;
    }
    if (static_cast<std::size_t>(shape.index) >= readable) {
        desk.add(FindingKind::Hole, key,
                 std::string(shape.name) + std::to_string(readable) + " is missing, and the list ends there");
        return;
    }
    desk.checkLength(key, TextBuffer::List);
    checkClosingComma(desk, key, value);
    if (shape.name == "txtPic") {
        checkTextFields(desk, key, value);
        return;
    }
    checkNumbers(desk, key, value);
    const std::vector<ListField> fields = document::splitFields(value, FieldTest::Numeric);
    if (shape.name == "Line") {
        checkLineFields(desk, key, fields);
    } else {
        checkFixedFields(desk, key, fields.size(), fieldsOf(shape.name));
        if (shape.name != "Ball" && !fields.empty()) {
            checkColor(desk, key, fields[0]);
        }
    }
}

void checkCurveFields(const CheckDesk& desk, std::string_view key) {
    const std::string value = desk.read(key, TextBuffer::List);
    desk.checkLength(key, TextBuffer::List);
    checkClosingComma(desk, key, value);
    checkNumbers(desk, key, value);
    checkPairs(desk, key, document::splitFields(value, FieldTest::Numeric).size());
}

} // namespace zeltrona::zpf
