#pragma once

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zeltrona::tests {

/// Runs `check` in a child that is a plain user, whom permissions bind as they do not bind root, and gives
/// whether it returned true.
template<typename Check> bool holdsForPlainUser(Check&& check) {
    constexpr uid_t kNobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        const bool plain = ::geteuid() != 0 || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
        ::_exit(plain && check() ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status)
           && WEXITSTATUS(status) == 0;
}

} // namespace zeltrona::tests
