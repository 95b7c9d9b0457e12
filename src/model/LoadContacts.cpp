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

/// Takes the current row; false where its place in the tree is gone, and the row with it.
bool ReadContact(Recordset& rows)
{
    curContact = std::make_shared<Contact>();
    curContact->LoadFromDB(rows);
    gContacts.Add(rows.Fields("ID"_L1).Get().ToLong(), curContact);
    if (!CountInTree(*curContact)) {
        rows.Delete();
        return false;
    }
    curContact->LoadProperties();
    curContact.reset();
    return true;
}

void ReadContacts(Recordset& rows, const std::function<void(int)>& progress, const std::function<void()>& doEvents)
{
    ProgressSteps steps(rows.RecordCount(), progress);
    for (int rowsRead = 1; !rows.Eof(); rows.MoveNext(), ++rowsRead) {
        if (ReadContact(rows))
            steps.Kept(rowsRead);
        if (doEvents)
            doEvents();
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
        const Value date = rows.Fields("AlertDate"_L1).Get();
        if (date.IsNull())
            throw RunTimeError(ErrorNumber::InvalidUseOfNull);
        gAlerts.Add(u"A"_s + rows.Fields("ID"_L1).Get().Text(), contactID, CDate(date.Text()),
                    SharedText(rows.Fields("AlertNote"_L1).Get().Text()));
        curContact = ContactAt(contactID);
        ++curContact->NumberOfAlerts;
    }
}

} // namespace

void LoadContacts(const std::function<void(int percent)>& progress, const std::function<void()>& doEvents)
{
    Trap(u"LoadContacts Error #"_s, Icon::Information, [&] {
        const Connection::Reading reading(gConn);
        Recordset rows;
        rows.CursorLocation = CursorLocation::UseClient;
        rows.LockType = LockType::Pessimistic;
        rows.Open(u"Select * from Contacts"_s, gConn);
        if (rows.RecordCount() == 0)
            return;
        ReadContacts(rows, progress, doEvents);
        rows.Close();
        ReadAlerts();
    });
}
