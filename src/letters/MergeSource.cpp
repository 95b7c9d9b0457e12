#include "letters/MergeSource.h"

#include "core/adodb/Recordset.h"
#include "core/CodePage.h"
#include "core/Format.h"
#include "core/RunTimeError.h"
#include "model/Contact.h"
#include "model/Lists.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto LineEnd = "\r\n"_L1;

constexpr std::array<std::pair<QLatin1StringView, int>, 4> listColumns{{{"MailState"_L1, ListField::State},
                                                                        {"State"_L1, ListField::State},
                                                                        {"PropType"_L1, ListField::PropType},
                                                                        {"RentalBasis"_L1, ListField::RentalBasis}}};

constexpr std::array moneyColumns{"AskingPrice"_L1, "SoldPrice"_L1};

QString TextOf(Recordset& rows, QLatin1StringView column)
{
    return rows.Fields(column).Get().Text();
}

QString LabelLine(Recordset& rows)
{
    Contact person;
    person.FirstName = TextOf(rows, "FirstName"_L1);
    person.LastName = TextOf(rows, "LastName"_L1);
    person.MI = TextOf(rows, "MI"_L1);
    // The comma of the state and the dash of the ZIP extension stand here and not in the layout, so that a contact
    // without them gets neither.
    const QString state = ListEntry(rows.Fields("MailState"_L1).Get().ToSingle(), ListField::State);
    const QString zip4 = TextOf(rows, "MailZip4"_L1);
    const QStringList values{FormatName(person),
                             TextOf(rows, "MailAddr1"_L1),
                             TextOf(rows, "MailAddr2"_L1),
                             TextOf(rows, "MailCity"_L1),
                             state.isEmpty() ? u" "_s : u", "_s + state,
                             TextOf(rows, "MailZip"_L1),
                             zip4.isEmpty() ? QString() : u'-' + zip4};
    return values.join(u'\t');
}

} // namespace

QString MergeValue(const QString& column, const Value& value)
{
    for (const auto& [name, list] : listColumns) {
        if (column == name)
            return value.IsNull() ? QString() : ListEntry(value.ToSingle(), list);
    }
    for (const QLatin1StringView name : moneyColumns) {
        if (column == name)
            return value.IsNull() ? QString() : Format(value.ToCurrency(), u"$###,###,###");
    }
    return value.Text();
}

QString MergeSource(const QString& header, Recordset& rows)
{
    rows.MoveFirst();
    QString text = header + u'\t' + LineEnd;
    const int columns = rows.FieldCount();
    for (; !rows.Eof(); rows.MoveNext()) {
        for (int column = 0; column < columns; ++column)
            text += MergeValue(rows.FieldName(column), rows.Fields(column).Get()) + u'\t';
        text += LineEnd;
    }
    return text;
}

QString LabelSource(Recordset& rows)
{
    rows.MoveFirst();
    QString text = u"Name\tAddress1\tAddress2\tCity\tState\tZip\tZip4"_s + LineEnd;
    for (; !rows.Eof(); rows.MoveNext())
        text += LabelLine(rows) + LineEnd;
    return text;
}

void WriteSourceFile(const QString& path, const QString& text)
{
    if (!QFileInfo(QFileInfo(path).path()).isDir())
        throw RunTimeError(ErrorNumber::PathNotFound, u"Path not found: "_s + path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw RunTimeError(ErrorNumber::PermissionDenied, u"Permission denied: "_s + path);
    // It holds people's addresses, and it stays.
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QByteArray bytes = ToCodePage1252(text);
    if (file.write(bytes) != bytes.size() || !file.flush())
        throw RunTimeError(ErrorNumber::DiskFull, u"Disk full: "_s + path);
}
