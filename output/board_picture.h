#pragma once

#include <QImage>
#include <QString>

namespace zeltrona::output {

/// Saves the picture as a 24-bit bitmap, bottom row first. An old file is replaced whole or not at all.
/// Errors: false when the file cannot be written; nothing of it stays behind.
bool saveBitmap(const QImage& picture, const QString& path);

} // namespace zeltrona::output
