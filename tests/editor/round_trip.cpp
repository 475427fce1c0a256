#include "tests/editor/round_trip.h"

#include "document/frame_store.h"
#include "document/number_text.h"

#include <map>

namespace zeltrona::editor::testing {

using document::FrameRecords;
using document::PathRec;
using document::PointF;

namespace {

constexpr std::size_t kReadCharacters = 6998;
constexpr std::size_t kPlaceCharacters = 8;
constexpr int kLastBallOwner = 100;
constexpr int kLastPlayerOwner = 11;

/// The points whose numbers, each with its comma, end within the readable part of a value; a last x may lack
/// its y.
std::vector<PointF> readablePoints(const std::vector<PointF>& points, std::size_t usedCharacters) {
    std::vector<PointF> readable;
    for (const PointF& point : points) {
        usedCharacters += document::singleText(point.x).size() + 1;
        if (usedCharacters > kReadCharacters) {
            break;
        }
        readable.push_back({point.x, 0.0F});
        usedCharacters += document::singleText(point.y).size() + 1;
        if (usedCharacters > kReadCharacters) {
            break;
        }
        readable.back().y = point.y;
    }
    return readable;
}

/// A place of more than eight characters is cut, and one that loses all of its y hides the player.
std::vector<document::PlayerRec> readablePlayers(const std::vector<document::PlayerRec>& players) {
    std::vector<document::PlayerRec> readable;
    for (std::size_t i = 0; i < players.size(); ++i) {
        const std::string x = std::to_string(document::roundToInt16(players[i].x));
        const std::string y = std::to_string(document::roundToInt16(players[i].y));
        const std::string place = (x + "," + y).substr(0, kPlaceCharacters);
        if (place.size() <= x.size() + 1 || place.back() == '-') {
            continue;
        }
        readable.push_back(players[i]);
        readable.back().txt = std::to_string(i + 1);
        readable.back().x = std::stof(x);
        readable.back().y = std::stof(place.substr(x.size() + 1));
    }
    return readable.empty() ? std::vector{document::emptyPlayer()} : readable;
}

std::vector<PathRec> readablePaths(const std::vector<PathRec>& paths, int lastOwner) {
    if (!hasPaths(paths)) {
        return {document::emptyPath()};
    }
    std::map<int, std::vector<PointF>> byOwner;
    for (const auto& path : paths) {
        byOwner[path.owner] = path.pts;
    }
    std::vector<PathRec> readable;
    for (const auto& [owner, points] : byOwner) {
        if (owner <= lastOwner) {
            readable.push_back({static_cast<std::uint8_t>(owner), readablePoints(points, 0)});
        }
    }
    if (readable.empty()) {
        return {document::emptyPath()};
    }
    return readable;
}

FrameRecords asRead(const FrameRecords& records) {
    FrameRecords read = records;
    read.offPlayers = readablePlayers(records.offPlayers);
    read.defPlayers = readablePlayers(records.defPlayers);
    read.offPaths = readablePaths(records.offPaths, kLastPlayerOwner);
    read.defPaths = readablePaths(records.defPaths, kLastPlayerOwner);
    read.ballPaths = readablePaths(records.ballPaths, kLastBallOwner);
    for (auto& line : read.lines) {
        const std::string look = std::to_string(line.style) + ",0," + std::to_string(line.color) + ",";
        line.pts = readablePoints(line.pts, look.size());
    }
    // An array that counts as empty is not stored, whatever its element holds.
    if (!hasLines(records.lines)) {
        document::resetLines(read.lines);
    }
    if (!hasShadows(records.shadows)) {
        document::resetShadows(read.shadows);
    }
    if (!hasTxtPics(records.txtPics)) {
        document::resetTxtPics(read.txtPics);
    }
    return read;
}

} // namespace

std::string labelledConfig() {
    std::string text = "[Config]\r\n";
    for (int i = 0; i < 12; ++i) {
        const std::string slot = std::to_string(i);
        const std::string label = std::to_string(i + 1);
        text += "txtOff" + slot + "=" + label + "\r\ntxtDef" + slot + "=" + label + "\r\n";
    }
    return text;
}

std::string roundTripFault(const FrameRecords& records, const std::string& path) {
    document::PlayFile play(path);
    if (!play.replaceAll(labelledConfig()).ok()) {
        return "the play can't be written";
    }
    document::Session session;
    if (!saveFrame(play, session, records, 1, false).ok()) {
        return "the frame can't be stored";
    }
    const FrameRecords wanted = asRead(records);
    FrameRecords loaded;
    loadFrame(play, session, loaded, 1);
    if (loaded.offPlayers != wanted.offPlayers || loaded.defPlayers != wanted.defPlayers) {
        return "players";
    }
    if (loaded.offPaths != wanted.offPaths || loaded.defPaths != wanted.defPaths) {
        return "paths of players";
    }
    if (loaded.balls != wanted.balls || loaded.ballPaths != wanted.ballPaths) {
        return "balls";
    }
    if (loaded.triangles != wanted.triangles || loaded.shadows != wanted.shadows) {
        return "triangles or shadows";
    }
    if (loaded.txtPics != wanted.txtPics) {
        return "texts";
    }
    return loaded.lines == wanted.lines ? "" : "lines";
}

} // namespace zeltrona::editor::testing
