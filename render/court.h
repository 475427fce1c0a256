#pragma once

#include "document/session.h"
#include "render/board.h"

#include <QSize>

#include <cstdint>

namespace zeltrona::render {

/// Size of `pic` for a court: 532 x 295 for a whole court, else 363 x 332.
QSize boardSizeOf(std::int16_t court);

/// Background and court lines. The parquet lies on white and leaves the size of `pic`; a plain colour gives
/// `pic` the size of the court's family. A court outside 1 to 9 has no lines and changes neither size nor
/// parquet.
void drawCourt(Board& board, const document::Session& session);

} // namespace zeltrona::render
