#include "session/file_names.h"

#include <QFile>

namespace zeltrona::session {

std::string toPath(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

QString fromPath(const std::string& path) {
    return QFile::decodeName(path.c_str());
}

} // namespace zeltrona::session
