#pragma once

#include "core/Types.h"

#include <QHash>
#include <QString>

class Contact;

/// Which contact of a subcategory bears a name, for a run that asks for thousands of them: gives what
/// Contact::LocateContact gives, without its walk over all contacts.
class ContactNames
{
public:
    /// The contacts that there are.
    ContactNames();
    /// A contact that has come to the end of gContacts.
    void Add(Long key, const Contact& contact);
    /// The key of the first contact with this name, without regard to case and outer blanks; 0 where there is none.
    [[nodiscard]] Long Locate(const QString& firstName, const QString& mi, const QString& lastName,
                              Integer subCategory) const;

private:
    struct Name
    {
        Integer SubCategory;
        QString First;
        QString Middle;
        QString Last;
        friend bool operator==(const Name&, const Name&) = default;
    };
    friend size_t qHash(const Name& name, size_t seed)
    {
        return qHashMulti(seed, name.SubCategory, name.First, name.Middle, name.Last);
    }

    QHash<Name, Long> m_first;
};
