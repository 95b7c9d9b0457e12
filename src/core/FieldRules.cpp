#include "core/FieldRules.h"

#include "core/Dates.h"
#include "core/Format.h"
#include "core/Strings.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// A toolkit's field holds its caret within its text.
FieldText WithCaret(QString text, qsizetype caret)
{
    const qsizetype within = std::min(caret, text.size());
    return {std::move(text), within};
}

/// The mask for so many digits of a phone number; "" where there is none.
QStringView PhoneMask(qsizetype digits)
{
    constexpr QStringView full = u"(###) ###-####";
    // The bracket closes and its blank follows at once behind the third digit; the dash waits for the seventh.
    constexpr std::array<qsizetype, 11> lengths{0, 2, 3, 6, 7, 8, 9, 11, 12, 13, 14};
    return digits < static_cast<qsizetype>(lengths.size()) ? full.first(lengths[static_cast<size_t>(digits)])
                                                           : QStringView();
}

} // namespace

FieldText FormatPhone(int keyCode, const FieldText& field)
{
    if (keyCode == Key::Backspace)
        return field;
    QString text = field.Text;
    text.removeIf([](QChar c) { return c == u'(' || c == u')' || c == u' ' || c == u'-'; });
    const QStringView mask = PhoneMask(text.size());
    // What is no digit text cannot be laid into a mask and stands as it is.
    if (!mask.isEmpty() && std::ranges::all_of(text, IsDigit))
        text = FillMask(text, mask);
    const qsizetype end = text.size();
    return WithCaret(std::move(text), end);
}

FieldText DateFormat(const FieldText& field)
{
    FieldText result = field;
    if (result.Text.size() == 2 && InStr(result.Text, u"/") == 0)
        result = WithCaret(result.Text + u'/', 4);
    if (result.Text.size() == 2 && InStr(result.Text, u"/") == 2)
        result = WithCaret(u'0' + result.Text, 4);
    if (result.Text.size() == 5 && result.Text[4] != u'/')
        result = WithCaret(result.Text + u'/', 6);
    if (result.Text.size() == 5 && InStr(4, result.Text, u"/") == 5)
        result = WithCaret(Left(result.Text, 3) + u'0' + Right(result.Text, 2), 6);
    return result;
}

bool ValidDateChar(int keyCode, QStringView textSoFar)
{
    if (keyCode == Key::Backspace)
        return true;
    if (keyCode == u'/')
        return textSoFar.size() == 4 || textSoFar.size() == 1;
    return keyCode >= u'0' && keyCode <= u'9';
}

bool IsAFutureDate(Date date)
{
    return date > TodayDate();
}

bool Numeric(int keyCode)
{
    return (keyCode >= u'0' && keyCode <= u'9') || keyCode == u'.' || keyCode == Key::Enter ||
           keyCode == Key::Backspace;
}

bool isCurrency(int keyCode)
{
    return Numeric(keyCode);
}

QString Upper(const QString& text)
{
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const qsizetype first = pair ? 2 : 1;
    return UCase(text.left(first)) + text.mid(first);
}

std::optional<QString> BitToYesNo(int code)
{
    switch (code) {
    case 0:
        return u""_s;
    case 1:
        return u"Yes"_s;
    case 2:
        return u"No"_s;
    default:
        return std::nullopt;
    }
}

std::optional<int> YesNoToBit(QStringView text)
{
    if (text.isEmpty() || text == u" ")
        return 0;
    if (text == u"Yes")
        return 1;
    if (text == u"No")
        return 2;
    return std::nullopt;
}
