#pragma once

#include <QIcon>

class QColor;

namespace zeltrona::platform {

/// A square of a colour for the button that chooses it, 16 pixels a side. Its grey edge keeps white on a
/// light button and black on a dark one from vanishing.
QIcon swatch(const QColor& color);

} // namespace zeltrona::platform
