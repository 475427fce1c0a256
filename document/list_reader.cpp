#include "document/list_reader.h"

#include "document/field_list.h"
#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/number_text.h"
#include "document/text_buffers.h"

#include <string>
#include <string_view>

namespace zeltrona::document {

namespace {

/// An index has 16 bits.
constexpr std::size_t kLastIndex = 32767;

/// What differs from one list key to the next.
struct ListKey {
    std::string_view name;
    FieldTest test = FieldTest::Numeric;
};

/// Reads all values of a list key into `dest`. `take(record, place, field)` stores one field; the first valid
/// field of index 0 drops what `dest` held.
template<class Record, class Take>
void readListKeys(const PlayFile& play, std::int16_t frame, ListKey key, const Record& emptyRecord,
                  std::vector<Record>& dest, Take take) {
    const ReadScope scope(play);
    const std::string section = frameSection(frame);
    for (std::size_t index = 0; index <= kLastIndex; ++index) {
        const std::string value = readText(play, section, indexedKey(key.name, index), TextBuffer::List);
        if (value.empty()) {
            return;
        }
        const std::vector<ListField> fields = splitFields(value, key.test);
        if (index > 0) {
            dest.push_back(fields.empty() ? emptyRecord : Record{});
        } else if (!fields.empty()) {
            dest.assign(1, Record{});
        }
        for (std::size_t place = 0; place < fields.size(); ++place) {
            take(dest.back(), place, fields[place]);
        }
    }
}

template<class Record> void takePosition(Record& record, std::size_t coordinate, double number) {
    if (coordinate == 0) {
        record.x = toSingle(number);
    } else if (coordinate == 1) {
        record.y = toSingle(number);
    }
}

bool isTrue(const ListField& field) {
    return field.text == "1";
}

void takeTriangleField(TriangleRec& triangle, std::size_t place, const ListField& field) {
    if (place == 0) {
        triangle.color = roundToInt32(field.number);
    } else {
        takePosition(triangle, place - 1, field.number);
    }
}

void takeShadowField(ShadowRec& shadow, std::size_t place, const ListField& field) {
    switch (place) {
    case 0:
        shadow.color = roundToInt32(field.number);
        break;
    case 3:
        shadow.w = roundToInt16(field.number);
        break;
    case 4:
        shadow.h = roundToInt16(field.number);
        break;
    default:
        takePosition(shadow, place - 1, field.number);
    }
}

void takeLineField(LineRec& line, std::size_t place, const ListField& field) {
    if (place == 0) {
        line.style = static_cast<std::uint8_t>(roundToInt32(field.number));
    } else if (place == 1) {
        line.curved = isTrue(field);
    } else if (place == 2) {
        line.color = roundToInt32(field.number);
    } else if (place % 2 == 1) {
        line.pts.push_back({toSingle(field.number), 0.0F});
    } else {
        line.pts.back().y = toSingle(field.number);
    }
}

void takeTxtPicField(TxtPicRec& txtPic, std::size_t place, const ListField& field) {
    switch (place) {
    case 0:
        txtPic.text = field.text;
        break;
    case 1:
    case 2:
        takePosition(txtPic, place - 1, field.number);
        break;
    case 3:
        txtPic.fontName = field.text;
        break;
    case 4:
        txtPic.fontSize = roundToInt16(field.number);
        break;
    case 5:
        txtPic.color = roundToInt32(field.number);
        break;
    case 6:
        txtPic.bold = isTrue(field);
        break;
    case 7:
        txtPic.italic = isTrue(field);
        break;
    case 8:
        txtPic.underline = isTrue(field);
        break;
    case 9:
        txtPic.strikethrough = isTrue(field);
        break;
    default:
        break;
    }
}

} // namespace

void readTriangles(const PlayFile& play, std::int16_t frame, std::vector<TriangleRec>& triangles) {
    resetTriangles(triangles);
    readListKeys(play, frame, {"Triangle"}, TriangleRec{}, triangles, takeTriangleField);
}

void readBalls(const PlayFile& play, std::int16_t frame, std::vector<BallRec>& balls) {
    resetBalls(balls);
    readListKeys(play, frame, {"Ball"}, BallRec{}, balls,
                 [](BallRec& ball, std::size_t place, const ListField& field) {
                     takePosition(ball, place, field.number);
                 });
}

void readLines(const PlayFile& play, std::int16_t frame, std::vector<LineRec>& lines) {
    resetLines(lines);
    readListKeys(play, frame, {"Line"}, emptyLine(), lines, takeLineField);
}

void readShadows(const PlayFile& play, std::int16_t frame, std::vector<ShadowRec>& shadows) {
    resetShadows(shadows);
    readListKeys(play, frame, {"Shadow"}, ShadowRec{}, shadows, takeShadowField);
}

void readTxtPics(const PlayFile& play, std::int16_t frame, std::vector<TxtPicRec>& txtPics) {
    resetTxtPics(txtPics);
    readListKeys(play, frame, {"txtPic", FieldTest::Any}, emptyTxtPic(), txtPics, takeTxtPicField);
}

void readFrameBalls(const PlayFile& play, std::int16_t frame, std::vector<PlayerRec>& dest) {
    readListKeys(play, frame, {"Ball"}, emptyPlayer(), dest,
                 [&dest](PlayerRec& ball, std::size_t place, const ListField& field) {
                     takePosition(ball, place, field.number);
                     ball.txt = std::to_string(dest.size() - 1);
                 });
}

} // namespace zeltrona::document
