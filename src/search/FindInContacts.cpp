#include "search/FindInContacts.h"

#include "core/Strings.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/ContactFields.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct FieldName
{
    QLatin1StringView Name;
    QString Contact::*Field;
};

constexpr std::array fieldNames{
    FieldName{"FirstName"_L1, &Contact::FirstName}, FieldName{"MI"_L1, &Contact::MI},
    FieldName{"LastName"_L1, &Contact::LastName},   FieldName{"Company"_L1, &Contact::Company},
    FieldName{"Email"_L1, &Contact::Email},         FieldName{"Salutation"_L1, &Contact::Salutation},
    FieldName{"Spouse"_L1, &Contact::Spouse},       FieldName{"ReferredBy"_L1, &Contact::ReferredBy},
    FieldName{"Notes"_L1, &Contact::Notes},         FieldName{"Addr1"_L1, &Contact::MailAddr1},
    FieldName{"MailAddr1"_L1, &Contact::MailAddr1}, FieldName{"Addr2"_L1, &Contact::MailAddr2},
    FieldName{"MailAddr2"_L1, &Contact::MailAddr2}, FieldName{"City"_L1, &Contact::MailCity},
    FieldName{"MailCity"_L1, &Contact::MailCity},   FieldName{"Zip"_L1, &Contact::MailZip},
    FieldName{"MailZip"_L1, &Contact::MailZip},     FieldName{"Zip4"_L1, &Contact::MailZip4},
    FieldName{"MailZip4"_L1, &Contact::MailZip4},   FieldName{"HomePhone"_L1, &Contact::HomePhone},
    FieldName{"WorkPhone"_L1, &Contact::WorkPhone}, FieldName{"Ext"_L1, &Contact::Ext},
    FieldName{"Cell"_L1, &Contact::Cell},           FieldName{"Fax"_L1, &Contact::Fax},
};

constexpr auto stateName = "cbostate"_L1;
constexpr auto homePhoneName = "HomePhone"_L1;

QString Contact::*FieldOf(const QString& name)
{
    const auto found = std::ranges::find(fieldNames, name, &FieldName::Name);
    return found != fieldNames.end() ? found->Field : nullptr;
}

} // namespace

FindInContacts::FindInContacts(const QString& value, const QString& fieldName, Qt::CaseSensitivity sensitivity)
    : m_value(value)
    , m_fieldName(fieldName)
    , m_field(FieldOf(fieldName))
    , m_finder(fieldName == homePhoneName ? Trim(value) : value, sensitivity)
{}

bool FindInContacts::operator()(const Contact& contact) const
{
    return Trap(u"frmMain FindInContacts Error #"_s, Icon::Critical, [&] { return Test(contact); });
}

const QString* FindInContacts::TextOf(const Contact& contact) const
{
    return m_field != nullptr ? &(contact.*m_field) : nullptr;
}

bool FindInContacts::Test(const Contact& contact) const
{
    if (m_field != nullptr)
        return m_finder.IsIn(contact.*m_field);
    if (m_fieldName == stateName)
        return ContactText(contact, ContactField::MailState) == m_value;
    MsgBox(m_fieldName + u" is not configured"_s, Buttons::Ok, Icon::None, {});
    return false;
}
