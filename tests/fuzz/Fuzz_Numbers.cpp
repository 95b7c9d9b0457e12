#include "core/Convert.h"

#include "Fuzz.h"

#include <cmath>

namespace {

/// What is written is read as the same value, by each reader that the value came from.
template <typename Read>
void ReadsTheSameAgain(const QString& text, Read read, const char* what)
{
    const auto value = Attempt([&] { return read(text); }, ErrorNumber::TypeMismatch, ErrorNumber::Overflow);
    if (!value)
        return;
    const QString written = CStr(*value);
    // Rounded up to 15 digits, the largest numbers of all overflow.
    const auto again = Attempt([&] { return read(written); }, ErrorNumber::Overflow);
    Demand(again ? CStr(*again) == written : written.contains(QStringLiteral("1.79769313486232E+308")), what);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextOf(data, size);
    const bool numeric = IsNumeric(text);
    const auto number =
        Attempt([&] { return CDbl(text); }, numeric ? ErrorNumber::Overflow : ErrorNumber::TypeMismatch);
    Demand(numeric || !number, "only a number is read as one");
    Demand(!number || std::isfinite(*number), "a number is finite");
    ReadsTheSameAgain(
        text, [](const QString& t) { return CDbl(t); }, "a Double is read as it was written");
    ReadsTheSameAgain(
        text, [](const QString& t) { return CSng(t); }, "a Single is read as it was written");
    ReadsTheSameAgain(
        text, [](const QString& t) { return CLng(t); }, "a Long is read as it was written");
    ReadsTheSameAgain(
        text, [](const QString& t) { return CInt(t); }, "an Integer is read as it was written");
    ReadsTheSameAgain(
        text, [](const QString& t) { return CCur(t); }, "a Currency is read as it was written");

    const double loose = Val(text);
    Demand(std::isfinite(loose), "Val gives a finite number");
    const QString written = CStr(loose);
    const auto strict = Attempt([&] { return CDbl(written); }, ErrorNumber::Overflow);
    Demand(!strict || Val(written) == *strict, "both readers agree on a written number");
    return 0;
}
