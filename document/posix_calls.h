#pragma once

#include "document/whole_file.h"

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace zeltrona::document::posix {

/// Repeats a call that a signal broke off.
template<typename Call> auto retry(Call&& call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// An open file, closed at the end of its scope.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

/// The operating system's words for an error number.
std::string reasonOf(int error);

std::int64_t nanosecondsOf(const timespec& time);
FileStamp stampOf(const struct stat& status);
/// Whether a change from now on is sure to carry another time than the one stamped.
bool isSettled(const FileStamp& stamp);

/// The folder of the path, "." when it names none.
std::string folderOf(const std::string& path);

} // namespace zeltrona::document::posix
