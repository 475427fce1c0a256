#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzz target at the input that breaks the promise, in every kind of build.
#define FUZZ_CHECK(promise)                                                            \
    do {                                                                               \
        if (!(promise)) {                                                              \
            std::fprintf(stderr, "%s:%d: broken: %s\n", __FILE__, __LINE__, #promise); \
            std::abort();                                                              \
        }                                                                              \
    } while (false)
