#pragma once

#include "model/Contact.h"

#include <QString>
#include <array>

/// The fields of a contact that the person sees. Sheets, lists, searches, merges and reports are tables over these.
enum class ContactField
{
    FirstName,
    MI,
    LastName,
    MailAddr1,
    MailAddr2,
    MailCity,
    MailState,
    MailZip,
    MailZip4,
    Salutation,
    Spouse,
    ReferredBy,
    Company,
    Email,
    HomePhone,
    WorkPhone,
    Ext,
    Cell,
    Fax
};

inline constexpr int ContactFieldCount = static_cast<int>(ContactField::Fax) + 1;

/// The field as the person sees it; of a list field, the entry.
[[nodiscard]] QString ContactText(const Contact& contact, ContactField field);

/// Takes the field from what the person typed; of a list field, the entry's position, 0 for a text that is none.
void SetContactText(Contact& contact, ContactField field, const QString& text);
