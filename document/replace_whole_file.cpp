#include "document/posix_calls.h"
#include "document/whole_file.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace zeltrona::document {
namespace {

using posix::Descriptor;
using posix::retry;

constexpr std::string_view kBesidePrefix = ".zeltrona-";

FileReplacement failure(int error) {
    FileReplacement result;
    result.reason = posix::reasonOf(error);
    return result;
}

// Where the links lead, the last of which may lead to nothing yet. Gives an error number.
int followLinks(std::string& path) {
    constexpr int kMostLinks = 40;
    for (int step = 0; step < kMostLinks; ++step) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0) {
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        }
        const std::string_view name(target.data(), static_cast<std::size_t>(length));
        const bool absolute = name.starts_with('/');
        path = absolute ? std::string(name) : posix::folderOf(path).append("/").append(name);
    }
    return ELOOP;
}

// The new file until it has the old one's name; removed again when it never gets it.
class FileBeside {
public:
    explicit FileBeside(const std::string& target)
        : m_path(posix::folderOf(target).append("/").append(kBesidePrefix).append("XXXXXX")),
          m_file(retry([this] { return ::mkostemp(m_path.data(), O_CLOEXEC); })),
          m_error(m_file.isOpen() ? 0 : errno) {}
    ~FileBeside() {
        if (m_file.isOpen() && !m_renamed) {
            ::unlink(m_path.c_str());
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    int error() const { return m_error; }
    int number() const { return m_file.number(); }
    int renameTo(const std::string& target) {
        m_renamed = retry([&] { return ::rename(m_path.c_str(), target.c_str()); }) == 0;
        return m_renamed ? 0 : errno;
    }

private:
    std::string m_path;
    Descriptor m_file;
    int m_error;
    bool m_renamed = false;
};

std::vector<iovec> vectorsOf(std::span<const std::string_view> pieces) {
    std::vector<iovec> vectors;
    vectors.reserve(pieces.size());
    for (const std::string_view piece : pieces) {
        if (!piece.empty()) {
            vectors.push_back({const_cast<char*>(piece.data()), piece.size()}); // only read from
        }
    }
    return vectors;
}

int writeAll(int file, std::span<const std::string_view> pieces) {
    std::vector<iovec> vectors = vectorsOf(pieces);
    std::size_t first = 0;
    while (first < vectors.size()) {
        const int count = static_cast<int>(std::min<std::size_t>(vectors.size() - first, IOV_MAX));
        const ssize_t written = retry([&] { return ::writev(file, vectors.data() + first, count); });
        if (written <= 0) {
            return written < 0 ? errno : EIO;
        }
        auto rest = static_cast<std::size_t>(written);
        while (first < vectors.size() && rest >= vectors[first].iov_len) {
            rest -= vectors[first].iov_len;
            ++first;
        }
        if (rest > 0) {
            vectors[first].iov_base = static_cast<char*>(vectors[first].iov_base) + rest;
            vectors[first].iov_len -= rest;
        }
    }
    return 0;
}

// The rights a file made anew gets from the user's mask.
mode_t usualMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Owner and group first, since a change of owner may take rights away. That they cannot be kept is no
// failure: the play then belongs to who saved it.
int takeRights(int file, const struct stat* old) {
    mode_t mode = usualMode();
    if (old != nullptr) {
        mode = old->st_mode & 07777;
        if (::fchown(file, old->st_uid, old->st_gid) != 0
            && ::fchown(file, static_cast<uid_t>(-1), old->st_gid) != 0) {
            mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
        }
    }
    return retry([&] { return ::fchmod(file, mode); }) == 0 ? 0 : errno;
}

// Some file systems have no flush for folders; they keep names safe by other means.
int flushFolder(const Descriptor& folder) {
    if (retry([&] { return ::fsync(folder.number()); }) == 0) {
        return 0;
    }
    return errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

// What must be known of the old file before anything is written. Gives an error number.
int lookAtOld(const std::string& target, struct stat& old, bool& exists) {
    exists = retry([&] { return ::stat(target.c_str(), &old); }) == 0;
    if (!exists) {
        return errno == ENOENT ? 0 : errno;
    }
    if (!S_ISREG(old.st_mode)) {
        return S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
    }
    return ::access(target.c_str(), W_OK) == 0 ? 0 : errno;
}

int fillBeside(const FileBeside& beside, std::span<const std::string_view> pieces, const struct stat* old) {
    if (beside.error() != 0) {
        return beside.error();
    }
    if (const int error = writeAll(beside.number(), pieces); error != 0) {
        return error;
    }
    if (const int error = takeRights(beside.number(), old); error != 0) {
        return error;
    }
    return retry([&] { return ::fsync(beside.number()); }) == 0 ? 0 : errno;
}

FileStamp stampNow(const FileBeside& beside) {
    struct stat status {};
    return ::fstat(beside.number(), &status) == 0 ? posix::stampOf(status) : FileStamp{};
}

bool isLeftover(const Descriptor& folder, const std::string& name) {
    constexpr time_t kHour = 3600;
    struct stat status {};
    return name.starts_with(kBesidePrefix) && name.size() == kBesidePrefix.size() + 6
           && ::fstatat(folder.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0
           && S_ISREG(status.st_mode) && ::time(nullptr) - status.st_mtime > kHour;
}

} // namespace

FileReplacement replaceWholeFile(const std::string& path, std::span<const std::string_view> pieces) {
    std::string target = path;
    struct stat old {};
    bool exists = false;
    if (target.empty() || target.find('\0') != std::string::npos) {
        return failure(target.empty() ? ENOENT : EINVAL);
    }
    if (const int error = followLinks(target); error != 0) {
        return failure(error);
    }
    if (const int error = lookAtOld(target, old, exists); error != 0) {
        return failure(error);
    }
    const Descriptor folder(
        retry([&] { return ::open(posix::folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!folder.isOpen()) {
        return failure(errno);
    }
    FileBeside beside(target);
    if (const int error = fillBeside(beside, pieces, exists ? &old : nullptr); error != 0) {
        return failure(error);
    }
    FileReplacement result;
    const FileStamp written = stampNow(beside);
    const bool settled = posix::isSettled(written);
    if (const int error = beside.renameTo(target); error != 0) {
        return failure(error);
    }
    if (const int error = flushFolder(folder); error != 0) {
        result.reason = posix::reasonOf(error);
    }
    // The new name is another change of the file, though not of its content: had that changed too, it was
    // others.
    result.stamp = stampNow(beside);
    result.settled =
        settled && result.stamp.modifiedNs == written.modifiedNs && result.stamp.size == written.size;
    return result;
}

void removeLeftovers(const std::string& path) {
    std::string target = path;
    if (followLinks(target) != 0) {
        return;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(posix::folderOf(target).c_str()),
                                                      &::closedir);
    if (!listing) {
        return;
    }
    const Descriptor folder(::dup(::dirfd(listing.get())));
    while (const dirent* entry = ::readdir(listing.get())) {
        const std::string name(entry->d_name);
        if (isLeftover(folder, name)) {
            ::unlinkat(folder.number(), name.c_str(), 0);
        }
    }
}

} // namespace zeltrona::document
