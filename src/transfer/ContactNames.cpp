#include "transfer/ContactNames.h"

#include "core/Strings.h"
#include "model/Contact.h"
#include "model/Main.h"

ContactNames::ContactNames()
{
    m_first.reserve(gContacts.Count());
    gContacts.ForEach([this](Long key, const std::shared_ptr<Contact>& contact) {
        if (contact)
            Add(key, *contact);
    });
}

void ContactNames::Add(Long key, const Contact& contact)
{
    const Name name{contact.subCategoryID, NameKey(contact.FirstName), NameKey(contact.MI), NameKey(contact.LastName)};
    if (!m_first.contains(name))
        m_first.insert(name, key);
}

Long ContactNames::Locate(const QString& firstName, const QString& mi, const QString& lastName,
                          Integer subCategory) const
{
    return m_first.value({subCategory, NameKey(firstName), NameKey(mi), NameKey(lastName)}, 0);
}
