#include "tools/zpf/output_target.h"

#include "document/whole_file.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <filesystem>

namespace zeltrona::zpf {

OutputTarget::OutputTarget(const Arguments& arguments, std::initializer_list<const char*> endings)
    : m_name(QFile::decodeName(arguments.valueOf("output", ".").c_str())),
      m_plays(arguments.operands.size()) {
    m_isFile = std::any_of(endings.begin(), endings.end(), [this](const char* ending) {
        return m_name.endsWith(QLatin1String(ending), Qt::CaseInsensitive) && !QFileInfo(m_name).isDir();
    });
    for (const std::string& play : arguments.operands) {
        const document::FileLook look = document::lookAtFile(play);
        if (look.standing == document::FileStanding::Readable) {
            m_playFiles.emplace(look.stamp.device, look.stamp.inode);
        }
    }
}

std::string OutputTarget::fault() const {
    if (m_name.isEmpty()) {
        return "the output has no name";
    }
    return m_isFile && m_plays > 1 ? "several plays do not fit into one file; name a folder" : "";
}

std::string OutputTarget::makeFolder(const QString& folder) {
    const std::string name = QFile::encodeName(folder).toStdString();
    std::error_code failure;
    std::filesystem::create_directories(name, failure);
    return failure ? "cannot make the folder " + name + ": " + failure.message() : "";
}

std::string OutputTarget::refusal(const QString& result) const {
    const std::string name = QFile::encodeName(result).toStdString();
    const document::FileLook look = document::lookAtFile(name);
    const bool isPlay = look.standing == document::FileStanding::Readable
                        && m_playFiles.contains({look.stamp.device, look.stamp.inode});
    return isPlay ? name + ": would be written over a play" : "";
}

std::string OutputTarget::write(const QString& result, const QByteArray& bytes) const {
    if (std::string reason = refusal(result); !reason.empty()) {
        return reason;
    }
    const std::string name = QFile::encodeName(result).toStdString();
    const std::string_view piece(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const std::string reason = document::replaceWholeFile(name, std::array{piece}).reason;
    return reason.empty() ? "" : name + ": " + reason;
}

std::string OutputTarget::claim(const QString& play) {
    return m_claimed.insert(baseOf(play)).second ? "" : "another play of this name went before it";
}

QString OutputTarget::baseOf(const QString& play) {
    return QFileInfo(play).completeBaseName();
}

} // namespace zeltrona::zpf
