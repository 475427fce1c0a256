#include "document/file_beside.h"
#include "document/posix_calls.h"
#include "document/whole_file.h"

#include <array>
#include <climits>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <unistd.h>

namespace zeltrona::document {
namespace {

using posix::Descriptor;
using posix::retry;

FileReplacement failure(int error) {
    FileReplacement result;
    result.reason = posix::reasonOf(error);
    return result;
}

// Where the links lead, the last of which may lead to nothing yet. Gives an error number.
int followLinks(std::string& path) {
    constexpr int kMostLinks = 40;
    if (path.empty() || path.find('\0') != std::string::npos) {
        return path.empty() ? ENOENT : EINVAL;
    }
    for (int step = 0; step < kMostLinks; ++step) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = retry([&] { return ::readlink(path.c_str(), target.data(), target.size()); });
        if (length < 0) {
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        }
        const std::string_view name(target.data(), static_cast<std::size_t>(length));
        path = name.starts_with('/') ? std::string(name) : posix::folderOf(path).append("/").append(name);
    }
    return ELOOP;
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
    return retry([&] { return ::access(target.c_str(), W_OK); }) == 0 ? 0 : errno;
}

// Some file systems have no flush for folders; they keep names safe by other means.
int flushFolder(const Descriptor& folder) {
    if (retry([&] { return ::fsync(folder.number()); }) == 0) {
        return 0;
    }
    return errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

FileReplacement writeBeside(const std::string& target, const struct stat* old,
                            std::span<const std::string_view> pieces) {
    const Descriptor folder(
        retry([&] { return ::open(posix::folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!folder.isOpen()) {
        return failure(errno);
    }
    FileBeside beside(target);
    int error = beside.error();
    error = error != 0 ? error : beside.write(pieces);
    error = error != 0 ? error : beside.takeRights(old);
    const std::int64_t time = error != 0 ? 0 : beside.setTellingTime();
    error = error != 0 ? error : beside.flush();
    error = error != 0 ? error : beside.renameTo(target);
    if (error != 0) {
        return failure(error);
    }
    error = flushFolder(folder);
    FileReplacement result = error == 0 ? FileReplacement{} : failure(error);
    result.stamp = beside.stamp();
    result.settled = result.stamp.modifiedNs == time;
    return result;
}

bool isLeftover(const Descriptor& folder, const std::string& name) {
    constexpr time_t kHour = 3600;
    struct stat status {};
    return FileBeside::isNameOfOne(name)
           && ::fstatat(folder.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0
           && S_ISREG(status.st_mode) && ::time(nullptr) - status.st_mtime > kHour;
}

} // namespace

FileReplacement replaceWholeFile(const std::string& path, std::span<const std::string_view> pieces) {
    std::string target = path;
    if (const int error = followLinks(target); error != 0) {
        return failure(error);
    }
    struct stat old {};
    bool exists = false;
    if (const int error = lookAtOld(target, old, exists); error != 0) {
        return failure(error);
    }
    return writeBeside(target, exists ? &old : nullptr, pieces);
}

std::string refusalToReplace(const std::string& path) {
    std::string target = path;
    struct stat old {};
    bool exists = false;
    int error = followLinks(target);
    error = error != 0 ? error : lookAtOld(target, old, exists);
    if (error == 0 && ::access(posix::folderOf(target).c_str(), W_OK | X_OK) != 0) {
        error = errno;
    }
    return error == 0 ? std::string() : posix::reasonOf(error);
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
