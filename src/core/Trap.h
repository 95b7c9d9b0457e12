#pragma once

#include "core/RunTimeError.h"
#include "core/User.h"

#include <QString>
#include <type_traits>

/// Shows the error report: the description as text; the procedure's tag, followed at once by the number, as title.
void ReportError(const RunTimeError& error, const QString& tag, Icon icon);

/// Runs the body of a procedure under its error trap. A run-time error ends the body where it was, is reported once
/// under `tag`, and the procedure gives its default (0, "", false or nothing). What the body had done stays done.
template <typename Body>
auto Trap(const QString& tag, Icon icon, Body&& body) -> std::invoke_result_t<Body>
{
    using Result = std::invoke_result_t<Body>;
    try {
        return std::forward<Body>(body)();
    } catch (const RunTimeError& error) {
        ReportError(error, tag, icon);
    } catch (const std::bad_alloc&) {
        ReportError(RunTimeError(ErrorNumber::OutOfMemory), tag, icon);
    }
    if constexpr (!std::is_void_v<Result>)
        return Result{};
}

/// The same, with `after` run once the report has been read.
template <typename Body, typename After>
void TrapThen(const QString& tag, Icon icon, Body&& body, After&& after)
{
    const bool completed = Trap(tag, icon, [&] {
        std::forward<Body>(body)();
        return true;
    });
    if (!completed)
        std::forward<After>(after)();
}
