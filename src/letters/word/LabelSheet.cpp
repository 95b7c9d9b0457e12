#include "letters/word/LabelSheet.h"

#include "letters/word/Errors.h"

#include <QFile>
#include <QStringList>
#include <array>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

/// The columns of the table behind the two names, in their order.
constexpr std::array columns{&LabelSheet::Across,    &LabelSheet::Down,      &LabelSheet::Width,  &LabelSheet::Height,
                             &LabelSheet::Left,      &LabelSheet::Top,       &LabelSheet::PitchH, &LabelSheet::PitchV,
                             &LabelSheet::PageWidth, &LabelSheet::PageHeight};

} // namespace

LabelSheet FindLabelSheet(const QString& brand, const QString& number)
{
    QFile table(u":/labels/geometry.csv"_s);
    if (!table.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::FileNotFound);
    const QString wanted = brand + u',' + number + u',';
    while (!table.atEnd()) {
        const QString line = QString::fromUtf8(table.readLine());
        if (number.isEmpty() || !line.startsWith(wanted))
            continue;
        const QStringList values = line.mid(wanted.size()).split(u',');
        LabelSheet sheet;
        for (std::size_t i = 0; i < columns.size(); ++i)
            sheet.*columns[i] = values.value(static_cast<qsizetype>(i)).toInt();
        return sheet;
    }
    throw RunTimeError(Error::NoSuchLabel, number.isEmpty()
                                               ? u"I do not know which label to print on: no label has been chosen."_s
                                               : u"I do not know a label \"%1\" of \"%2\"."_s.arg(number, brand));
}

} // namespace Word
