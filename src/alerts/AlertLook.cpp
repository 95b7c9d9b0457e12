#include "alerts/AlertLook.h"

#include "core/Format.h"

#include <QWidget>

using namespace Qt::StringLiterals;

QString AlertDateText(Date date)
{
    return Format(date, u"mm/dd/yyyy");
}

QString AlertNoteText(const QString& note)
{
    return QString(note).remove("\r\n"_L1);
}

QString AlertIcon(Date date, Date today)
{
    if (date > today)
        return u"white"_s;
    return date == today ? u"red"_s : u"yellow"_s;
}

int DateColumnWidth(int width, const QWidget& control)
{
    constexpr int margin = 12;
    return std::max(width, control.fontMetrics().horizontalAdvance(u"00/00/0000"_s) + margin);
}
