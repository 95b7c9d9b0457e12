#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/DeleteContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDescribe.h"
#include "search/CriteriaPanel.h"
#include "search/FoundList.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

// What the mouse, the keys and the menus of the found list do.

namespace {

constexpr int contactIDColumn = 1;

} // namespace

void FoundList::ConnectGrid()
{
    m_grid->installEventFilter(this);
    connect(m_grid, &Grid::ColumnClick, this, [this](int column) {
        Trap(u"frmMain GridFound_ColumnClick Error #"_s, Icon::Critical, [&] {
            if (m_grid->Rows() > 0)
                SortGrid(*m_grid, column);
        });
    });
    connect(m_grid, &Grid::DblClick, this, &FoundList::ViewFoundItem);
    connect(m_grid, &Grid::KeyDown, this, &FoundList::GridFound_KeyDown);
    connect(m_grid, &Grid::MouseUp, this, &FoundList::GridFound_MouseUp);
    connect(m_grid, &Grid::MouseMove, this,
            [this] { m_grid->viewport()->setCursor(Count() > 0 ? Qt::PointingHandCursor : Qt::ArrowCursor); });
}

void FoundList::PlugMenus()
{
    Menus& menus = m_window.MainMenus();
    connect(&menus.Menu(u"mnuHilitedContacts"_s), &QMenu::aboutToShow, this, &FoundList::mnuHilitedContacts_Click);
    menus.Plug(u"mnuDeleteFoundContacts"_s, this, [] { DeleteContacts(DeleteMode::Found); });
    menus.Plug(u"mnuDeleteFoundProp"_s, this, [this] { mnuDeleteFoundProp_Click(); });
    menus.Plug(u"mnuViewHighlitedContact"_s, this, [this] { ViewFoundItem(); });
    menus.Plug(u"mnuDeleteHilitedContacts"_s, this, [this] { mnuDeleteHilitedContacts_Click(); });
    menus.Plug(u"mnuClearHilitedContacts"_s, this, [this] { ClearHilited(); });
    menus.Plug(u"mnuSelectHilitedContacts"_s, this, [this] { SelectHilited(true); });
    menus.Plug(u"mnuUnselectHilitedContacts"_s, this, [this] { SelectHilited(false); });
    menus.Plug(u"mnuDeleteHilitedProperties"_s, this, [this] { mnuDeleteHilitedProperties_Click(); });
    menus.Plug(u"mnuClearHilitedProperties"_s, this, [this] { ClearHilited(); });
}

bool FoundList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_grid || event->type() != QEvent::ContextMenu)
        return QWidget::eventFilter(watched, event);
    const auto* asked = static_cast<QContextMenuEvent*>(event);
    if (asked->reason() == QContextMenuEvent::Keyboard && m_grid->SelectedRow() > 0) {
        const QModelIndex first = m_grid->model()->index(m_grid->SelectedRow() - 1, m_grid->columnAt(0));
        PopUpMenu(m_grid->viewport()->mapToGlobal(m_grid->visualRect(first).bottomLeft()));
    }
    return true;
}

void FoundList::GridFound_KeyDown(int code)
{
    if (code == Key::Enter)
        ViewFoundItem();
    else if (code == Key::Delete && ShowsProperties())
        mnuDeleteHilitedProperties_Click();
    else if (code == Key::Delete)
        mnuDeleteHilitedContacts_Click();
}

void FoundList::GridFound_MouseUp(Qt::MouseButton button, QPoint position)
{
    ShoWait(ShowsProperties() ? u"Property Search"_s : u"Contact search"_s);
    if (button == Qt::RightButton)
        PopUpMenu(position);
}

void FoundList::PopUpMenu(QPoint position)
{
    Trap(u"frmMain GridFound_MouseUp Error #"_s, Icon::Critical, [&] {
        // A list with nothing but the spacer shows no menu, nor does one in which no row was chosen.
        if (Count() == 0 || (m_grid->SelectionCount() < 2 && m_grid->SelectedRow() == 0))
            return;
        // The popup is about the current row, unless several are highlighted: what it names is what it acts on.
        if (m_grid->SelectionCount() < 2)
            m_grid->SetSelectedRow(m_grid->SelectedRow());
        if (ShowsProperties())
            ShowPropertyCaptions();
        else
            ShowContactCaptions();
        const QString menu = ShowsProperties() ? u"mnuHilitedProperties"_s : u"mnuHilitedContacts"_s;
        m_window.MainMenus().Menu(menu).popup(position);
    });
}

void FoundList::SetCaption(const char* entry, const QString& caption)
{
    m_window.MainMenus().Entry(QLatin1StringView(entry)).setText(MenuText(caption));
}

void FoundList::ShowPropertyCaptions()
{
    if (m_grid->SelectionCount() > 1) {
        SetCaption("mnuDeleteHilitedProperties", u"Delete the Highlighted Properties"_s);
        SetCaption("mnuClearHilitedProperties", u"Remove the Highlighted Properties from the Found List"_s);
        SetCaption("mnuHilitedPropertiesWord", u"Send Highlighted Property Information to a Word File"_s);
        return;
    }
    TakeProperty(m_grid->SelectedRow());
    const QString property = PropDescribe();
    SetCaption("mnuDeleteHilitedProperties", u"Delete "_s + property);
    SetCaption("mnuClearHilitedProperties", u"Remove "_s + property + u" from the Found List"_s);
    SetCaption("mnuHilitedPropertiesWord", u"Send "_s + property + u"'s Information to a Word File"_s);
}

void FoundList::ShowContactCaptions()
{
    if (m_grid->SelectionCount() > 1) {
        SetCaption("mnuDeleteHilitedContacts", u"Delete the Highlighted Contacts"_s);
        SetCaption("mnuClearHilitedContacts", u"Remove the Highlighted Contacts from the Found List"_s);
        SetCaption("mnuSelectHilitedContacts", u"Select the Highlighted Contacts"_s);
        SetCaption("mnuUnselectHilitedContacts", u"Unselect the Highlighted Contacts"_s);
        SetCaption("mnuHilitedContactsWord", u"Send Highlighted Contact Information to a Word File"_s);
        return;
    }
    const QString name = FormatName(*ContactOfRow(m_grid->SelectedRow()));
    SetCaption("mnuDeleteHilitedContacts", u"Delete "_s + name);
    SetCaption("mnuClearHilitedContacts", u"Remove "_s + name + u" from the Found List"_s);
    SetCaption("mnuSelectHilitedContacts", u"Select "_s + name);
    SetCaption("mnuUnselectHilitedContacts", u"Unselect "_s + name);
    SetCaption("mnuHilitedContactsWord", u"Send "_s + name + u"'s Information to a Word File"_s);
}

void FoundList::mnuHilitedContacts_Click()
{
    Trap(u"frmMain mnuHilitedContacts_Click Error #"_s, Icon::Critical, [this] {
        QAction& select = m_window.MainMenus().Entry(u"mnuSelectHilitedContacts"_s);
        QAction& unselect = m_window.MainMenus().Entry(u"mnuUnselectHilitedContacts"_s);
        select.setVisible(false);
        unselect.setVisible(false);
        bool anySelected = false;
        bool anyUnselected = false;
        for (const Long id : HighlightedContacts()) {
            (ContactAt(id)->Selected ? anySelected : anyUnselected) = true;
            if (anySelected && anyUnselected)
                break;
        }
        select.setVisible(anyUnselected);
        unselect.setVisible(anySelected);
    });
}

void FoundList::SelectHilited(bool select)
{
    const QString tag = select ? u"frmMain mnuSelectHilitedContacts_Click Error #"_s
                               : u"frmMain mnuUnselectHilitedContacts_Click Error #"_s;
    Trap(tag, Icon::Critical, [&] {
        const HourGlass hourGlass;
        for (const Long id : HighlightedContacts()) {
            curContact = ContactAt(id);
            if (select)
                SelectCurContact();
            else
                UnSelectCurContact();
        }
    });
}

void FoundList::ClearHilited()
{
    Trap(u"frmMain ClearHilited Error #"_s, Icon::Critical, [this] {
        std::vector<int> rows;
        for (int row = 1; row <= m_grid->Rows(); ++row) {
            if (m_grid->RowVisible(row) && m_grid->CellSelected(row, 1))
                rows.push_back(row);
        }
        m_grid->RemoveRows(rows);
        // The count in the heading stays as it was, which is meant.
        if (Count() == 0) {
            HideFoundMenus();
            m_grid->viewport()->setCursor(Qt::ArrowCursor);
        }
    });
}

const std::shared_ptr<Contact>& FoundList::ContactOfRow(int row) const
{
    return ContactAt(ShowsProperties() ? CLng(m_grid->CellText(row, contactIDColumn)) : m_grid->RowItemData(row));
}

void FoundList::TakeProperty(int row)
{
    // The contact first: where it is gone, both stay what they were.
    curContact = ContactOfRow(row);
    curPropertyID = m_grid->RowItemData(row);
}

// Opening what was found.

void FoundList::ViewFoundItem()
{
    Trap(u"frmMain ViewFoundItem Error #"_s, Icon::Critical, [this] {
        const int row = m_grid->SelectedRow();
        if (row == 0)
            return;
        const HourGlass hourGlass;
        curContact = ContactOfRow(row);
        // A contact whose subcategory is no longer in the tree has no list to be shown in.
        auto* tree = Face<TreeFace>::Get();
        if (tree != nullptr && !tree->FindInTree(u"S"_s + CStr(curContact->subCategoryID)))
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        if (tree != nullptr)
            tree->ItsASub();
        if (ShowsProperties())
            ViewFoundProperty(row);
        else
            ViewFoundContact(row);
    });
}

void FoundList::ViewFoundContact(int row)
{
    // Opening the list makes its first contact current.
    if (auto* tree = Face<TreeFace>::Get())
        tree->trvCategories_DblClick();
    curContact = ContactOfRow(row);
    gEditMode = EditMode::Neutral;
    if (auto* list = Face<ContactListFace>::Get())
        list->SelectContact(curContact->RecID);
    if (gOpeners.ContactList)
        gOpeners.ContactList();
}

void FoundList::ViewFoundProperty(int row)
{
    curPropertyID = m_grid->RowItemData(row);
    gEditMode = EditMode::Neutral;
    if (auto* list = Face<ContactListFace>::Get())
        list->SelectContact(curContact->RecID);
    if (gOpeners.PropertyList)
        gOpeners.PropertyList();
}
