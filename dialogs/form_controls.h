#pragma once

#include <QLatin1String>
#include <QString>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace zeltrona::dialogs {

/// The grid of every window: 8 between controls, 12 at edges and between groups.
inline constexpr int kGap = 8;
inline constexpr int kEdge = 12;

/// Gives a control its interface name, and its name in plain words for those who do not see it.
template<class Control> Control* named(Control* control, const QString& name, const QString& plainWords) {
    control->setObjectName(name);
    control->setAccessibleName(plainWords);
    return control;
}

/// Lets Return press `next`, in a plain window that knows no default button by itself. A button that has
/// the focus is pressed in its place. False where the key is another one.
bool pressOnReturn(const QWidget& window, QAbstractButton& next, const QKeyEvent& event);

} // namespace zeltrona::dialogs
