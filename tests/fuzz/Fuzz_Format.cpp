#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Format.h"

#include "Fuzz.h"

#include <algorithm>

namespace {

void FillsEveryPlace(const QString& digits, const QString& mask)
{
    const auto places = std::ranges::count_if(mask, [](QChar c) { return c == u'#' || c == u'0'; });
    Demand(FillMask(digits, mask).size() == mask.size() - places + digits.size(), "a mask loses no digit");
}

void KeepsTheValue(const QString& text)
{
    const auto amount =
        Attempt([&] { return CCur(text); }, ErrorNumber::TypeMismatch, ErrorNumber::Overflow).value_or(Currency());
    Demand(CCur(Format(amount, u"$###,##0.0000")) == amount, "a masked amount is the same amount");
    if (const auto date = ParseDate(text))
        Demand(CStr(CDate(Format(*date, u"mm/dd/yyyy hh:NN:SS am/pm"))) == CStr(*date) ||
                   PartsOf(*date)->DayNumber == 0,
               "a masked date is the same date");
}

} // namespace

/// The first line is the mask, the rest the text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString input = TextOf(data, size);
    const QString mask = input.section(u'\n', 0, 0);
    const QString text = input.section(u'\n', 1);
    const QString masked = Format(text, mask);
    Demand(IsNumeric(text) || IsDate(text) || masked == text, "what is neither number nor date stays as it is");
    (void)Format(Val(text), mask);
    (void)Format(Date(Val(text)), mask);
    FillsEveryPlace(text, mask);
    KeepsTheValue(text);
    return 0;
}
