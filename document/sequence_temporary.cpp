#include "document/sequence_rewrite.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace zeltrona::document {

namespace {

namespace fs = std::filesystem;

std::string lastError() {
    const int error = errno != 0 ? errno : EIO;
    return std::generic_category().message(error);
}

/// The temporary file, gone when this is. One that an earlier run left behind makes way; nothing is ever
/// written through a link or into a pipe of that name.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& path) : m_path(path) {
        std::error_code ignored;
        if (!fs::is_directory(path, ignored)) {
            fs::remove(path, ignored);
        }
        m_file = std::fopen(path.c_str(), "w+bx");
    }
    ~TemporaryFile() {
        if (m_file != nullptr) {
            std::fclose(m_file);
            std::error_code ignored;
            fs::remove(m_path, ignored);
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// What the file holds after `bytes` have gone through it; nothing on failure.
    std::optional<std::string> carry(const std::string& bytes) {
        if (m_file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), m_file) != bytes.size()
            || std::fflush(m_file) != 0) {
            return std::nullopt;
        }
        std::rewind(m_file);
        std::string copied(bytes.size(), '\0');
        if (std::fread(copied.data(), 1, copied.size(), m_file) != copied.size()) {
            return std::nullopt;
        }
        return copied;
    }

private:
    fs::path m_path;
    std::FILE* m_file = nullptr;
};

/// Where the temporary file may stand, the first choice first. A play of that very name is no place for it.
std::vector<fs::path> temporaryPaths(const PlayFile& play, const std::string& programFolder) {
    const fs::path playPath(play.path());
    std::vector<fs::path> paths;
    const auto addFolder = [&](const fs::path& folder) {
        const fs::path path = folder / kTemporaryName;
        std::error_code none;
        if (!fs::equivalent(path, playPath, none)) {
            paths.push_back(path);
        }
    };
    if (!programFolder.empty()) {
        addFolder(programFolder);
    }
    addFolder(playPath.parent_path());
    return paths;
}

} // namespace

WriteResult replaceThroughTemporary(PlayFile& play, const std::string& bytes,
                                    const std::string& programFolder) {
    const std::vector<fs::path> paths = temporaryPaths(play, programFolder);
    if (paths.empty()) {
        return play.replaceAll(bytes);
    }
    WriteResult failed;
    for (const fs::path& path : paths) {
        errno = 0;
        TemporaryFile temporary(path);
        if (std::optional<std::string> copied = temporary.carry(bytes)) {
            return play.replaceAll(std::move(*copied));
        }
        failed.reason = lastError();
    }
    return failed;
}

} // namespace zeltrona::document
