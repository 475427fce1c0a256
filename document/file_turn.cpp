#include "document/file_turn.h"

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace zeltrona::document {
namespace {

using posix::Descriptor;
using posix::retry;

// The lock is on the file and not on its name: whoever waited while the file was replaced holds the old one.
bool stillHasTheName(const Descriptor& file, const std::string& path) {
    struct stat held {};
    struct stat named {};
    return retry([&] { return ::fstat(file.number(), &held); }) == 0
           && retry([&] { return ::stat(path.c_str(), &named); }) == 0 && held.st_dev == named.st_dev
           && held.st_ino == named.st_ino;
}

} // namespace

FileTurn FileTurn::take(const std::string& path) {
    constexpr auto kPatience = std::chrono::seconds(1);
    constexpr auto kStep = std::chrono::milliseconds(2);
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < kPatience) {
        if (lookAtFile(path).standing != FileStanding::Readable) {
            return {};
        }
        Descriptor file(retry([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
        if (!file.isOpen()) {
            return {};
        }
        if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR) {
                return {};
            }
            std::this_thread::sleep_for(kStep);
        } else if (stillHasTheName(file, path)) {
            return FileTurn(std::move(file));
        }
    }
    return {};
}

} // namespace zeltrona::document
