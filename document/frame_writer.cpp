#include "document/frame_writer.h"

#include "document/frame_keys.h"
#include "document/frame_records.h"
#include "document/number_text.h"

#include <string>

namespace zeltrona::document {

namespace {

/// Every field is ended by a comma, the last one too: a reader drops a field without one.
void append(std::string& list, std::string_view field) {
    list.append(field).push_back(',');
}

void append(std::string& list, float number) {
    append(list, singleText(number));
}

void append(std::string& list, std::int32_t number) {
    append(list, std::to_string(number));
}

void append(std::string& list, bool flag) {
    append(list, flag ? std::string_view("1") : std::string_view("0"));
}

void append(std::string& list, const std::vector<PointF>& points) {
    for (const PointF& point : points) {
        append(list, point.x);
        append(list, point.y);
    }
}

template<class... Fields> std::string listOf(const Fields&... fields) {
    std::string list;
    (append(list, fields), ...);
    return list;
}

/// One key to an element: name and index, value by `valueOf`.
template<class Record, class ValueOf>
void writeListKeys(PlayFile& play, std::int16_t frame, std::string_view name,
                   const std::vector<Record>& records, ValueOf valueOf) {
    const std::string section = frameSection(frame);
    for (std::size_t index = 0; index < records.size(); ++index) {
        play.writeString(section, indexedKey(name, index), valueOf(records[index]));
    }
}

std::string lineValue(const LineRec& line) {
    return listOf(std::int32_t{line.style}, line.curved, line.color, line.pts);
}

std::string shadowValue(const ShadowRec& shadow) {
    return listOf(shadow.color, shadow.x, shadow.y, std::int32_t{shadow.w}, std::int32_t{shadow.h});
}

std::string txtPicValue(const TxtPicRec& txtPic) {
    return listOf(txtPic.text, txtPic.x, txtPic.y, txtPic.fontName, std::int32_t{txtPic.fontSize},
                  txtPic.color, txtPic.bold, txtPic.italic, txtPic.underline, txtPic.strikethrough);
}

} // namespace

void writePlayerKeys(PlayFile& play, std::int16_t frame, std::string_view key, float x, float y,
                     std::int16_t angle, std::int16_t body) {
    const std::string section = frameSection(frame);
    const std::string slot(key);
    const auto whole = [](float coordinate) {
        return std::to_string(roundToInt16(static_cast<double>(coordinate)));
    };
    play.writeString(section, slot, whole(x) + "," + whole(y));
    play.writeString(section, "angle" + slot, std::to_string(angle));
    play.writeString(section, "body" + slot, std::to_string(body));
}

void writeSidePlayers(PlayFile& play, std::int16_t frame, std::string_view side,
                      const std::vector<PlayerRec>& players) {
    if (!hasPlayers(players)) {
        return;
    }
    for (std::size_t index = 0; index < players.size(); ++index) {
        const PlayerRec& player = players[index];
        writePlayerKeys(play, frame, indexedKey(side, index), player.x, player.y, player.angle, player.body);
    }
}

void writeBallKeys(PlayFile& play, std::int16_t frame, const std::vector<BallRec>& balls) {
    if (hasBalls(balls)) {
        writeListKeys(play, frame, "Ball", balls, [](const BallRec& ball) { return listOf(ball.x, ball.y); });
    }
}

void writePathKeys(PlayFile& play, std::int16_t frame, std::string_view name,
                   const std::vector<PathRec>& paths) {
    if (!hasPaths(paths)) {
        return;
    }
    const std::string section = frameSection(frame);
    for (const PathRec& path : paths) {
        play.writeString(section, curveKey(name, path.owner), listOf(path.pts));
    }
}

void writeTriangleKeys(PlayFile& play, std::int16_t frame, const std::vector<TriangleRec>& triangles) {
    if (hasTriangles(triangles)) {
        writeListKeys(play, frame, "Triangle", triangles, [](const TriangleRec& triangle) {
            return listOf(triangle.color, triangle.x, triangle.y);
        });
    }
}

void writeLineKeys(PlayFile& play, std::int16_t frame, const std::vector<LineRec>& lines) {
    if (hasLines(lines)) {
        writeListKeys(play, frame, "Line", lines, lineValue);
    }
}

void writeShadowKeys(PlayFile& play, std::int16_t frame, const std::vector<ShadowRec>& shadows) {
    if (hasShadows(shadows)) {
        writeListKeys(play, frame, "Shadow", shadows, shadowValue);
    }
}

void writeTxtPicKeys(PlayFile& play, std::int16_t frame, const std::vector<TxtPicRec>& txtPics) {
    if (hasTxtPics(txtPics)) {
        writeListKeys(play, frame, "txtPic", txtPics, txtPicValue);
    }
}

} // namespace zeltrona::document
