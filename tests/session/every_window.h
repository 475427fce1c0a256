#pragma once

#include <QWidget>

#include <functional>

namespace zeltrona::testing {

using LookAtWindow = std::function<void(QWidget& window)>;

/// Opens every window of the program in a language (0 English, 1 Serbian), one after the other, and hands
/// each to `look` while it is on the screen: the forms, the print preview, the help, a question, and the
/// common dialogs.
void forEveryWindow(int language, const LookAtWindow& look);

} // namespace zeltrona::testing
