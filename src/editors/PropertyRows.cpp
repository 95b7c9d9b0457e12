#include "editors/PropertyRows.h"

#include "core/Dates.h"
#include "core/Format.h"
#include "core/User.h"
#include "editors/PropertyRecord.h"
#include "editors/SheetEditor.h"

#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// What Enter makes of the text of a row.
enum class OnEnter
{
    AsTyped,
    Upper,
    Fee,
    Price
};

struct Line
{
    QLatin1StringView Label;
    QLatin1StringView Control;
    OnEnter Commits = OnEnter::AsTyped;
};

constexpr std::array<Line, PropertyFieldCount> lines{
    Line{"MLS#:"_L1, "txtMLS"_L1},
    Line{"Subdivision:"_L1, "txtSubdivision"_L1},
    Line{"Address1:"_L1, "txtAddr1"_L1, OnEnter::Upper},
    Line{"Address2:"_L1, "txtAddr2"_L1, OnEnter::Upper},
    Line{"City:"_L1, "txtCity"_L1, OnEnter::Upper},
    Line{"State:"_L1, "cboState"_L1},
    Line{"Zip:"_L1, "txtZip"_L1},
    Line{"Zip4:"_L1, "txtZip4"_L1},
    Line{"Sq Ft:"_L1, "txtSqFt"_L1},
    Line{"Rooms:"_L1, "txtRooms"_L1},
    Line{"Baths:"_L1, "txtBaths"_L1},
    Line{"Type:"_L1, "cboPropertyType"_L1},
    Line{"Construction:"_L1, "cboConstruction"_L1},
    Line{"Floor:"_L1, "cboFloor"_L1},
    Line{"Roof:"_L1, "cboRoof"_L1},
    Line{"Parking:"_L1, "cboParking"_L1},
    Line{"Pool:"_L1, "cboPool"_L1},
    Line{"Maint Fee:"_L1, "txtMaintFee"_L1, OnEnter::Fee},
    Line{"Assoc Fee:"_L1, "txtAssocFee"_L1, OnEnter::Fee},
    Line{"Waterfront:"_L1, "cboWaterfront"_L1},
    Line{"Flood Zone:"_L1, "cboFloodZone"_L1},
    Line{"Elevator:"_L1, "cboElevator"_L1},
    Line{"Pets Allowed:"_L1, "cboPetsAllowed"_L1},
    Line{"Rented:"_L1, "cboRented"_L1},
    Line{"Rental Basis:"_L1, "cboRentalBasis"_L1},
    Line{"Rental Amount:"_L1, "txtRentalAmount"_L1},
    Line{"Lease Expires:"_L1, "txtLeaseExpires"_L1},
    Line{"Listing Date:"_L1, "txtListingDate"_L1},
    Line{"Exp Date:"_L1, "txtExpDate"_L1},
    Line{"Asking Price:"_L1, "txtAskingPrice"_L1, OnEnter::Price},
    Line{"Sold Date:"_L1, "txtSoldDate"_L1},
    Line{"Closing Date:"_L1, "txtClosingDate"_L1},
    Line{"Sold Price:"_L1, "txtSoldPrice"_L1, OnEnter::Price},
};

constexpr auto feeMask = u"$###,###.00";
constexpr auto enterPriceMask = u"$##,###,###";
constexpr auto priceMask = u"$###,###,###";

bool IsPrice(PropertyField field)
{
    return field == PropertyField::AskingPrice || field == PropertyField::SoldPrice;
}

// Dates.

/// How a date is called when it is refused.
QLatin1StringView DateName(PropertyField field)
{
    switch (field) {
    case PropertyField::ListingDate:
        return "Listing Date"_L1;
    case PropertyField::ExpDate:
        return "Expiration Date"_L1;
    case PropertyField::SoldDate:
        return "Sold Date"_L1;
    case PropertyField::ClosingDate:
        return "Closing Date"_L1;
    default:
        return "Lease Expiration Date"_L1;
    }
}

/// Whether a date row holds nothing or a date; tells the person of anything else under the name of `spokenOf`.
bool DateHolds(const SheetEditor& sheet, PropertyField field, PropertyField spokenOf)
{
    const QString text = sheet.ControlText(RowOf(field));
    if (text.isEmpty() || IsDate(text))
        return true;
    const QString name(DateName(spokenOf));
    MsgBox(u"Please check the "_s + name + u'.', Buttons::Ok, Icon::Information, u"Invalid "_s + name);
    return false;
}

bool DateHolds(const SheetEditor& sheet, PropertyField field)
{
    return DateHolds(sheet, field, field);
}

/// Rows that test the date of the row just left once more as the focus comes to them. Some speak of the row that is
/// entered, which is meant.
struct LeftDate
{
    PropertyField Entered;
    PropertyField Left;
    PropertyField SpokenOf;
};

using enum PropertyField;
constexpr LeftDate leftDates[]{
    {PetsAllowed, ListingDate, ListingDate},   {RentalAmount, LeaseExpires, LeaseExpires},
    {LeaseExpires, ListingDate, LeaseExpires}, {ListingDate, LeaseExpires, LeaseExpires},
    {ListingDate, ExpDate, ExpDate},           {ExpDate, ListingDate, ExpDate},
    {AskingPrice, ExpDate, ExpDate},           {AskingPrice, SoldDate, SoldDate},
    {SoldDate, ClosingDate, ClosingDate},      {ClosingDate, SoldDate, ClosingDate},
    {SoldPrice, SoldDate, SoldDate},           {SoldPrice, ClosingDate, ClosingDate},
};

bool LeftDateHolds(SheetEditor& sheet, int row)
{
    for (const LeftDate& test : leftDates) {
        if (RowOf(test.Entered) == row && RowOf(test.Left) == sheet.CurRow())
            return DateHolds(sheet, test.Left, test.SpokenOf);
    }
    return true;
}

// Commits.

QString Committed(const QString& text, OnEnter how)
{
    switch (how) {
    case OnEnter::Upper:
        return Upper(text);
    case OnEnter::Fee:
        return Format(text, feeMask);
    case OnEnter::Price:
        return Format(text, enterPriceMask);
    case OnEnter::AsTyped:
        break;
    }
    return text;
}

QString Applied(const QString& text, PropertyField field)
{
    if (KindOf(field) == PropertyKind::Money)
        return Format(text, IsPrice(field) ? priceMask : feeMask);
    // The end of a lease stays as it was typed, which is meant.
    if (KindOf(field) == PropertyKind::Date && field != PropertyField::LeaseExpires)
        return Format(text, u"mm/dd/yyyy");
    return Upper(text);
}

bool Apply(SheetEditor& sheet, int row)
{
    ApplyPropertyChanges(sheet, row);
    return true;
}

bool IsAmountKey(int keyAscii, const QString&)
{
    return isCurrency(keyAscii);
}

bool IsWholeAmountKey(int keyAscii, const QString&)
{
    return keyAscii != u'.' && isCurrency(keyAscii);
}

QString BareDigits(const QString& cell)
{
    return QString(cell).remove(u'$').remove(u',');
}

void MakeAmount(SheetRow& row, PropertyField field)
{
    const bool cents = field == PropertyField::MaintFee || field == PropertyField::AssocFee;
    row.Accepts = cents ? IsAmountKey : IsWholeAmountKey;
    if (!cents)
        row.EndsPaste = u'.';
    row.Load = BareDigits;
}

void MakeDate(SheetRow& row, PropertyField field)
{
    row.Accepts = [](int keyAscii, const QString& textSoFar) { return ValidDateChar(keyAscii, textSoFar); };
    row.PressMask = DateFormat;
    row.EnterCommits = [field](SheetEditor& sheet, int at) {
        if (!DateHolds(sheet, field))
            return false;
        sheet.SetValue(at, sheet.ControlText(at));
        return true;
    };
    row.Validate = [field](SheetEditor& sheet, int at) { return DateHolds(sheet, field) && Apply(sheet, at); };
}

SheetRow RuleOf(const Line& line, const Line& next, PropertyField field)
{
    SheetRow row{.Label = line.Label,
                 .Control = line.Control,
                 .Tag = QString(line.Label).chopped(1),
                 .EnterTo = next.Control,
                 .List = ListOf(field)};
    row.EnterCommits = [how = line.Commits](SheetEditor& sheet, int at) {
        sheet.SetValue(at, Committed(sheet.ControlText(at), how));
        return true;
    };
    row.Validate = Apply;
    row.LostFocus = ApplyPropertyChanges;
    row.GotFocus = LeftDateHolds;
    switch (KindOf(field)) {
    case PropertyKind::Money:
        MakeAmount(row, field);
        break;
    case PropertyKind::Date:
        MakeDate(row, field);
        break;
    case PropertyKind::Number:
        row.Accepts = [](int keyAscii, const QString&) { return Numeric(keyAscii); };
        break;
    default:
        break;
    }
    if (field == PropertyField::Zip || field == PropertyField::Zip4)
        row.Accepts = [](int keyAscii, const QString&) { return Numeric(keyAscii); };
    if (field == PropertyField::SoldPrice)
        row.Validate = {};
    return row;
}

} // namespace

std::vector<SheetRow> PropertyRows()
{
    std::vector<SheetRow> rows;
    for (size_t index = 0; index < lines.size(); ++index) {
        // Enter on the last row stays there.
        const Line& next = lines[std::min(index + 1, lines.size() - 1)];
        rows.push_back(RuleOf(lines[index], next, static_cast<PropertyField>(index)));
    }
    return rows;
}

void ApplyPropertyChanges(SheetEditor& sheet, int row)
{
    const QString text = sheet.ControlText(row);
    if (sheet.Value(row) != text)
        sheet.SetValue(row, Applied(text, FieldOf(row)));
}
