#include "document/posix_calls.h"
#include "document/whole_file.h"

#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace zeltrona::document {
namespace {

using posix::Descriptor;
using posix::retry;

FileLook unreadable(int error) {
    FileLook look;
    look.standing = error == ENOENT ? FileStanding::Missing : FileStanding::Unreadable;
    look.reason = posix::reasonOf(error);
    return look;
}

FileLook lookFrom(const struct stat& status) {
    if (!S_ISREG(status.st_mode)) {
        FileLook look = unreadable(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
        if (!S_ISDIR(status.st_mode)) {
            look.reason = "Not a regular file";
        }
        return look;
    }
    if (status.st_size > kLongestFile) {
        return unreadable(EFBIG);
    }
    FileLook look;
    look.standing = FileStanding::Readable;
    look.stamp = posix::stampOf(status);
    look.settled = posix::isSettled(look.stamp);
    return look;
}

// Reads to the end, which another program may have moved since the size was asked for. Gives an error number.
int readToEnd(const Descriptor& file, std::string& bytes, std::size_t expected) {
    constexpr std::size_t kStep = 65'536;
    std::size_t filled = 0;
    bytes.resize(expected + 1);
    for (;;) {
        if (filled == bytes.size()) {
            bytes.resize(bytes.size() + kStep);
        }
        const ssize_t got =
            retry([&] { return ::read(file.number(), bytes.data() + filled, bytes.size() - filled); });
        if (got < 0) {
            return errno;
        }
        if (got == 0) {
            bytes.resize(filled);
            return 0;
        }
        filled += static_cast<std::size_t>(got);
        if (filled > static_cast<std::size_t>(kLongestFile)) {
            return EFBIG;
        }
    }
}

} // namespace

FileLook lookAtFile(const std::string& path) {
    struct stat status {};
    if (path.find('\0') != std::string::npos) {
        return unreadable(EINVAL);
    }
    return retry([&] { return ::stat(path.c_str(), &status); }) == 0 ? lookFrom(status) : unreadable(errno);
}

FileLook readWholeFile(const std::string& path) {
    FileLook look = lookAtFile(path);
    if (look.standing != FileStanding::Readable) {
        return look;
    }
    const Descriptor file(retry([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    struct stat status {};
    if (!file.isOpen() || retry([&] { return ::fstat(file.number(), &status); }) != 0) {
        return unreadable(errno);
    }
    look = lookFrom(status);
    if (look.standing != FileStanding::Readable) {
        return look;
    }
    const int error = readToEnd(file, look.bytes, static_cast<std::size_t>(status.st_size));
    return error == 0 ? look : unreadable(error);
}

} // namespace zeltrona::document
