#include "dialogs/write_failure.h"

#include <QString>
#include <QWidget>

namespace zeltrona::dialogs {

bool showWriteFailure(QWidget& window, const document::WriteResult& result) {
    const QString sign = QStringLiteral(" - NOT SAVED: ");
    const QString title = window.windowTitle().section(sign, 0, 0);
    window.setWindowTitle(result.ok() ? title : title + sign + QString::fromStdString(result.reason));
    return result.ok();
}

} // namespace zeltrona::dialogs
