#include "render/working_surfaces.h"

namespace zeltrona::render {

WorkingSurfaces::WorkingSurfaces() {
    // Copied onto the board before anything was drawn here, these two change nothing.
    pMask.setBackColor(0xFFFFFF);
    p.setBackColor(0);
}

} // namespace zeltrona::render
