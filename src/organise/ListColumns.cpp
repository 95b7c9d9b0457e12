#include "organise/ListColumns.h"

#include "core/Convert.h"
#include "model/Alerts.h"
#include "model/ContactFields.h"
#include "model/Main.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

using namespace Qt::StringLiterals;

namespace {

/// A column that shows a field of the contact.
struct FieldColumn
{
    QLatin1StringView Key;
    QLatin1StringView Header;
    int Width;
    ContactField Field;
};

constexpr FieldColumn fieldColumns[]{
    {"FirstName"_L1, "First Name"_L1, 122, ContactField::FirstName},
    {"MI"_L1, "MI"_L1, 29, ContactField::MI},
    {"LastName"_L1, "Last Name"_L1, 122, ContactField::LastName},
    {"Address1"_L1, "Address1"_L1, 122, ContactField::MailAddr1},
    {"Address2"_L1, "Address2"_L1, 102, ContactField::MailAddr2},
    {"City"_L1, "City"_L1, 122, ContactField::MailCity},
    {"State"_L1, "State"_L1, 42, ContactField::MailState},
    {"Zip"_L1, "Zip"_L1, 49, ContactField::MailZip},
    {"Zip4"_L1, "Zip4"_L1, 42, ContactField::MailZip4},
    {"Salutation"_L1, "Salutation"_L1, 122, ContactField::Salutation},
    {"Spouse"_L1, "Spouse"_L1, 122, ContactField::Spouse},
    {"ReferredBy"_L1, "Referred By"_L1, 122, ContactField::ReferredBy},
    {"Company"_L1, "Company"_L1, 122, ContactField::Company},
    {"Email"_L1, "Email"_L1, 122, ContactField::Email},
    {"HomePhone"_L1, "Home Phone"_L1, 104, ContactField::HomePhone},
    {"WorkPhone"_L1, "Work Phone"_L1, 104, ContactField::WorkPhone},
    {"Ext"_L1, "Ext"_L1, 94, ContactField::Ext},
    {"CellPhone"_L1, "Cell Phone"_L1, 104, ContactField::Cell},
    {"Fax"_L1, "Fax"_L1, 104, ContactField::Fax},
};

/// Small counts in a face of their own.
QFont CountFont()
{
    QFont font(u"Verdana"_s, 9);
    font.setBold(true);
    font.setItalic(true);
    return font;
}

/// The icon of a contact's alerts.
QString AlertIcon(AlertState state)
{
    switch (state) {
    case AlertState::Today:
        return u"red"_s;
    case AlertState::Future:
        return u"white"_s;
    case AlertState::Past:
        return u"yellow"_s;
    case AlertState::None:
        break;
    }
    return {};
}

} // namespace

void LoadContactColumns(Grid& grid)
{
    if (grid.Columns() > 0)
        return;
    grid.AddColumn({.Key = u"Alert"_s, .HeaderIcon = u"red"_s, .Width = 39, .Sort = SortType::Number});
    grid.AddColumn({.Key = u"Checked"_s, .HeaderIcon = u"checked"_s, .Width = 26});
    grid.AddColumn({.Key = u"Prop"_s, .HeaderIcon = u"house"_s, .Width = 37, .Sort = SortType::Number});
    for (const FieldColumn& column : fieldColumns)
        grid.AddColumn({.Key = QString(column.Key), .Header = QString(column.Header), .Width = column.Width});
}

void WriteContact(Grid& grid, int row, const Contact& contact)
{
    int column = ListColumn::FirstField;
    for (const FieldColumn& field : fieldColumns)
        grid.SetCellText(row, column++, ContactText(contact, field.Field));
}

void WritePropertyCount(Grid& grid, int row, int count)
{
    if (count == 0 && grid.CellText(row, ListColumn::Prop).isEmpty())
        return;
    grid.SetCellText(row, ListColumn::Prop, count > 0 ? CStr(Long{count}) : QString());
    grid.SetCellIcon(row, ListColumn::Prop, count > 0 ? u"house"_s : QString());
    grid.SetCellFont(row, ListColumn::Prop, CountFont());
}

void WriteAlerts(Grid& grid, int row)
{
    const AlertState state = AlertColor();
    const QColor own = grid.CellColor(row, grid.ColumnIndex(u"Address1"));
    const QColor names = state == AlertState::Today ? Theme::Red : own;
    for (const QStringView key : {u"FirstName", u"MI", u"LastName"})
        grid.SetCellColor(row, grid.ColumnIndex(key), names);
    grid.SetCellIcon(row, ListColumn::Alert, AlertIcon(state));
    grid.SetCellFont(row, ListColumn::Alert, CountFont());
    grid.SetCellText(row, ListColumn::Alert,
                     curContact->NumberOfAlerts > 0 ? CStr(curContact->NumberOfAlerts) : QString());
}
