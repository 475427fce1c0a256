#include "document/posix_calls.h"
#include "document/sequence_rewrite.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace zeltrona::document {

namespace {

namespace fs = std::filesystem;

/// The temporary file, gone when this is. One that an earlier run left behind makes way; nothing is ever
/// written through a link or into a pipe of that name, and nobody else may read what it holds.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& path) : m_path(path) {
        ::unlink(path.c_str());
        m_file = posix::Descriptor(posix::retry([&] {
            return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
        }));
        m_openError = errno;
    }
    ~TemporaryFile() {
        if (m_file.isOpen()) {
            ::unlink(m_path.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Why the bytes cannot stand there; empty once they do.
    std::string fill(std::string_view bytes) {
        if (!m_file.isOpen()) {
            return posix::reasonOf(m_openError);
        }
        while (!bytes.empty()) {
            const auto written =
                posix::retry([&] { return ::write(m_file.number(), bytes.data(), bytes.size()); });
            if (written <= 0) {
                return posix::reasonOf(written < 0 ? errno : EIO);
            }
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return {};
    }

private:
    std::string m_path;
    posix::Descriptor m_file;
    int m_openError = 0;
};

/// Where the temporary file may stand, the first choice first. A play of that very name is no place for it.
std::vector<std::string> temporaryPaths(const PlayFile& play, const std::string& programFolder) {
    std::vector<std::string> paths;
    for (const std::string& folder : {programFolder, posix::folderOf(play.path())}) {
        const std::string path = folder + "/" + kTemporaryName;
        std::error_code none;
        if (!folder.empty() && !fs::equivalent(path, play.path(), none)) {
            paths.push_back(path);
        }
    }
    return paths;
}

} // namespace

WriteResult replaceThroughTemporary(PlayFile& play, std::string bytes, const std::string& programFolder) {
    std::string reason;
    for (const std::string& path : temporaryPaths(play, programFolder)) {
        TemporaryFile temporary(path);
        reason = temporary.fill(bytes);
        if (reason.empty()) {
            return play.replaceAll(std::move(bytes));
        }
    }
    return reason.empty() ? play.replaceAll(std::move(bytes)) : WriteResult{std::move(reason)};
}

} // namespace zeltrona::document
