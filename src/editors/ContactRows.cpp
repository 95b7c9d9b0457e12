#include "editors/ContactRows.h"

#include "editors/SheetEditor.h"
#include "model/Lists.h"

#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

enum class Kind
{
    Text,
    List,
    Phone,
    Digits
};

struct Line
{
    QLatin1StringView Label;
    QLatin1StringView Control;
    QLatin1StringView Tag;
    Kind What;
};

constexpr std::array lines{
    Line{"First Name:"_L1, "txtFirstName"_L1, "First Name"_L1, Kind::Text},
    Line{"MI:"_L1, "txtMI"_L1, "MI"_L1, Kind::Text},
    Line{"Last Name:"_L1, "txtLastName"_L1, "Last Name"_L1, Kind::Text},
    Line{"Address1:"_L1, "txtAddr1"_L1, "Address1"_L1, Kind::Text},
    Line{"Address2:"_L1, "txtAddr2"_L1, "Address2"_L1, Kind::Text},
    Line{"City:"_L1, "txtCity"_L1, "City"_L1, Kind::Text},
    Line{"State:"_L1, "cboState"_L1, "State"_L1, Kind::List},
    Line{"Zip:"_L1, "txtZip"_L1, "Zip"_L1, Kind::Text},
    Line{"Zip4:"_L1, "txtZip4"_L1, "Zip4"_L1, Kind::Text},
    Line{"Salutation:"_L1, "txtSalutation"_L1, "Salutation"_L1, Kind::Text},
    Line{"Spouse:"_L1, "txtSpouse"_L1, "Spouse"_L1, Kind::Text},
    Line{"Referred by:"_L1, "txtReferredBy"_L1, "Referred By"_L1, Kind::Text},
    Line{"Company:"_L1, "txtCompany"_L1, "Company"_L1, Kind::Text},
    Line{"Email:"_L1, "txtEmail"_L1, "Email"_L1, Kind::Text},
    Line{"Home Phone:"_L1, "txtHomePhone"_L1, "Home Phone"_L1, Kind::Phone},
    Line{"Work Phone:"_L1, "txtWorkPhone"_L1, "Work Phone"_L1, Kind::Phone},
    Line{"Ext:"_L1, "txtExt"_L1, "Ext"_L1, Kind::Digits},
    Line{"Cell Phone:"_L1, "txtCell"_L1, "Cell Phone"_L1, Kind::Phone},
    Line{"Fax:"_L1, "txtFax"_L1, "Fax"_L1, Kind::Phone},
};

bool IsPhoneKey(int keyAscii, const QString&)
{
    return (keyAscii >= u'0' && keyAscii <= u'9') || keyAscii == Key::Backspace || keyAscii == Key::Enter;
}

bool Commit(SheetEditor& sheet, int row)
{
    sheet.SetValue(row, Upper(sheet.ControlText(row)));
    return true;
}

/// A phone number is masked once more as its row is left, and goes to the sheet as it then stands.
void CommitPhone(SheetEditor& sheet, int row)
{
    sheet.SetField(row, FormatPhone(Key::Shift, sheet.Field(row)));
    sheet.SetValue(row, sheet.ControlText(row));
}

SheetRow RowOf(const Line& line, const Line& next)
{
    SheetRow row{.Label = line.Label, .Control = line.Control, .Tag = line.Tag, .EnterTo = next.Control};
    row.EnterCommits = Commit;
    row.Validate = Commit;
    switch (line.What) {
    case Kind::Text:
        row.LostFocus = [](SheetEditor& sheet, int left) { Commit(sheet, left); };
        break;
    case Kind::List:
        row.List = ListField::State;
        break;
    case Kind::Phone:
        row.KeyUp = FormatPhone;
        row.LostFocus = CommitPhone;
        [[fallthrough]];
    case Kind::Digits:
        row.Accepts = IsPhoneKey;
        break;
    }
    return row;
}

} // namespace

std::vector<SheetRow> ContactRows()
{
    std::vector<SheetRow> rows;
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        // Enter on the last row stays there.
        const auto next = std::next(line) == lines.end() ? line : std::next(line);
        rows.push_back(RowOf(*line, *next));
    }
    return rows;
}

void ApplyChanges(SheetEditor& sheet)
{
    if (sheet.CurRow() != 0)
        Commit(sheet, sheet.CurRow());
}
