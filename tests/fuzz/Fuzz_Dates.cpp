#include "core/Clock.h"
#include "core/Convert.h"
#include "core/Dates.h"

#include "Fuzz.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // A leap year, so that a finding does not depend on the day of the run.
    Clock::SetSource([] { return QDateTime(QDate(2028, 2, 29), QTime(12, 0)); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextOf(data, size);
    const auto parsed = ParseDate(text);
    Demand(IsDate(text) == parsed.has_value(), "IsDate knows what ParseDate reads");
    const auto date = Attempt([&] { return CDate(text); }, ErrorNumber::TypeMismatch);
    Demand(!parsed || date == parsed, "CDate reads every date");
    if (!date)
        return 0;

    const auto parts = PartsOf(*date);
    Demand(parts && parts->Seconds >= 0 && parts->Seconds < 86'400, "a date has a day and a time");
    Demand(ToDateTime(*date).isValid(), "a date is a moment of the calendar");
    const QString written = CStr(*date);
    const auto again = ParseDate(written);
    Demand(again.has_value(), "a written date can be read");
    const auto partsAgain = PartsOf(*again);
    Demand(partsAgain->DayNumber == parts->DayNumber && partsAgain->Seconds == parts->Seconds &&
               CStr(*again) == written,
           "a written date is the same date");
    Demand(CStr(ToDate(ToDateTime(*date))) == written, "the calendar gives the same date back");
    return 0;
}
