#include "model/ContactFields.h"

#include "model/Lists.h"

namespace {

/// The text members in the order of ContactField; null for the list field.
// clang-format off
constexpr std::array<QString Contact::*, ContactFieldCount> members{
    &Contact::FirstName, &Contact::MI, &Contact::LastName,
    &Contact::MailAddr1, &Contact::MailAddr2, &Contact::MailCity, nullptr, &Contact::MailZip, &Contact::MailZip4,
    &Contact::Salutation, &Contact::Spouse, &Contact::ReferredBy, &Contact::Company, &Contact::Email,
    &Contact::HomePhone, &Contact::WorkPhone, &Contact::Ext, &Contact::Cell, &Contact::Fax};
// clang-format on

QString Contact::*MemberOf(ContactField field)
{
    return members[static_cast<size_t>(field)];
}

} // namespace

QString ContactText(const Contact& contact, ContactField field)
{
    if (field == ContactField::MailState)
        return ListEntry(contact.MailState, ListField::State);
    return contact.*MemberOf(field);
}

void SetContactText(Contact& contact, ContactField field, const QString& text)
{
    if (field == ContactField::MailState)
        contact.MailState = GetIndex(text, ListField::State);
    else
        contact.*MemberOf(field) = text;
}
