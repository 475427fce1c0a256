#include "document/posix_calls.h"

#include <ctime>
#include <system_error>
#include <unistd.h>

namespace zeltrona::document::posix {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

} // namespace

Descriptor::~Descriptor() {
    if (isOpen()) {
        ::close(m_number);
    }
}

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

std::int64_t nanosecondsOf(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * kSecond + time.tv_nsec;
}

FileStamp stampOf(const struct stat& status) {
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::int64_t>(status.st_size), nanosecondsOf(status.st_mtim),
            nanosecondsOf(status.st_ctim)};
}

bool isSettled(const FileStamp& stamp) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    const std::int64_t age = nanosecondsOf(now) - stamp.modifiedNs;
    // A time far ahead comes from another machine's clock and says nothing about this moment.
    return age > 0 || age < -kSecond;
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace zeltrona::document::posix
