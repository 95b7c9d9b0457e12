#include "editors/ContactRecord.h"

#include "model/ContactFields.h"

namespace {

// The sheet goes through the fields in their own order.
static_assert(ContactRow::Last == ContactFieldCount);
static_assert(ContactRow::LastName == static_cast<int>(ContactField::LastName) + 1);

ContactField FieldOf(int row)
{
    return static_cast<ContactField>(row - 1);
}

} // namespace

QString RowText(const Contact& contact, int row)
{
    return ContactText(contact, FieldOf(row));
}

void SetRowText(Contact& contact, int row, const QString& text)
{
    SetContactText(contact, FieldOf(row), text);
}
