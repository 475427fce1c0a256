#pragma once

#include "render/board.h"

#include <QPoint>
#include <QRect>

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace zeltrona::render {

inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kBlack = 0;
inline constexpr Color kRed = 0x0000FF;
inline constexpr Color kGreen = 0x00FF00;
inline constexpr Color kBlue = 0xFF0000;

/// Small plain pictures in place of the art, so that a test knows every pixel of them.
BoardArt makeTestArt();

/// A board with test art, and the words of every failed drawing.
struct TestBoard {
    BoardArt art = makeTestArt();
    BoardSurface pic;
    std::vector<std::string> errors;
    Board board{pic, art, [this](const char* text) { errors.emplace_back(text); }};

    explicit TestBoard(int width = 363, int height = 332) : pic(width, height) {}
};

/// Pixels of the surface that have the colour.
int countOf(const BoardSurface& surface, Color color);

/// The smallest rectangle around all pixels of the colour; empty when there is none.
QRect boundsOf(const BoardSurface& surface, Color color);

/// The smallest rectangle around all pixels that are not of the colour; empty when there is none.
QRect boundsOfOther(const BoardSurface& surface, Color color);

/// Every colour with the number of its pixels.
std::map<Color, int> coloursOf(const BoardSurface& surface);

/// The pixels where two surfaces of one size differ.
std::vector<QPoint> changedPixels(const BoardSurface& a, const BoardSurface& b);

} // namespace zeltrona::render
