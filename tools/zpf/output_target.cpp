#include "tools/zpf/output_target.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace zeltrona::zpf {

OutputTarget::OutputTarget(const Arguments& arguments, std::initializer_list<const char*> endings)
    : m_name(QFile::decodeName(arguments.valueOf("output", ".").c_str())),
      m_plays(arguments.operands.size()) {
    m_isFile = std::any_of(endings.begin(), endings.end(), [this](const char* ending) {
        return m_name.endsWith(QLatin1String(ending), Qt::CaseInsensitive) && !QFileInfo(m_name).isDir();
    });
}

std::string OutputTarget::fault() const {
    if (m_name.isEmpty()) {
        return "the output has no name";
    }
    return m_isFile && m_plays > 1 ? "several plays do not fit into one file; name a folder" : "";
}

std::string OutputTarget::makeFolder(const QString& folder) {
    return QDir().mkpath(folder) ? "" : "cannot make the folder " + QFile::encodeName(folder).toStdString();
}

std::string OutputTarget::claim(const QString& play) {
    return m_claimed.insert(baseOf(play)).second ? "" : "another play of this name went before it";
}

QString OutputTarget::baseOf(const QString& play) {
    return QFileInfo(play).completeBaseName();
}

} // namespace zeltrona::zpf
