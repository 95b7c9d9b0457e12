#include "core/FieldRules.h"

#include "Fuzz.h"

namespace {

QString Without(QString text, QStringView signs)
{
    return text.removeIf([signs](QChar c) { return signs.contains(c); });
}

void CaretIsInTheText(const FieldText& field)
{
    Demand(field.SelStart >= 0 && field.SelStart <= field.Text.size(), "the caret stands in the text");
}

void PhoneIsMasked(const FieldText& field)
{
    constexpr QStringView signs = u"() -";
    const FieldText masked = FormatPhone(Key::Shift, field);
    CaretIsInTheText(masked);
    Demand(Without(masked.Text, signs) == Without(field.Text, signs), "the mask of a phone number loses no digit");
    Demand(FormatPhone(Key::Shift, masked) == masked, "a masked phone number stays as it is");
    Demand(FormatPhone(Key::Backspace, field) == field, "Backspace changes nothing");
}

void DateIsTidied(const FieldText& field)
{
    const FieldText tidied = DateFormat(field);
    CaretIsInTheText(tidied);
    Demand(tidied.Text.size() <= field.Text.size() + 3, "a tidied date grows by little");
    Demand(Without(tidied.Text, u"/0") == Without(field.Text, u"/0"), "a tidied date loses no digit");
}

/// Typed from left to right through the filter of a date field, as a person types.
void DateIsTyped(const QString& keys)
{
    FieldText field;
    for (const QChar key : keys) {
        if (!ValidDateChar(key.unicode(), field.Text) || key == QChar(Key::Backspace) || field.Text.size() >= 10)
            continue;
        field = DateFormat({field.Text + key, field.Text.size() + 1});
        CaretIsInTheText(field);
    }
}

void OthersAreTotal(const QString& text)
{
    Demand(Upper(text).size() == text.size() && Upper(Upper(text)) == Upper(text), "one letter becomes one letter");
    const auto bit = YesNoToBit(text);
    Demand(!bit || text == u" " || BitToYesNo(*bit) == text, "a flag is written as it is read");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextOf(data, size);
    const FieldText field{text, text.isEmpty() ? 0 : text.front().unicode() % (text.size() + 1)};
    PhoneIsMasked(field);
    DateIsTidied(field);
    DateIsTyped(text);
    OthersAreTotal(text);
    return 0;
}
