#include "core/Strings.h"

#include "core/RunTimeError.h"

namespace {

void RequireStart(qsizetype start)
{
    if (start < 1)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void RequireLength(qsizetype length)
{
    if (length < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

} // namespace

qsizetype InStr(QStringView text, QStringView find)
{
    return InStr(1, text, find);
}

qsizetype InStr(qsizetype start, QStringView text, QStringView find, Qt::CaseSensitivity sensitivity)
{
    RequireStart(start);
    if (start > text.size())
        return 0;
    if (find.isEmpty())
        return start;
    // Letters fold one for one, so that a position in the folded text is a position in the text.
    return text.indexOf(find, start - 1, sensitivity) + 1;
}

QString Left(const QString& text, qsizetype length)
{
    RequireLength(length);
    return text.left(length);
}

QString Right(const QString& text, qsizetype length)
{
    RequireLength(length);
    return text.right(length);
}

QString Mid(const QString& text, qsizetype start)
{
    RequireStart(start);
    return text.mid(start - 1);
}

QString Mid(const QString& text, qsizetype start, qsizetype length)
{
    RequireStart(start);
    RequireLength(length);
    return text.mid(start - 1, length);
}

QString Trim(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ')
        ++begin;
    while (end > begin && text[end - 1] == u' ')
        --end;
    return end - begin == text.size() ? text : text.mid(begin, end - begin);
}

QString UCase(const QString& text)
{
    QString upper;
    upper.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            upper += QChar::fromUcs4(QChar::toUpper(QChar::surrogateToUcs4(c, text[++i])));
        else
            upper += c.toUpper();
    }
    return upper;
}

QString NameKey(const QString& name)
{
    return UCase(Trim(name));
}
