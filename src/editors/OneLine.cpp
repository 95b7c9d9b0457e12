#include "editors/OneLine.h"

#include <algorithm>

namespace {

bool IsBreak(QChar c)
{
    return c == u'\r' || c == u'\n' || c == u'\t' || c == u'\v' || c == u'\f' || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

} // namespace

Insertion FindInsertion(QStringView before, QStringView now)
{
    const qsizetype shorter = std::min(before.size(), now.size());
    qsizetype head = 0;
    while (head < shorter && before[head] == now[head])
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && before[before.size() - 1 - tail] == now[now.size() - 1 - tail])
        ++tail;
    return {head, now.mid(head, now.size() - head - tail).toString()};
}

QString OneLine(QString text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && IsBreak(text[first]))
        ++first;
    while (last > first && IsBreak(text[last - 1]))
        --last;
    text = text.mid(first, last - first);
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(text.begin(), text.end(), IsBreak, u' ');
    text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    return text;
}
