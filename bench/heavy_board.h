#pragma once

#include "document/frame_records.h"
#include "document/session.h"

namespace zeltrona::bench {

/// What a coach can put on a board at the worst, on a half court: 24 labelled bodies on parquet, 3 balls, 3
/// triangles, 3 shadows, 3 texts and 10 lines, each style straight and curved.
struct HeavyBoard {
    HeavyBoard();
    document::Session session;
    document::FrameRecords frame;
};

/// Ten wavy curves from end to end of a whole court, and nothing else.
struct WavyBoard {
    WavyBoard();
    document::Session session;
    document::FrameRecords frame;
};

} // namespace zeltrona::bench
