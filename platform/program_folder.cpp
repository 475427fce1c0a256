#include "platform/program_folder.h"

#include <QCoreApplication>

namespace zeltrona::platform {

QString programFolder() {
    return QCoreApplication::applicationDirPath();
}

QString playsFolder() {
    return programFolder() + QStringLiteral("/Files");
}

} // namespace zeltrona::platform
