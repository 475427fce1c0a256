#pragma once

#include <QImage>

namespace zeltrona::art {

enum class BoardRun { Down, Across };

/// A maple floor of boards `boardWidth` pixels wide that run along the length of the court: down the picture
/// for a half court, across it for a whole one. Opaque. Colour: the middle between the two line colours, so
/// that black and white lines both read; board tones differ by at
///         most 4 per cent of lightness and the grain by less, so that nothing in it can be taken for a line.
QImage drawParquet(QSize size, BoardRun run, int boardWidth);

} // namespace zeltrona::art
