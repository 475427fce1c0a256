#pragma once

#include "render/pixel_view.h"

#include <string>
#include <vector>

namespace zeltrona::render {

/// A small white picture to draw on with black, and to look at as rows of text: '#' for a drawn pixel, '.'
/// for none,
/// '?' for a pixel of any other colour.
class Canvas {
public:
    Canvas(int width, int height, int padding = 0)
        : m_words(static_cast<std::size_t>((width + padding) * height), kWhite),
          m_width(width),
          m_height(height),
          m_stride(width + padding) {}

    static constexpr std::uint32_t kWhite = 0xFFFFFFFFU;
    static constexpr std::uint32_t kBlack = 0xFF000000U;

    PixelView view() { return {m_words.data(), m_width, m_height, m_stride}; }
    ConstPixelView source() const { return {m_words.data(), m_width, m_height, m_stride}; }
    bool drawn(int x, int y) const { return source().row(y)[x] == kBlack; }
    int count() const {
        int sum = 0;
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                sum += drawn(x, y) ? 1 : 0;
            }
        }
        return sum;
    }
    /// A line break stands before each row, so that expectations line up in a raw string.
    std::string text() const {
        std::string out = "\n";
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                const std::uint32_t pixel = source().row(y)[x];
                out += pixel == kBlack ? '#' : pixel == kWhite ? '.' : '?';
            }
            out += '\n';
        }
        return out;
    }

private:
    std::vector<std::uint32_t> m_words;
    int m_width;
    int m_height;
    int m_stride;
};

/// True when every drawn pixel can be reached from any other by steps to one of the eight neighbours.
inline bool isConnected(const Canvas& canvas, int width, int height) {
    std::vector<std::pair<int, int>> open;
    std::vector<bool> seen(static_cast<std::size_t>(width * height), false);
    const auto visit = [&](int x, int y) {
        const bool inside = x >= 0 && y >= 0 && x < width && y < height;
        if (inside && canvas.drawn(x, y) && !seen[static_cast<std::size_t>(y * width + x)]) {
            seen[static_cast<std::size_t>(y * width + x)] = true;
            open.emplace_back(x, y);
        }
    };
    for (int i = 0; i < width * height && open.empty(); ++i) {
        visit(i % width, i / width);
    }
    int reached = 0;
    while (!open.empty()) {
        const auto [x, y] = open.back();
        open.pop_back();
        ++reached;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                visit(x + dx, y + dy);
            }
        }
    }
    return reached == canvas.count();
}

} // namespace zeltrona::render
