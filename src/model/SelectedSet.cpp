#include "model/SelectedSet.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"

#include <QScopeGuard>
#include <algorithm>

using namespace Qt::StringLiterals;

void SelectedSet::Add(Long id)
{
    if (Contains(id))
        return;
    m_order.push_back(id);
    m_index.emplace(id, std::prev(m_order.end()));
}

void SelectedSet::Remove(Long id)
{
    const auto found = m_index.find(id);
    if (found == m_index.end())
        return;
    m_order.erase(found->second);
    m_index.erase(found);
}

void SelectedSet::RemoveAll()
{
    m_order.clear();
    m_index.clear();
}

Long SelectedSet::Last() const
{
    if (m_order.empty())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return m_order.back();
}

void ShowSelectedCount()
{
    auto* main = Face<MainFace>::Get();
    if (main == nullptr)
        return;
    const qsizetype count = gSelected.Count();
    main->ShowSelectedMenu(count > 0);
    if (count == 0)
        main->SetPanel(3, {});
    else
        main->SetPanel(3,
                       u" "_s + CStr(qint64{count}) + (count == 1 ? u" selected contact"_s : u" selected contacts"_s));
}

namespace {

/// Puts curContact into gSelected or takes it out, and shows that everywhere but in the Rolodex; false where it was so.
bool ChangeCurContact(bool selected)
{
    if (!curContact)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    if (curContact->Selected == selected)
        return false;
    if (selected)
        gSelected.Add(curContact->RecID);
    else
        gSelected.Remove(curContact->RecID);
    curContact->Selected = selected;
    ShowSelectedCount();
    if (auto* list = Face<ContactListFace>::Get())
        list->ShowChecked(curContact->RecID, selected);
    if (auto* found = Face<FoundFace>::Get())
        found->MarkSelected(curContact->RecID, selected);
    return true;
}

constexpr auto unselectTag = "UnSelectCurContact Error #"_L1;

} // namespace

void SelectCurContact()
{
    Trap(u"SelectCurContact Error #"_s, Icon::Information, [] {
        auto* rolodex = Face<RolodexFace>::Get();
        if (ChangeCurContact(true) && rolodex != nullptr)
            rolodex->SelectInRolodex(true);
    });
}

void UnSelectCurContact()
{
    Trap(unselectTag, Icon::Information, [] {
        auto* rolodex = Face<RolodexFace>::Get();
        if (ChangeCurContact(false) && rolodex != nullptr)
            rolodex->SelectInRolodex(false);
    });
}

void SelectContacts(const std::vector<Long>& ids, bool select)
{
    const HourGlass hourGlass;
    std::vector<Long> unselected;
    // Row by row, thousands of them would take the Rolodex seconds.
    const auto inRolodex = qScopeGuard([&unselected] {
        if (auto* rolodex = Face<RolodexFace>::Get(); rolodex != nullptr && !unselected.empty())
            rolodex->UnselectInRolodex(unselected);
    });
    for (const Long id : ids) {
        curContact = ContactAt(id);
        if (select)
            SelectCurContact();
        else if (Trap(unselectTag, Icon::Information, [] { return ChangeCurContact(false); }))
            unselected.push_back(id);
    }
}

void UnselectAll()
{
    Trap(u"frmMain mnuUnselectAll_Click Error #"_s, Icon::Critical, [] {
        if (gSelected.IsEmpty())
            return;
        const qsizetype count = gSelected.Count();
        const QString which = count > 1 ? u"All "_s + CStr(qint64{count}) + u" contacts?"_s
                                        : FormatName(*ContactAt(gSelected.Last())) + u"?"_s;
        if (!Confirmed(u"Do you want me to unselect "_s + which))
            return;
        const HourGlass hourGlass;
        if (auto* rolodex = Face<RolodexFace>::Get())
            rolodex->ForgetSelected();
        while (!gSelected.IsEmpty()) {
            curContact = ContactAt(gSelected.Last());
            UnSelectCurContact();
        }
    });
}

namespace {

QString Joined(const std::vector<Long>& ids)
{
    QStringList texts;
    for (const Long id : ids)
        texts << CStr(id);
    return texts.join(u',');
}

/// Rebuilds gHilited and gHilitedList from the highlighted rows of a list, none where it is not loaded.
template <typename ListFace>
qsizetype Hilited()
{
    const auto* list = Face<ListFace>::Get();
    gHilited = list != nullptr ? list->Highlighted() : std::vector<Long>{};
    gHilitedList = Joined(gHilited);
    return std::ssize(gHilited);
}

} // namespace

QString SelectedIDs()
{
    return Joined(gSelected.Ids());
}

qsizetype HilitedContacts()
{
    return Hilited<ContactListFace>();
}

qsizetype HilitedProperties()
{
    return Hilited<PropertyListFace>();
}
