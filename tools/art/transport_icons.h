#pragma once

#include "tools/art/vector_picture.h"

#include <string>

namespace zeltrona::art {

/// A named sign on the 20 x 20 grid of the toolbox.
struct Icon {
    std::string name;
    std::vector<Shape> shapes;
};

/// The signs of transport, sequence, preview and court stepping, in one ink.
std::vector<Icon> transportIcons(const QColor& ink);

} // namespace zeltrona::art
