#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer, which then keeps the input, unless the condition holds.
inline void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not true: %s\n", what);
    std::abort();
}
