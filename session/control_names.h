#pragma once

#include <QString>
#include <QWidget>

namespace zeltrona::session {

/// Gives a control its interface name and its name in plain words for assistive programs.
template<class T> T* named(T* control, const QString& name, const QString& accessible) {
    control->setObjectName(name);
    control->setAccessibleName(accessible);
    return control;
}
template<class T> T* named(T* control, const char* name, const char* accessible) {
    return named(control, QString::fromLatin1(name), QString::fromLatin1(accessible));
}

} // namespace zeltrona::session
