#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/DeleteContacts.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "model/PropDetail.h"
#include "search/CriteriaPanel.h"
#include "search/FoundList.h"
#include "ui/widgets/Grid.h"

using namespace Qt::StringLiterals;

// Deleting what was found, for good.

namespace {

void TellOfDefaultProperty(Contact& contact)
{
    MsgBox(u"Please note that you have deleted this contact's Default Property. It is\r\n"
           "important that you remember to assign a new Default Property for this\r\n"
           "contact to prevent missing detail in Mail Merges that contain property\r\n"
           "information."_s,
           Buttons::Ok, Icon::Information, u"Default Property Deleted for "_s + FormatName(contact));
    contact.DefaultProperty = 0;
}

} // namespace

void FoundList::mnuDeleteHilitedContacts_Click()
{
    DeleteContacts(DeleteMode::FoundHighlighted);
}

void FoundList::mnuDeleteFoundProp_Click()
{
    Trap(u"frmMain mnuDeleteFoundProp_Click Error #"_s, Icon::Critical, [this] {
        // One row that is highlighted changes the question alone, which is meant: the whole list goes.
        if (m_grid->Rows() > 0)
            DeleteProps(m_grid->SelectionCount() == 1
                            ? u"Do you want me to permanently delete this property?"_s
                            : u"Do you want me to permanently delete all the found properties?"_s,
                        [](int) { return true; });
        ShowCountAndTakeFirst();
    });
}

void FoundList::mnuDeleteHilitedProperties_Click()
{
    Trap(u"frmMain mnuDeleteHilitedProperties_Click Error #"_s, Icon::Critical, [this] {
        const int selected = m_grid->SelectedRow();
        if (m_grid->SelectionCount() >= 2) {
            DeleteProps(u"Do you want me to permanently delete the highlighted Properties?"_s,
                        [this](int row) { return m_grid->CellSelected(row, 1); });
        } else if (selected > 0) {
            // The question names what will go.
            TakeProperty(selected);
            static_cast<void>(CurProperty()); // one that is gone is reported, and nothing is asked
            DeleteProps(u"Do you want me to permanently delete "_s + PropDescribe() + u'?',
                        [selected](int row) { return row == selected; });
        } else {
            return;
        }
        ShowCountAndTakeFirst();
    });
}

void FoundList::DeleteProps(const QString& question, const std::function<bool(int row)>& wanted)
{
    if (!Confirmed(question)) {
        ShoWait(u"Delete cancelled"_s);
        return;
    }
    const HourGlass hourGlass;
    std::vector<int> rows;
    for (int row = m_grid->Rows(); row >= 1; --row) {
        if (m_grid->RowVisible(row) && wanted(row))
            rows.push_back(row);
    }
    for (const int row : rows)
        DeletePropFromFoundList(row);
    ShoWait(u"Deleted"_s);
}

void FoundList::DeletePropFromFoundList(int row)
{
    Trap(u"frmMain DeletePropFromFoundList Error #"_s, Icon::Critical, [&] {
        const Long id = m_grid->RowItemData(row);
        const std::shared_ptr<Contact> contact = ContactOfRow(row);
        const std::shared_ptr<PropDetail> property = contact->Properties.Item(id);
        if (!property)
            throw RunTimeError(ErrorNumber::ObjectRequired);
        contact->Properties.Remove(id);
        if (contact->DefaultProperty == property->RecID)
            TellOfDefaultProperty(*contact);
        property->DeleteCurProperty();
        m_grid->RemoveRow(row);
    });
}
