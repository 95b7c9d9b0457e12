#pragma once

#include "core/adodb/StoredText.h"
#include "core/RunTimeError.h"

#include <QString>
#include <optional>

/// The text that the fuzzer made; unpaired surrogates occur in it.
inline QString TextOf(const uint8_t* data, size_t size)
{
    return FromStored(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// Ends the run with a finding when something that must hold does not.
inline void Demand(bool holds, const char* what)
{
    if (!holds)
        qFatal("It does not hold that %s", what);
}

/// What a call gives, or nothing where it raises a run-time error of one of these numbers; any other error is a
/// finding.
template <typename Call, typename... Numbers>
auto Attempt(Call&& call, Numbers... allowed) -> std::optional<decltype(call())>
{
    try {
        return call();
    } catch (const RunTimeError& error) {
        Demand(((error.Number() == allowed) || ...), "only the errors that were announced are raised");
        return std::nullopt;
    }
}
