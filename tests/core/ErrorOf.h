#pragma once

#include "core/RunTimeError.h"

/// The number of the run-time error that a call raises; 0 where it raises none.
template <typename Call>
int ErrorOf(Call&& call)
{
    try {
        static_cast<void>(call());
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}
