#include "core/Trap.h"
#include "editors/frmPropertyList.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "model/SelectedSet.h"
#include "ui/widgets/Grid.h"

using namespace Qt::StringLiterals;

// How properties are deleted, and another one becomes the default.

void frmPropertyList::mnuDelete_Click()
{
    Trap(u"frmPropertyList mnuDelete_Click Error #"_s, Icon::Information, [this] {
        if (Rows() == 0)
            return;
        HilitedProperties();
        const std::vector<int> rows = RowsToDelete();
        const bool one = rows.size() == 1;
        if (!Confirmed(one ? u"Do you want me to permanently delete this property?"_s
                           : u"Do you want me to permanently delete all the highlighted properties?"_s)) {
            ShoWait(u"Delete cancelled"_s);
            return;
        }
        DeleteRows(rows);
    });
}

std::vector<int> frmPropertyList::RowsToDelete() const
{
    // The highlighted rows, which need not hold the selected one; without a highlight it is that.
    std::vector<int> rows = m_grid->HighlightedRows();
    if (rows.empty() && m_grid->SelectedRow() > 0)
        rows.push_back(m_grid->SelectedRow());
    return rows;
}

void frmPropertyList::DeleteRows(const std::vector<int>& rows)
{
    bool defaultGone = false;
    std::vector<Long> ids;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (!HasProperty(*row))
            continue;
        const Long id = m_grid->RowItemData(*row);
        const std::shared_ptr<PropDetail> property = curContact->Properties.Item(id);
        defaultGone = defaultGone || id == curContact->DefaultProperty;
        curContact->Properties.Remove(id);
        if (property)
            property->DeleteCurProperty();
        ids.push_back(id);
    }
    m_grid->RemoveRows(rows);
    auto* found = Face<FoundFace>::Get();
    if (found != nullptr)
        found->RemoveProperties(ids);
    ShoWait(u"Deleted"_s);
    if (found != nullptr)
        found->ShowHowManyFound();
    ShowCaption();
    if (defaultGone)
        TakeOverDefault();
    GridPropList_SelectionChange();
}

void frmPropertyList::TakeOverDefault()
{
    SetDefaultProp(false);
    if (curContact->DefaultProperty > 0)
        MsgBox(FormatName() + u"'s new default property is now "_s + PropDescribe(), Buttons::Ok, Icon::Information,
               u"New Default Property"_s);
}
