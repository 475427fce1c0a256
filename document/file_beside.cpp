#include "document/file_beside.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace zeltrona::document {
namespace {

using posix::retry;

constexpr std::string_view kPrefix = ".zeltrona-";
constexpr std::string_view kRandomPart = "XXXXXX";

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

// Takes so many bytes, fewer than there are, off the front.
void dropFront(std::span<iovec>& vectors, std::size_t count) {
    while (!vectors.empty() && count >= vectors.front().iov_len) {
        count -= vectors.front().iov_len;
        vectors = vectors.subspan(1);
    }
    if (count > 0) {
        vectors.front().iov_base = static_cast<char*>(vectors.front().iov_base) + count;
        vectors.front().iov_len -= count;
    }
}

// The rights a file made anew gets from the user's mask.
mode_t usualMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Whether both, or the group alone, could be kept.
bool keepOwner(int file, const struct stat& old) {
    const auto give = [&](uid_t owner) {
        return retry([&] { return ::fchown(file, owner, old.st_gid); }) == 0;
    };
    return give(old.st_uid) || give(static_cast<uid_t>(-1));
}

// Some file systems know no rights of single files; a save there is worth more than they are.
bool isWithoutRights(int error) {
    return error == EPERM || error == ENOTSUP || error == ENOSYS;
}

} // namespace

FileBeside::FileBeside(const std::string& target) {
    const std::string pattern = posix::folderOf(target).append("/").append(kPrefix).append(kRandomPart);
    // A call that was broken off has used the pattern up.
    m_file = posix::Descriptor(retry([&] {
        m_path = pattern;
        return ::mkostemp(m_path.data(), O_CLOEXEC);
    }));
    m_error = m_file.isOpen() ? 0 : errno;
}

FileBeside::~FileBeside() {
    if (m_file.isOpen() && !m_renamed) {
        retry([this] { return ::unlink(m_path.c_str()); });
    }
}

int FileBeside::write(std::span<const std::string_view> pieces) {
    std::vector<iovec> vectors = vectorsOf(pieces);
    std::span<iovec> rest(vectors);
    while (!rest.empty()) {
        const int count = static_cast<int>(std::min<std::size_t>(rest.size(), IOV_MAX));
        const ssize_t written = retry([&] { return ::writev(m_file.number(), rest.data(), count); });
        if (written <= 0) {
            return written < 0 ? errno : EIO;
        }
        dropFront(rest, static_cast<std::size_t>(written));
    }
    return 0;
}

int FileBeside::takeRights(const struct stat* old) {
    mode_t mode = usualMode();
    if (old != nullptr) {
        mode = old->st_mode & 07777;
        // The owner goes first, since a change of owner may take rights away. That it cannot be kept is no
        // failure: the file then belongs to who saved it, who must not lend it out to others.
        if (!keepOwner(m_file.number(), *old)) {
            mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
        }
    }
    const bool taken = retry([&] { return ::fchmod(m_file.number(), mode); }) == 0;
    return taken || isWithoutRights(errno) ? 0 : errno;
}

int FileBeside::flush() {
    return retry([&] { return ::fsync(m_file.number()); }) == 0 ? 0 : errno;
}

int FileBeside::renameTo(const std::string& target) {
    m_renamed = retry([&] { return ::rename(m_path.c_str(), target.c_str()); }) == 0;
    return m_renamed ? 0 : errno;
}

std::int64_t FileBeside::setTellingTime() {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::array<timespec, 2> accessAndChange = {now, now};
    const bool set = retry([&] { return ::futimens(m_file.number(), accessAndChange.data()); }) == 0;
    return set ? posix::nanosecondsOf(now) : 0;
}

FileStamp FileBeside::stamp() const {
    struct stat status {};
    const bool known = retry([&] { return ::fstat(m_file.number(), &status); }) == 0;
    return known ? posix::stampOf(status) : FileStamp{};
}

bool FileBeside::isNameOfOne(std::string_view name) {
    return name.starts_with(kPrefix) && name.size() == kPrefix.size() + kRandomPart.size();
}

} // namespace zeltrona::document
