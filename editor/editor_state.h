#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zeltrona::editor {

/// Indices of the toolbox buttons `Picture1`. The line tools are 0 to 4, and their index is the line's style.
namespace tool {
constexpr std::int16_t kNone = -1;
constexpr std::int16_t kFirstLine = 0;
constexpr std::int16_t kLastLine = 4;
constexpr std::int16_t kBall = 5;
constexpr std::int16_t kTriangle = 6;
constexpr std::int16_t kText = 7;
constexpr std::int16_t kShadow = 8;
constexpr std::int16_t kDelete = 9;
constexpr std::int16_t kColor = 10;
constexpr std::int16_t kCount = 11;
} // namespace tool

/// The mode of the editor: what the pointer and the keys find and leave. Nothing else is selected.
/// Units:  indices are -1 for none; distances and origins are board units, rounded to whole ones.
/// Reason: a change of the frame leaves all of this as it is, so an index may name an object that is gone;
///         every reader passes such an index over.
struct EditorState {
    std::array<bool, tool::kCount> toolDown{}; ///< the `Tag` of each button: true is "1"
    std::int16_t currTool = tool::kNone;

    bool lineInProgress = false;
    bool lineCurved = false;         ///< the line being drawn was started with the curve box checked
    std::int16_t lineTool = 0;       ///< tool that started the line
    std::int16_t editLineIndex = -1; ///< the line being drawn

    std::int16_t pickedOff = -1;
    std::int16_t pickedDef = -1;
    std::int16_t pickedBall = -1;
    /// The players picked while Shift was held; 0, which counts as picked, until the first release.
    std::int16_t groupOff = 0;
    std::int16_t groupDef = 0;
    /// While a hand is dragged: 100 + index of an offence player, 200 + index of a defence player.
    std::int16_t rotatePick = -1;

    /// Picked player's position minus pointer. `grabDX` is also the angle reached while a hand is dragged.
    std::int16_t grabDX = 0;
    std::int16_t grabDY = 0;
    std::int16_t originX = 0; ///< picked player's position at the press
    std::int16_t originY = 0;
    std::int16_t ballGrabDX = 0;
    std::int16_t ballGrabDY = 0;
    std::int16_t ballOriginX = 0;
    std::int16_t ballOriginY = 0;

    bool shadowSizing = false; ///< the shadow being added is between its two clicks

    /// `Tag`s of the pose panel: `pBodyTool(0)` holds the side, "off" or "def", `pBodyTool(1)` the player's
    /// index as text. Both are empty while the panel is closed.
    std::string bodyToolSide;
    std::string bodyToolIndex;

    friend bool operator==(const EditorState&, const EditorState&) = default;
};

} // namespace zeltrona::editor
