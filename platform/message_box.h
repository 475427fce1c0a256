#pragma once

#include <QString>

class QWidget;

namespace zeltrona::platform {

enum class Icon { None, Information, Critical, Question };
enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

/// A modal message box of the toolkit (a QMessageBox with objectName "messageBox").
Answer showMessage(QWidget* parent, const QString& text, Icon icon = Icon::Information,
                   Buttons buttons = Buttons::Ok, const QString& title = QStringLiteral("Zeltrona"));

/// The report of a trapped error: title "Error", critical, number and description on lines of their own.
void showTrappedError(QWidget* parent, int number, const QString& description);

/// The run-time error box of a failure that nothing traps: title "Zeltrona", "Run-time error '9':", a blank
/// line and the description; critical.
void showRunTimeError(QWidget* parent, int number, const QString& description);

} // namespace zeltrona::platform
