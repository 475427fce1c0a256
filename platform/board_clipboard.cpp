#include "platform/board_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zeltrona::platform {

void copyPicture(const QImage& picture) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    // A copy of its own: the board goes on drawing into its image.
    clipboard->setImage(picture.copy());
}

} // namespace zeltrona::platform
