#include "search/CheckCriterion.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Trap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype DateLength = 10;

/// The number at the start of a text, without sign or exponent; 0 where there is none.
double LeadingNumber(const QString& text)
{
    QString number;
    bool hasPoint = false;
    for (const QChar c : text) {
        if (c == u' ' && number.isEmpty())
            continue;
        const bool isPoint = c == u'.' && !hasPoint;
        if (!isPoint && (c < u'0' || c > u'9'))
            break;
        hasPoint |= isPoint;
        number += c;
    }
    return number.toDouble();
}

/// The date that a text names, or nothing: an error then waits until a value is compared with it.
std::optional<Date> DateOf(const QString& text)
{
    try {
        return CDate(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

Date Required(const std::optional<Date>& date)
{
    if (!date)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return *date;
}

} // namespace

Criterion::Criterion(const QString& text) : m_form(text.isEmpty() ? u'\0' : text[0].unicode()), m_rest(text)
{
    switch (m_form) {
    case u'=':
        m_rest.remove(u"= "_s);
        break;
    case u'<':
        m_rest.remove(u"< "_s);
        break;
    case u'M':
        m_threshold = LeadingNumber(m_rest.remove(u"More Than "_s).remove(u'$'));
        break;
    case u'F': {
        const QString from = m_rest.remove(u"From "_s).left(DateLength);
        m_from = DateOf(from);
        // Every occurrence goes, also the same date as the end of the range, which is meant.
        m_to = DateOf(m_rest.remove(from).remove(u"To "_s));
        break;
    }
    case u'A':
        m_from = DateOf(m_rest.remove(u"After "_s));
        break;
    case u'B':
        m_from = DateOf(m_rest.remove(u"Before "_s));
        break;
    default:
        break;
    }
}

bool Criterion::Holds(const QString& value) const
{
    if (value.isEmpty())
        return false;
    switch (m_form) {
    case u'=':
        return m_rest == value;
    case u'<':
        return value < m_rest;
    case u'M':
        return LeadingNumber(value) > m_threshold;
    case u'F': {
        const Date from = Required(m_from);
        const Date to = Required(m_to);
        const Date date = CDate(value);
        return from <= date && date <= to;
    }
    case u'A':
        return Required(m_from) < CDate(value);
    case u'B':
        return CDate(value) < Required(m_from);
    default:
        return false;
    }
}

bool CheckCriterion(const QString& value, const Criterion& criterion)
{
    return Trap(u" Error #"_s, Icon::Information, [&] { return criterion.Holds(value); });
}
