#include "letters/reports/ReportRows.h"

#include "model/Contact.h"
#include "model/ContactFields.h"
#include "model/PropDetail.h"
#include "model/PropertyFields.h"

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr auto lineBreak = "\r\n"_L1;

struct AddressLines
{
    QString First, Second, City, State, Zip, Zip4;
};

QString Address(const AddressLines& lines)
{
    QString text = lines.First + lineBreak;
    if (!lines.Second.isEmpty())
        text += lines.Second + lineBreak;
    text += lines.City + u' ' + lines.State + u' ' + lines.Zip;
    return lines.Zip4.isEmpty() ? text : text + u'-' + lines.Zip4;
}

QString ContactAddress(const Contact& contact)
{
    const auto field = [&](ContactField which) { return ContactText(contact, which); };
    return Address({field(ContactField::MailAddr1), field(ContactField::MailAddr2), field(ContactField::MailCity),
                    field(ContactField::MailState), field(ContactField::MailZip), field(ContactField::MailZip4)});
}

QString PropertyAddress(const PropDetail& property)
{
    const auto field = [&](PropertyField which) { return PropertyText(property, which); };
    return Address({field(PropertyField::Addr1), field(PropertyField::Addr2), field(PropertyField::City),
                    field(PropertyField::State), field(PropertyField::Zip), field(PropertyField::Zip4)});
}

std::function<QString(const Contact&)> Text(ContactField field)
{
    return [field](const Contact& contact) { return ContactText(contact, field); };
}

std::function<QString(const PropDetail&)> Text(PropertyField field)
{
    return [field](const PropDetail& property) { return PropertyText(property, field); };
}

/// A line for each field, under its own label.
std::function<QString(const PropDetail&)> Lines(std::initializer_list<std::pair<const char16_t*, PropertyField>> fields)
{
    return [list = std::vector(fields)](const PropDetail& property) {
        QStringList lines;
        for (const auto& [label, field] : list)
            lines << QString::fromUtf16(label) + u": "_s + PropertyText(property, field);
        return lines.join(u'\r');
    };
}

} // namespace

const std::vector<ReportRow<Contact>>& ContactReport()
{
    static const std::vector<ReportRow<Contact>> rows{
        {u"Name"_s, [](const Contact& contact) { return FormatName(contact); }},
        {u"Address"_s, ContactAddress},
        {u"Salutation"_s, Text(ContactField::Salutation)},
        {u"Spouse"_s, Text(ContactField::Spouse)},
        {u"Referred By"_s, Text(ContactField::ReferredBy)},
        {u"Company"_s, Text(ContactField::Company)},
        {u"Email"_s, Text(ContactField::Email)},
        {u"Home Phone"_s, Text(ContactField::HomePhone)},
        // The words stand even where there is no extension.
        {u"Work Phone"_s, [](const Contact& contact) { return contact.WorkPhone + u" Ext: "_s + contact.Ext; }},
        {u"Cell Phone"_s, Text(ContactField::Cell)},
        {u"Fax"_s, Text(ContactField::Fax)},
        {u"Notes"_s, [](const Contact& contact) { return contact.Notes; }},
    };
    return rows;
}

const std::vector<ReportRow<PropDetail>>& PropertyReport()
{
    using enum PropertyField;
    static const std::vector<ReportRow<PropDetail>> rows{
        {u"MLS"_s, Text(MLS)},
        {u"Subdivision"_s, Text(Subdivision)},
        {u"Property Address"_s, PropertyAddress},
        {u"Property Detail"_s, Lines({{u"Sq Ft", SqFt},
                                      {u"Rooms", Rooms},
                                      {u"Baths", Baths},
                                      {u"Type", PropType},
                                      {u"Construction", Construction},
                                      {u"Floor", Floor},
                                      {u"Roof", Roof},
                                      {u"Parking", Parking},
                                      {u"Pool", Pool},
                                      {u"Maint Fee", MaintFee},
                                      {u"Assoc Fee", AssocFee},
                                      {u"Waterfront", Waterfront},
                                      {u"Flood Zone", FloodZone}})},
        {u"Rental Information"_s, Lines({{u"Rented", Rented},
                                         {u"Rental Basis", RentalBasis},
                                         {u"Rental Amount", RentalAmount},
                                         {u"Lease Expires", LeaseExpires}})},
        {u"Sale Information"_s, Lines({{u"Listing Date", ListingDate},
                                       {u"Listing Exp Date", ExpDate},
                                       {u"Asking Price", AskingPrice},
                                       {u"Sold Date", SoldDate},
                                       {u"Sold Price", SoldPrice},
                                       {u"Closing Date", ClosingDate}})},
        // The label is printed and the place behind it stays empty, which is meant: it is for what is written by hand.
        {u"Notes"_s, {}},
    };
    return rows;
}
