#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the run with a report when a property does not hold, so that the fuzzer keeps the input.
inline void Check(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "property failed: %s\n", property);
        std::abort();
    }
}
