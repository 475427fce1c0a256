#pragma once

#include <QImage>

namespace zeltrona::platform {

/// Empties the clipboard and puts the picture there.
void copyPicture(const QImage& picture);

} // namespace zeltrona::platform
