#include "search/FindInProps.h"

#include "core/Clock.h"
#include "core/Dates.h"
#include "core/Trap.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct FieldName
{
    QLatin1StringView Name;
    PropertyTest Test;
    PropertyField Field;
};

constexpr std::array fieldNames{
    FieldName{"Subdivision"_L1, PropertyTest::Contains, PropertyField::Subdivision},
    FieldName{"Addr1"_L1, PropertyTest::Contains, PropertyField::Addr1},
    FieldName{"Addr2"_L1, PropertyTest::Contains, PropertyField::Addr2},
    FieldName{"City"_L1, PropertyTest::Contains, PropertyField::City},
    FieldName{"Zip"_L1, PropertyTest::Contains, PropertyField::Zip},
    FieldName{"Zip4"_L1, PropertyTest::Contains, PropertyField::Zip4},
    FieldName{"MLS"_L1, PropertyTest::Contains, PropertyField::MLS},
    FieldName{"SqFt"_L1, PropertyTest::Contains, PropertyField::SqFt},
    FieldName{"Rooms"_L1, PropertyTest::Contains, PropertyField::Rooms},
    FieldName{"Baths"_L1, PropertyTest::Contains, PropertyField::Baths},
    FieldName{"MaintFee"_L1, PropertyTest::Contains, PropertyField::MaintFee},
    FieldName{"AssocFee"_L1, PropertyTest::Contains, PropertyField::AssocFee},
    FieldName{"SoldPrice"_L1, PropertyTest::Contains, PropertyField::SoldPrice},
    FieldName{"ExpDate"_L1, PropertyTest::Contains, PropertyField::ExpDate},
    FieldName{"SoldDate"_L1, PropertyTest::Contains, PropertyField::SoldDate},
    FieldName{"ClosingDate"_L1, PropertyTest::Contains, PropertyField::ClosingDate},
    FieldName{"cbostate"_L1, PropertyTest::Equals, PropertyField::State},
    FieldName{"Type"_L1, PropertyTest::Equals, PropertyField::PropType},
    FieldName{"Construction"_L1, PropertyTest::Equals, PropertyField::Construction},
    FieldName{"Floor"_L1, PropertyTest::Equals, PropertyField::Floor},
    FieldName{"Roof"_L1, PropertyTest::Equals, PropertyField::Roof},
    FieldName{"Parking"_L1, PropertyTest::Equals, PropertyField::Parking},
    FieldName{"Pool"_L1, PropertyTest::Equals, PropertyField::Pool},
    FieldName{"RentalBasis"_L1, PropertyTest::Equals, PropertyField::RentalBasis},
    FieldName{"Waterfront"_L1, PropertyTest::Equals, PropertyField::Waterfront},
    FieldName{"Pets"_L1, PropertyTest::Equals, PropertyField::PetsAllowed},
    FieldName{"Floodzone"_L1, PropertyTest::Equals, PropertyField::FloodZone},
    FieldName{"Rented"_L1, PropertyTest::Equals, PropertyField::Rented},
    FieldName{"Elevator"_L1, PropertyTest::Equals, PropertyField::Elevator},
    FieldName{"LeaseExpires"_L1, PropertyTest::Criterion, PropertyField::LeaseExpires},
    FieldName{"ListingDate"_L1, PropertyTest::Criterion, PropertyField::ListingDate},
    FieldName{"AskingPrice"_L1, PropertyTest::Criterion, PropertyField::AskingPrice},
    FieldName{"Listed"_L1, PropertyTest::IsPast, PropertyField::ListingDate},
    FieldName{"Expired"_L1, PropertyTest::IsPast, PropertyField::ExpDate},
    FieldName{"Sold"_L1, PropertyTest::IsPast, PropertyField::SoldDate},
    FieldName{"Closed"_L1, PropertyTest::IsPast, PropertyField::ClosingDate},
};

} // namespace

FindInProps::FindInProps(const QString& value, const QString& fieldName, Qt::CaseSensitivity sensitivity)
    : m_value(value)
    , m_fieldName(fieldName)
    , m_finder(value, sensitivity)
    , m_criterion(value)
    , m_now(ToDate(Clock::Now()))
{
    const auto found = std::ranges::find(fieldNames, fieldName, &FieldName::Name);
    if (found == fieldNames.end())
        return;
    m_test = found->Test;
    m_field = found->Field;
}

bool FindInProps::operator()(const PropDetail& property) const
{
    return Trap(u"frmMain FindInProps Error #"_s, Icon::Critical, [&] { return Test(property); });
}

bool FindInProps::Test(const PropDetail& property) const
{
    if (m_test == PropertyTest::Unknown) {
        MsgBox(m_fieldName + u" is not configured"_s, Buttons::Ok, Icon::None, {});
        return false;
    }
    if (const QString* stored = TextOf(property))
        return TestText(*stored);
    // A property without a price has no text that a criterion could be held against.
    if (m_test == PropertyTest::Criterion && PropertyMoney(property, m_field) == Currency())
        return TestText({});
    return TestText(PropertyText(property, m_field, PropertyForm::Plain));
}

const QString* FindInProps::TextOf(const PropDetail& property) const
{
    return m_test == PropertyTest::Unknown ? nullptr : PropertyStoredText(property, m_field);
}

bool FindInProps::TestText(const QString& text) const
{
    switch (m_test) {
    case PropertyTest::Contains:
        return m_finder.IsIn(text);
    case PropertyTest::Equals:
        return text == m_value;
    case PropertyTest::Criterion:
        return CheckCriterion(text, m_criterion);
    default:
        return IsPast(text);
    }
}

bool FindInProps::IsPast(const QString& date) const
{
    if (date.isEmpty())
        return m_value == "No"_L1;
    const bool past = CDate(date) <= m_now;
    return past ? m_value == "Yes"_L1 : m_value == "No"_L1;
}
