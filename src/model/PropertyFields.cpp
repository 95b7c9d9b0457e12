#include "model/PropertyFields.h"

#include "core/Convert.h"
#include "core/Format.h"
#include "core/RunTimeError.h"
#include "model/Lists.h"

#include <array>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

using Member = std::variant<QString PropDetail::*, Single PropDetail::*, Integer PropDetail::*, Currency PropDetail::*>;

struct FieldRule
{
    PropertyKind Kind;
    Member Value;
    /// Number of the fixed list.
    int List = 0;
};

constexpr FieldRule Text(QString PropDetail::*member)
{
    return {PropertyKind::Text, member};
}

constexpr FieldRule Entry(Single PropDetail::*member, int list)
{
    return {PropertyKind::List, member, list};
}

constexpr FieldRule Flag(QString PropDetail::*member)
{
    return {PropertyKind::Flag, member, ListField::FirstYesNo};
}

constexpr FieldRule Number(Member member)
{
    return {PropertyKind::Number, member};
}

constexpr FieldRule Money(Currency PropDetail::*member)
{
    return {PropertyKind::Money, member};
}

constexpr FieldRule Day(QString PropDetail::*member)
{
    return {PropertyKind::Date, member};
}

/// In the order of PropertyField.
constexpr std::array<FieldRule, PropertyFieldCount> rules{
    Text(&PropDetail::MLS),
    Text(&PropDetail::Subdivision),
    Text(&PropDetail::Addr1),
    Text(&PropDetail::Addr2),
    Text(&PropDetail::City),
    Entry(&PropDetail::State, ListField::State),
    Text(&PropDetail::Zip),
    Text(&PropDetail::Zip4),
    Number(&PropDetail::SqFt),
    Number(&PropDetail::Rooms),
    Number(&PropDetail::Baths),
    Entry(&PropDetail::PropType, ListField::PropType),
    Entry(&PropDetail::Construction, ListField::Construction),
    Entry(&PropDetail::Floor, ListField::Floor),
    Entry(&PropDetail::Roof, ListField::Roof),
    Entry(&PropDetail::Parking, ListField::Parking),
    Entry(&PropDetail::Pool, ListField::Pool),
    Money(&PropDetail::MaintFee),
    Money(&PropDetail::AssocFee),
    Flag(&PropDetail::Waterfront),
    Flag(&PropDetail::FloodZone),
    Flag(&PropDetail::Elevator),
    Flag(&PropDetail::PetsAllowed),
    Flag(&PropDetail::Rented),
    Entry(&PropDetail::RentalBasis, ListField::RentalBasis),
    Money(&PropDetail::RentalAmount),
    Day(&PropDetail::LeaseExpires),
    Day(&PropDetail::ListingDate),
    Day(&PropDetail::ExpDate),
    Money(&PropDetail::AskingPrice),
    Day(&PropDetail::SoldDate),
    Day(&PropDetail::ClosingDate),
    Money(&PropDetail::SoldPrice),
};

const FieldRule& RuleOf(PropertyField field)
{
    return rules[static_cast<size_t>(field)];
}

bool IsPrice(PropertyField field)
{
    return field == PropertyField::AskingPrice || field == PropertyField::SoldPrice;
}

QString AmountText(Currency amount, PropertyField field, PropertyForm form)
{
    if (form == PropertyForm::Plain)
        return CStr(amount);
    if (amount.IsZero() && form != PropertyForm::List)
        return {};
    if (!IsPrice(field))
        return Format(amount, u"$###,###.00");
    return Format(amount, form == PropertyForm::Sheet ? u"$###,###,###" : u"$##,###,###.00");
}

/// What an amount's row holds becomes an amount by way of its own text. An empty row is 0.
Currency AmountOf(QString text)
{
    if (text.isEmpty())
        return {};
    QString amount = CStr(CCur(text.remove(u'$')));
    return CCur(Val(CStr(CCur(amount.remove(u',')))));
}

} // namespace

PropertyKind KindOf(PropertyField field)
{
    return RuleOf(field).Kind;
}

int ListOf(PropertyField field)
{
    return RuleOf(field).List;
}

QString PropertyText(const PropDetail& property, PropertyField field, PropertyForm form)
{
    const FieldRule& rule = RuleOf(field);
    if (const auto* text = std::get_if<QString PropDetail::*>(&rule.Value))
        return property.**text;
    if (const auto* amount = std::get_if<Currency PropDetail::*>(&rule.Value))
        return AmountText(property.**amount, field, form);
    Single number = 0;
    if (const auto* whole = std::get_if<Integer PropDetail::*>(&rule.Value))
        number = property.**whole;
    else
        number = property.*std::get<Single PropDetail::*>(rule.Value);
    if (rule.Kind == PropertyKind::List)
        return ListEntry(number, rule.List);
    return number == 0 && form == PropertyForm::ListNo0 ? QString() : CStr(number);
}

const QString* PropertyStoredText(const PropDetail& property, PropertyField field)
{
    const auto* text = std::get_if<QString PropDetail::*>(&RuleOf(field).Value);
    return text != nullptr ? &(property.**text) : nullptr;
}

Currency PropertyMoney(const PropDetail& property, PropertyField field)
{
    const auto* amount = std::get_if<Currency PropDetail::*>(&RuleOf(field).Value);
    if (amount == nullptr)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return property.**amount;
}

void SetPropertyText(PropDetail& property, PropertyField field, const QString& text)
{
    const FieldRule& rule = RuleOf(field);
    if (const auto* member = std::get_if<QString PropDetail::*>(&rule.Value))
        property.** member = text;
    else if (const auto* amount = std::get_if<Currency PropDetail::*>(&rule.Value))
        property.** amount = AmountOf(text);
    else if (const auto* whole = std::get_if<Integer PropDetail::*>(&rule.Value))
        property.** whole = CInt(Val(text));
    else if (rule.Kind == PropertyKind::List)
        property.*std::get<Single PropDetail::*>(rule.Value) = GetIndex(text, rule.List);
    else
        property.*std::get<Single PropDetail::*>(rule.Value) = CSng(CStr(Val(text)));
}
