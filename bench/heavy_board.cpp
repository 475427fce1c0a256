#include "bench/heavy_board.h"

namespace zeltrona::bench {

using document::LineRec;
using document::PlayerRec;
using document::PointF;

namespace {

constexpr document::Color kSkin = 10079487;

std::vector<PlayerRec> teamFrom(float top) {
    std::vector<PlayerRec> team;
    for (int i = 0; i < 12; ++i) {
        PlayerRec player;
        player.x = static_cast<float>(10 + i % 6 * 55);
        player.y = top + static_cast<float>(i / 6 * 75);
        player.txt = std::to_string(i + 1);
        player.angle = static_cast<std::int16_t>(i * 30 + 15);
        player.body = static_cast<std::int16_t>(i % 4);
        player.skin = kSkin;
        team.push_back(player);
    }
    return team;
}

/// A zigzag whose points serve a curved line as well.
LineRec lineAcross(int style, bool isCurved, float y) {
    return {static_cast<std::uint8_t>(style),
            0x800000,
            isCurved,
            {{20, y}, {100, y + 40}, {180, y + 5}, {260, y - 30}, {340, y + 10}}};
}

document::TxtPicRec textAt(float x, float y) {
    document::TxtPicRec text;
    text.text = "Screen away";
    text.x = x;
    text.y = y;
    text.fontName = "Arial";
    text.fontSize = 10;
    text.bold = true;
    return text;
}

} // namespace

HeavyBoard::HeavyBoard() {
    session.court = 1;
    session.courtTexture = 1;
    session.bodyType = 1;
    session.colorOff = 0x2040C0;
    session.colorDef = 0xA04020;
    session.colorOffFont = 0xFFFFFF;
    session.colorDefFont = 0xFFFFFF;
    session.lineWidth = 2;
    frame.offPlayers = teamFrom(10);
    frame.defPlayers = teamFrom(170);
    frame.balls = {{60, 90}, {180, 200}, {300, 250}};
    frame.triangles = {{40, 300, 255}, {170, 150, 255}, {310, 60, 255}};
    frame.shadows = {
        {30, 30, 110, 90, 0xA0D0E0}, {150, 120, 240, 200, 0xA0D0E0}, {250, 220, 340, 300, 0xA0D0E0}};
    frame.txtPics = {textAt(20, 20), textAt(140, 160), textAt(240, 310)};
    frame.lines.clear();
    for (int style = 0; style <= 4; ++style) {
        frame.lines.push_back(lineAcross(style, false, 50 + static_cast<float>(style) * 55));
        frame.lines.push_back(lineAcross(style, true, 75 + static_cast<float>(style) * 55));
    }
}

WavyBoard::WavyBoard() {
    session.court = 3;
    session.lineWidth = 1;
    frame.lines.clear();
    for (int i = 0; i < 10; ++i) {
        const float y = 15 + static_cast<float>(i) * 28;
        frame.lines.push_back(
            {2, 0x800000, true, {{5, y}, {140, y + 60}, {265, y}, {390, y - 60}, {525, y}}});
    }
}

} // namespace zeltrona::bench
