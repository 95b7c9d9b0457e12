#include "model/LoadContacts.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/SharedText.h"

using namespace Qt::StringLiterals;

namespace {

/// Counts the contact in its place in the tree; false where that place is gone. The category's count has then gone up
/// although the subcategory is missing, and stays so, which is meant.
bool CountInTree(const Contact& contact)
{
    const auto* category = gCategories.Find(contact.CategoryID);
    if (category == nullptr)
        return false;
    ++(*category)->ContactCount;
    curCategoryID = contact.CategoryID;
    curSubIndex = LocateSub(contact.subCategoryID);
    if (curSubIndex == 0)
        return false;
    ++(*category)->Sub(curSubIndex)->ContactCount;
    return true;
}

/// Steps a bar by at most one percent for each row that is kept.
class ProgressSteps
{
public:
    ProgressSteps(int rows, const std::function<void(int)>& show) : m_rows(rows), m_show(show) {}

    void Kept(int rowsRead)
    {
        if (m_rows / 100.0 * m_percent >= rowsRead)
            return;
        m_show(m_percent);
        ++m_percent;
    }

private:
    int m_rows;
    int m_percent = 1;
    const std::function<void(int)>& m_show;
};

void ReadContacts(Recordset& rows, const std::function<void(int)>& progress)
{
    ProgressSteps steps(rows.RecordCount(), progress);
    int rowsRead = 0;
    for (; !rows.Eof(); rows.MoveNext()) {
        ++rowsRead;
        curContact = std::make_shared<Contact>();
        curContact->LoadFromDB(rows);
        gContacts.Add(rows.Fields("ID"_L1).Get().ToLong(), curContact);
        if (!CountInTree(*curContact)) {
            rows.Delete();
            continue;
        }
        curContact->LoadProperties();
        curContact.reset();
        steps.Kept(rowsRead);
    }
}

void ReadAlerts()
{
    Recordset rows;
    rows.CursorLocation = CursorLocation::UseClient;
    rows.LockType = LockType::Pessimistic;
    rows.Open(u"Select * from Alerts"_s, gConn);
    for (; !rows.Eof(); rows.MoveNext()) {
        const Long contactID = rows.Fields("ContactID"_L1).Get().ToLong();
        gAlerts.Add(u"A"_s + rows.Fields("ID"_L1).Get().Text(), contactID,
                    CDate(rows.Fields("AlertDate"_L1).Get().Text()),
                    SharedText(rows.Fields("AlertNote"_L1).Get().Text()));
        curContact = ContactAt(contactID);
        ++curContact->NumberOfAlerts;
    }
}

} // namespace

void LoadContacts(const std::function<void(int percent)>& progress)
{
    Trap(u"LoadContacts Error #"_s, Icon::Information, [&] {
        const Connection::Reading reading(gConn);
        Recordset rows;
        rows.CursorLocation = CursorLocation::UseClient;
        rows.LockType = LockType::Pessimistic;
        rows.Open(u"Select * from Contacts"_s, gConn);
        if (rows.RecordCount() == 0)
            return;
        ReadContacts(rows, progress);
        rows.Close();
        ReadAlerts();
    });
}
