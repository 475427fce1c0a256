#include "platform/system_info.h"

#include <QProcess>
#include <QStandardPaths>

namespace zeltrona::platform {

bool startSystemInformation() {
    for (const char* name : {"kinfocenter", "hardinfo2", "hardinfo"}) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!program.isEmpty()) {
            return QProcess::startDetached(program, {});
        }
    }
    return false;
}

} // namespace zeltrona::platform
