#pragma once

#include "search/TextFinder.h"

#include <QStringList>

class Contact;

/// The test of one field of contacts against a value, by the field's name in the search: whether the value occurs
/// anywhere in the field; the state must equal it exactly, whatever the case check box says.
class FindInContacts
{
public:
    FindInContacts(const QString& value, const QString& fieldName, Qt::CaseSensitivity sensitivity);

    /// Reports what fails, and tells of a field name that it does not know; both give false.
    [[nodiscard]] bool operator()(const Contact& contact) const;

    /// The text that is looked into; null where the test looks into none.
    [[nodiscard]] const QString* TextOf(const Contact& contact) const;

private:
    [[nodiscard]] bool Test(const Contact& contact) const;

    QString m_value;
    QString m_fieldName;
    QString Contact::*m_field;
    TextFinder m_finder;
};
