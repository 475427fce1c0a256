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

/// Hands the address to the desktop's own opener, a program, without waiting for it. When it answers within
/// ten seconds that it can't (or can't be started), `advice` and the address are shown; later on it is the
/// browser that answers, and nothing is shown.
/// Reason: the toolkit starts that program as well but never asks how it went.
void openThrough(const QString& opener, QWidget* parent, const QString& address, const QString& advice);

} // namespace zeltrona::platform
