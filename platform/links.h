#pragma once

#include <QString>

class QWidget;

namespace zeltrona::platform {

/// The address as the system gets it: with "http://" in front unless it begins with "http".
QString webAddress(const QString& url);
/// With "mailto:" in front unless it begins so.
QString mailAddress(const QString& address);

/// Hand the address to the user's browser or mail program; where there is none, a message asks the user to go
/// there. The message shows the address as it was tried.
void openWebPage(QWidget* parent, const QString& url);
void openMail(QWidget* parent, const QString& address);

} // namespace zeltrona::platform
