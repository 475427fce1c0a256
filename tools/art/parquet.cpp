#include "tools/art/parquet.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zeltrona::art {

namespace {

/// A well mixed number for a pair: the same floor on every machine and at every run.
std::uint32_t mix(std::uint32_t a, std::uint32_t b) {
    std::uint32_t value = a * 0x9E3779B1U ^ (b + 0x7F4A7C15U) * 0x85EBCA6BU;
    value ^= value >> 15U;
    value *= 0x2C1B3C6DU;
    value ^= value >> 12U;
    value *= 0x297A2D39U;
    return value ^ (value >> 15U);
}

/// -1 to 1 in steps of 1/100.
double spread(std::uint32_t value) {
    return (static_cast<int>(value % 201U) - 100) / 100.0;
}

constexpr double kRed = 199.0;
constexpr double kGreen = 147.0;
constexpr double kBlue = 87.0;
constexpr double kToneSpread = 0.02;
constexpr double kWarmthSpread = 0.012;
constexpr double kGrainSpread = 0.010;
constexpr double kSeam = 0.915;
constexpr double kButt = 0.93;

QRgb shade(double light, double warmth) {
    const auto channel = [](double value) {
        return std::clamp(static_cast<int>(std::lround(value)), 0, 255);
    };
    return qRgb(channel(kRed * light), channel(kGreen * light), channel(kBlue * (light - warmth)));
}

/// The floor's colour at `along` the boards and `across` them.
QRgb floorAt(int along, int across, int boardWidth) {
    const auto row = static_cast<std::uint32_t>(across / boardWidth);
    const int boardLength = boardWidth * 9;
    // Ends step on by about three eighths of a board from row to row, so that no two neighbours end together.
    const int offset = static_cast<int>(row * static_cast<std::uint32_t>(boardLength * 3 / 8 + 1))
                       + static_cast<int>(mix(row, 2U) % static_cast<std::uint32_t>(boardWidth));
    const int place = along + offset;
    const std::uint32_t board = mix(row, static_cast<std::uint32_t>(place / boardLength) + 16U);
    const int inBoard = across % boardWidth;
    // Grain runs with the board: one tone for a thread of it, changing slowly along.
    const std::uint32_t thread =
        mix(board, static_cast<std::uint32_t>(inBoard) + 64U * static_cast<std::uint32_t>(place / 11));
    double light = 1.0 + kToneSpread * spread(board) + kGrainSpread * spread(thread);
    if (inBoard == 0) {
        light *= kSeam;
    } else if (place % boardLength == 0) {
        light *= kButt;
    }
    return shade(light, kWarmthSpread * spread(mix(board, 3U)));
}

} // namespace

QImage drawParquet(QSize size, BoardRun run, int boardWidth) {
    QImage floor(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            floor.setPixel(x, y,
                           run == BoardRun::Down ? floorAt(y, x, boardWidth) : floorAt(x, y, boardWidth));
        }
    }
    return floor;
}

} // namespace zeltrona::art
