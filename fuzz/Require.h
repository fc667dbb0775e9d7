#pragma once

#include <cstdlib>

// Ends the run, so that the fuzzer keeps the input.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}
