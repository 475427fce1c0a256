#pragma once

#include "document/frame_records.h"
#include "document/session.h"
#include "render/board_art.h"
#include "render/board_surface.h"
#include "render/working_surfaces.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zeltrona::render {

/// Everything that painting touches: the surface, the art, whom to tell of a failed drawing, and the surfaces
/// on which a player is put together. Keep one for as long as its surface lives: what was shaped for one
/// redraw serves the next.
struct Board {
    BoardSurface& pic;
    const BoardArt& art;
    /// Gets "Drawing error." or "Low level Drawing error.", once for each player that fails; the window shows
    /// it, other callers may leave it empty.
    std::function<void(const char* text)> onDrawingError = {};
    WorkingSurfaces work = {};
};

/// What a redraw shows.
struct Scene {
    const document::Session& session;
    const document::FrameRecords& frame;
    std::int16_t editLineIndex = -1; ///< line under construction, -1 for none
};

/// Bytes of the play as characters for printing.
QString decodeText(const std::string& bytes, std::int16_t charset);

} // namespace zeltrona::render
