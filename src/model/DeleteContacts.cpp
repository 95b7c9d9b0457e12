#include "model/DeleteContacts.h"

#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"

#include <QScopeGuard>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace {

using Ids = std::vector<Long>;

Ids ContactsOf(DeleteMode mode)
{
    auto* list = Face<ContactListFace>::Get();
    auto* found = Face<FoundFace>::Get();
    switch (mode) {
    case DeleteMode::Hilited:
        return list != nullptr ? list->Highlighted() : Ids{};
    case DeleteMode::FoundHighlighted:
        return found != nullptr ? found->HighlightedContacts() : Ids{};
    case DeleteMode::Found:
        return found != nullptr ? found->FoundContacts() : Ids{};
    case DeleteMode::Selected:
        return gSelected.Ids();
    case DeleteMode::Current:
        break;
    }
    return curContact ? Ids{curContact->RecID} : Ids{};
}

QString Question(DeleteMode mode, const Ids& ids)
{
    const bool fromList = mode == DeleteMode::Hilited;
    const QString head = fromList ? u"Delete "_s : u"Do you want me to permanently delete "_s;
    if (ids.size() == 1)
        return head + FormatName(*ContactAt(ids.front())) + u"?"_s;
    QString kind = u" Highlighted Contacts?"_s;
    if (mode == DeleteMode::Selected)
        kind = u" Selected Contacts?"_s;
    else if (mode == DeleteMode::Found)
        kind = u" Found Contacts?"_s;
    return head + u"the "_s + CStr(static_cast<qint64>(ids.size())) + kind;
}

void DeleteRows(const Ids& ids)
{
    QStringList keys;
    keys.reserve(std::ssize(ids));
    for (const Long id : ids)
        keys << CStr(id);
    const QString list = keys.join(u',');
    gConn.Execute(u"Delete from Contacts Where ID in ("_s + list + u")"_s);
    gConn.Execute(u"Delete from PropDetail Where ContactID in ("_s + list + u")"_s);
    gConn.Execute(u"Delete from Alerts where ContactID in ("_s + list + u")"_s);
}

/// Takes a contact out of gContacts and out of the counts of its place in the tree.
void ForgetContact(Long id, Long categoryID, qsizetype subIndex)
{
    const std::shared_ptr<Category>& category = CategoryAt(categoryID);
    --category->ContactCount;
    if (subIndex > 0)
        --category->Sub(subIndex)->ContactCount;
    gContacts.Remove(id);
}

/// Takes the alerts of contacts out of gAlerts and gives their table IDs.
Ids ForgetAlerts(const Ids& contactIDs)
{
    Ids alertIDs;
    std::unordered_set<Long> gone(contactIDs.begin(), contactIDs.end());
    for (const Long id : contactIDs) {
        for (const Alert* alert : gAlerts.OfContact(id))
            alertIDs.push_back(alert->KeyID());
    }
    const Long current = curAlertIndex > 0 && curAlertIndex <= gAlerts.Count() ? curAlertKey() : 0;
    gAlerts.RemoveIf([&gone](const Alert& alert) { return gone.contains(alert.ContactID); });
    curAlertIndex = FindAlert(current);
    return alertIDs;
}

void RemoveFromViews(const Ids& ids)
{
    if (auto* rolodex = Face<RolodexFace>::Get())
        rolodex->RemoveContacts(ids);
    if (auto* found = Face<FoundFace>::Get())
        found->RemoveContacts(ids);
    if (auto* list = Face<ContactListFace>::Get())
        list->RemoveContacts(ids);
}

void DeleteThese(const Ids& ids)
{
    // All are looked at before the first one goes: one that is gone already must not leave the others half deleted.
    std::vector<std::pair<std::shared_ptr<Contact>, qsizetype>> places;
    places.reserve(ids.size());
    for (const Long id : ids) {
        const std::shared_ptr<Contact>& contact = ContactAt(id);
        places.emplace_back(contact, LocateSub(contact->subCategoryID, contact->CategoryID));
    }
    for (const auto& [contact, subIndex] : places)
        ForgetContact(contact->RecID, contact->CategoryID, subIndex);
    RemoveFromViews(ids);
    // Also where the file refuses: nothing in memory may still name a contact that is gone from it.
    const auto forgetTheRest = qScopeGuard([&ids] {
        const Ids alertIDs = ForgetAlerts(ids);
        if (auto* panels = Face<AlertPanelsFace>::Get()) {
            panels->RemoveAlerts(alertIDs);
            panels->FillAlertGrid(false);
            panels->FillAlertGrid(true);
        }
        for (const Long id : ids)
            gSelected.Remove(id);
        ShowSelectedCount();
    });
    DeleteRows(ids);
}

} // namespace

void DeleteContacts(DeleteMode mode)
{
    Trap(u"DeleteContacts Error #"_s, Icon::Information, [&] {
        const Ids ids = ContactsOf(mode);
        if (ids.empty())
            return;
        if (!Confirmed(Question(mode, ids))) {
            ShoWait(u"Delete cancelled"_s);
            return;
        }
        const HourGlass hourGlass;
        DeleteThese(ids);
        ShoWait(u"Deleted"_s);
        if (auto* list = Face<ContactListFace>::Get(); list != nullptr && list->Rows() == 0)
            list->UnloadList();
        if (auto* found = Face<FoundFace>::Get())
            found->ShowHowManyFound();
    });
}

void Contact::DeleteFromDB()
{
    Trap(u"Class Contact DeleteFromDB Error #"_s, Icon::Information, [] {
        HilitedContacts();
        const Ids ids = gHilited;
        if (ids.empty())
            return;
        const QString question = ids.size() == 1
                                     ? u"Do you want me to delete "_s + FormatName(*ContactAt(ids.front())) + u"?"_s
                                     : u"Do you want me to delete the "_s + CStr(static_cast<qint64>(ids.size())) +
                                           u" highlighted contacts?"_s;
        if (!Confirmed(question)) {
            ShoWait(u"I have cancelled the Delete operation"_s);
            return;
        }
        for (const Long id : ids)
            ForgetContact(id, ContactAt(id)->CategoryID, curSubIndex);
        if (auto* list = Face<ContactListFace>::Get())
            list->RemoveContacts(ids);
        DeleteRows(ids);
        const Ids alertIDs = ForgetAlerts(ids);
        if (auto* panels = Face<AlertPanelsFace>::Get())
            panels->RemoveAlerts(alertIDs);
        for (const Long id : ids)
            gSelected.Remove(id);
        ShowSelectedCount();
        ShoWait(u"Deleted"_s);
    });
}
