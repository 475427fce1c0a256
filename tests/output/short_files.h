#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace zeltrona::tests {

/// While it lives no file of this process grows beyond so many bytes, as on a disk that is full by then.
class ShortFiles {
public:
    explicit ShortFiles(rlim_t bytes) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit limit{bytes, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~ShortFiles() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    ShortFiles(const ShortFiles&) = delete;
    ShortFiles& operator=(const ShortFiles&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace zeltrona::tests
