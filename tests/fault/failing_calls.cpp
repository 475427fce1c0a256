#include "tests/fault/failing_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

struct Plan {
    bool counting = false;
    std::vector<std::string> seen;
    int failPlace = -1;
    int failError = 0;
    int repeats = 0;
    bool failed = false;
    long longestWrite = 0;
    int emptyWrites = 0;
    int place = 0;
};

Plan& plan() {
    static Plan thePlan;
    return thePlan;
}

// Whether the call that comes now is to fail; errno is set then.
bool failsNow(const char* name) {
    Plan& now = plan();
    if (now.counting) {
        now.seen.emplace_back(name);
    }
    if (now.failPlace < 0 || now.place++ != now.failPlace) {
        return false;
    }
    now.failed = true;
    errno = now.failError;
    if (--now.repeats > 0) {
        now.place = now.failPlace; // the next try is the same call
    }
    return true;
}

template<typename Function> Function* systemCall(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

// Whether the write that comes now takes nothing.
bool isEmptyNow() {
    Plan& now = plan();
    if (now.emptyWrites == 0) {
        return false;
    }
    --now.emptyWrites;
    now.failed = true;
    return true;
}

long shortened(size_t size) {
    const long wanted = static_cast<long>(size);
    return plan().longestWrite > 0 ? std::min(wanted, plan().longestWrite) : wanted;
}

} // namespace

namespace zeltrona::tests {

void startCounting() {
    plan() = {};
    plan().counting = true;
}

std::vector<std::string> stopCounting() {
    plan().counting = false;
    return plan().seen;
}

void failCall(int place, int error) {
    plan() = {};
    plan().failPlace = place;
    plan().failError = error;
    plan().repeats = error == EINTR ? 3 : 1;
}

void shortenWrites(long bytes) {
    plan() = {};
    plan().longestWrite = bytes;
}

void emptyWrites() {
    plan() = {};
    plan().emptyWrites = 100;
}

bool endFailures() {
    const bool failed = plan().failed;
    plan() = {};
    return failed;
}

} // namespace zeltrona::tests

// The calls of the read and write path. The system's headers fix their shapes.
extern "C" {

int open(const char* path, int flags, ...) {
    static auto* const real = systemCall<int(const char*, int, ...)>("open");
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    return failsNow("open") ? -1 : real(path, flags, mode);
}

int mkostemp(char* pattern, int flags) {
    static auto* const real = systemCall<int(char*, int)>("mkostemp");
    if (failsNow("mkostemp")) {
        const std::string used(pattern);
        used.copy(pattern, used.size() - 6);
        std::fill_n(pattern + used.size() - 6, 6, 'q'); // as the system leaves it
        return -1;
    }
    return real(pattern, flags);
}

int stat(const char* path, struct stat* status) noexcept {
    static auto* const real = systemCall<int(const char*, struct stat*)>("stat");
    return failsNow("stat") ? -1 : real(path, status);
}

int fstat(int file, struct stat* status) noexcept {
    static auto* const real = systemCall<int(int, struct stat*)>("fstat");
    return failsNow("fstat") ? -1 : real(file, status);
}

int access(const char* path, int mode) noexcept {
    static auto* const real = systemCall<int(const char*, int)>("access");
    return failsNow("access") ? -1 : real(path, mode);
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    static auto* const real = systemCall<ssize_t(const char*, char*, size_t)>("readlink");
    return failsNow("readlink") ? -1 : real(path, target, size);
}

ssize_t read(int file, void* bytes, size_t size) {
    static auto* const real = systemCall<ssize_t(int, void*, size_t)>("read");
    return failsNow("read") ? -1 : real(file, bytes, size);
}

ssize_t write(int file, const void* bytes, size_t size) {
    static auto* const real = systemCall<ssize_t(int, const void*, size_t)>("write");
    if (failsNow("write")) {
        return -1;
    }
    return isEmptyNow() ? 0 : real(file, bytes, static_cast<size_t>(shortened(size)));
}

ssize_t writev(int file, const struct iovec* vectors, int count) {
    static auto* const real = systemCall<ssize_t(int, const struct iovec*, int)>("writev");
    if (failsNow("writev")) {
        return -1;
    }
    if (isEmptyNow()) {
        return 0;
    }
    if (plan().longestWrite > 0 && count > 0) {
        struct iovec first = vectors[0];
        first.iov_len = static_cast<size_t>(shortened(first.iov_len));
        return real(file, &first, 1);
    }
    return real(file, vectors, count);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    static auto* const real = systemCall<int(int, uid_t, gid_t)>("fchown");
    return failsNow("fchown") ? -1 : real(file, owner, group);
}

int fchmod(int file, mode_t mode) noexcept {
    static auto* const real = systemCall<int(int, mode_t)>("fchmod");
    return failsNow("fchmod") ? -1 : real(file, mode);
}

int futimens(int file, const struct timespec times[2]) noexcept {
    static auto* const real = systemCall<int(int, const struct timespec[2])>("futimens");
    return failsNow("futimens") ? -1 : real(file, times);
}

int fsync(int file) {
    static auto* const real = systemCall<int(int)>("fsync");
    return failsNow("fsync") ? -1 : real(file);
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = systemCall<int(const char*, const char*)>("rename");
    return failsNow("rename") ? -1 : real(from, to);
}

int unlink(const char* path) noexcept {
    static auto* const real = systemCall<int(const char*)>("unlink");
    return failsNow("unlink") ? -1 : real(path);
}

int flock(int file, int operation) noexcept {
    static auto* const real = systemCall<int(int, int)>("flock");
    return failsNow("flock") ? -1 : real(file, operation);
}

} // extern "C"
