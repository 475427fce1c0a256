#include "dialogs/form_controls.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace zeltrona::dialogs {

bool pressOnReturn(const QWidget& window, QAbstractButton& next, const QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) {
        return false;
    }
    QWidget* focus = window.focusWidget();
    auto* focused = qobject_cast<QAbstractButton*>(focus);
    // Options and check boxes are chosen with the space bar, as in any window.
    const bool pressable = qobject_cast<QPushButton*>(focus) || qobject_cast<QToolButton*>(focus);
    (pressable ? *focused : next).click();
    return true;
}

} // namespace zeltrona::dialogs
