#include "organise/CategoryTree.h"

#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "organise/CategoryTreeView.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Theme.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

bool IsSub(const QTreeWidgetItem* node)
{
    return node != nullptr && CategoryTreeView::KeyOf(node).startsWith(u'S');
}

QString RootKey(Long id)
{
    return u"C"_s + CStr(id);
}

QString SubKey(Long id)
{
    return u"S"_s + CStr(id);
}

/// The part of the window's title behind the client's name.
QString ContactsIn(const QString& name)
{
    return u" - "_s + CStr(curContactCount) + (curContactCount == 1 ? u" contact in "_s : u" contacts in "_s) + name;
}

} // namespace

CategoryTree::CategoryTree(frmMain& window) : m_window(window), m_tree(new CategoryTreeView(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    setMinimumWidth(180);

    connect(m_tree, &CategoryTreeView::NodeClick, this, [this] { trvCategories_NodeClick(Selected()); });
    connect(m_tree, &CategoryTreeView::NodeDblClick, this, [this] { trvCategories_DblClick(); });
    connect(m_tree, &CategoryTreeView::MouseUp, this, &CategoryTree::trvCategories_MouseUp);
    connect(m_tree, &CategoryTreeView::KeyUp, this, [this](int code) {
        if (code == Key::Delete && Selected() != nullptr)
            mnuCatDelete_Click();
    });
    m_tree->AfterLabelEdit = [this](const QString& text) { return trvCategories_AfterLabelEdit(text); };
    PlugMenu();
}

void CategoryTree::PlugMenu()
{
    Menus& menus = m_window.MainMenus();
    connect(&menus.Menu(u"mnuCategory"_s), &QMenu::aboutToShow, this, [this] { mnuCategory_Click(); });
    menus.Plug(u"mnuCatCreate"_s, this, [this] { mnuCatCreate_Click(); });
    menus.Plug(u"mnuSubCreate"_s, this, [this] { mnuSubCreate_Click(); });
    menus.Plug(u"mnuCatRename"_s, this, [this] { m_tree->StartLabelEdit(); });
    menus.Plug(u"mnuCatDelete"_s, this, [this] { mnuCatDelete_Click(); });
    menus.Plug(u"mnuSubMove"_s, this, [this] { NodeMove(); });
    menus.Plug(u"mnuViewContacts"_s, this, [this] { mnuViewContacts_Click(); });
    menus.Plug(u"mnuNewContact"_s, this, [this] { mnuNewContact_Click(); });
}

void CategoryTree::FillTree()
{
    Trap(u"frmMain FillTree Error #"_s, Icon::Critical, [this] {
        for (const Long id : gCategories.Keys()) {
            const std::shared_ptr<Category>& category = CategoryAt(id);
            QTreeWidgetItem* root = m_tree->AddNode(nullptr, RootKey(category->RecID), category->Description);
            CategoryTreeView::SetTag(root, CStr(id));
            if (!category->Subs)
                continue;
            for (const std::shared_ptr<Category>& sub : *category->Subs) {
                QTreeWidgetItem* child = m_tree->AddNode(root, SubKey(sub->RecID), sub->Description);
                CategoryTreeView::SetTag(child, CStr(GetKey(CategoryTreeView::KeyOf(child))));
            }
        }
    });
}

QTreeWidgetItem* CategoryTree::Selected() const
{
    return m_tree->currentItem();
}

int CategoryTree::NodeCount() const
{
    return static_cast<int>(m_tree->Nodes().size());
}

QString CategoryTree::SelectedKey() const
{
    return Selected() != nullptr ? CategoryTreeView::KeyOf(Selected()) : QString();
}

QString CategoryTree::SelectedParentKey() const
{
    const QTreeWidgetItem* parent = Selected() != nullptr ? Selected()->parent() : nullptr;
    return parent != nullptr ? CategoryTreeView::KeyOf(parent) : QString();
}

QString CategoryTree::SelectedText() const
{
    return Selected() != nullptr ? Selected()->text(0) : QString();
}

bool CategoryTree::ItsASub()
{
    return Trap(u"frmMain ItsASub Error #"_s, Icon::Critical, [this] {
        if (!IsSub(Selected()))
            return false;
        curSubIndex = LocateSub(GetKey(SelectedKey()));
        return true;
    });
}

void CategoryTree::trvCategories_NodeClick(QTreeWidgetItem* node)
{
    Trap(u"frmMain trvCategories_NodeClick Error #"_s, Icon::Critical, [&] {
        curContactCount = 0;
        if (ItsASub()) {
            curCategoryID = CLng(CategoryTreeView::TagOf(node->parent()));
            curContactCount = CurrentSub()->ContactCount;
        } else if (node != nullptr) {
            curCategoryID = CLng(CategoryTreeView::TagOf(node));
            curContactCount = CategoryAt(curCategoryID)->ContactCount;
            m_window.SetPanel(2, u"Total contacts: "_s + CStr(qint64{gContacts.Count()}));
        }
        if (curContactCount != 0)
            m_window.SetCaption(gSettings.ClientName + ContactsIn(node->text(0)));
        else if (node != nullptr)
            m_window.SetCaption(gSettings.ClientName + u" - no contacts in "_s + node->text(0));
        else
            m_window.ShowStatus();
    });
}

void CategoryTree::ShowSubContactCount()
{
    Trap(u"ShowSubContactCount Error #"_s, Icon::Information, [this] {
        // While a category is selected the current subcategory is none of its own.
        if (!ItsASub())
            return;
        const std::shared_ptr<Category>& sub = CurrentSub();
        curContactCount = sub->ContactCount;
        m_window.SetCaption(gSettings.ClientName + ContactsIn(sub->Description));
    });
}

void CategoryTree::trvCategories_MouseUp(Qt::MouseButton button, QPoint position)
{
    Trap(u"frmMain trvCategories_MouseUp Error #"_s, Icon::Critical, [&] {
        if (NodeCount() > 0 && button != Qt::RightButton)
            return;
        m_window.MainMenus().Menu(u"mnuCategory"_s).popup(position);
    });
}

void CategoryTree::mnuCategory_Click()
{
    Trap(u"frmMain mnuCategory_Click Error #"_s, Icon::Critical, [this] {
        Menus& menus = m_window.MainMenus();
        const QTreeWidgetItem* node = Selected();
        for (const auto name : {"mnuCatRename"_L1, "mnuCatDelete"_L1, "mnuSubCreate"_L1})
            menus.Entry(QString(name)).setEnabled(node != nullptr);
        // A subcategory enables what it can be used for.
        for (const auto name : {"mnuSubMove"_L1, "mnuNewContact"_L1, "mnuViewContacts"_L1})
            menus.Entry(QString(name)).setEnabled(false);
        if (node == nullptr)
            return;
        menus.Entry(u"mnuCatRename"_s).setText(MenuText(u"Rename "_s + node->text(0)));
        menus.Entry(u"mnuCatDelete"_s).setText(MenuText(u"Delete "_s + node->text(0)));
        if (ItsASub()) {
            ShowSubcategoryMenu();
            return;
        }
        menus.Entry(u"mnuSubCreate"_s).setText(MenuText(u"New SubCategory Under "_s + node->text(0)));
        menus.Entry(u"mnuSubMove"_s).setText(u"Move"_s);
        menus.Entry(u"mnuNewContact"_s).setText(u"Contacts"_s);
    });
}

void CategoryTree::ShowSubcategoryMenu()
{
    Menus& menus = m_window.MainMenus();
    const QString name = SelectedText();
    menus.Entry(u"mnuSubCreate"_s).setText(MenuText(u"New SubCategory Under "_s + Selected()->parent()->text(0)));
    QAction& move = menus.Entry(u"mnuSubMove"_s);
    move.setText(MenuText(u"Move "_s + name));
    move.setEnabled(true);
    QAction& view = menus.Entry(u"mnuViewContacts"_s);
    view.setText(MenuText(u"View "_s + name + u"'s Contacts"_s));
    view.setEnabled(CategoryAt(CLng(CategoryTreeView::TagOf(Selected()->parent())))->Sub(curSubIndex)->ContactCount >
                    0);
    QAction& newContact = menus.Entry(u"mnuNewContact"_s);
    newContact.setText(MenuText(u"New Contact Under "_s + name));
    newContact.setEnabled(true);
}

void CategoryTree::mnuCatCreate_Click()
{
    Trap(u"frmMain mnuCatCreate_Click Error #"_s, Icon::Critical, [this] {
        const QString name = AskFor(u"New Category Name:"_s);
        if (!name.isEmpty())
            CreateNewCategory(name);
    });
}

void CategoryTree::CreateNewCategory(const QString& name)
{
    Trap(u"frmMain CreateNewCategory Error #"_s, Icon::Critical, [&] {
        auto category = std::make_shared<Category>();
        category->Description = name;
        // The result is not tested, which is meant: a refused name goes on under the key 0 until the next start.
        category->RecID = category->CreateACategory(true);
        gCategories.Add(category->RecID, category);
        category->Subs.emplace();
        AddRootNode(name, category->RecID);
        trvCategories_NodeClick(Selected());
        m_tree->setFocus();
    });
}

void CategoryTree::mnuSubCreate_Click()
{
    Trap(u"frmMain mnuSubCreate_Click Error #"_s, Icon::Critical, [this] {
        const QString name = AskFor(u"New Subcategory Name"_s);
        if (name.isEmpty())
            return;
        auto category = std::make_shared<Category>();
        category->Description = name;
        category->ParentID = curCategoryID;
        CreateASubCategory(category, true);
        m_tree->setFocus();
    });
}

bool CategoryTree::trvCategories_AfterLabelEdit(const QString& newText)
{
    bool accepted = false;
    TrapThen(
        u"frmMain trvCategories_AfterLabelEdit Error #"_s, Icon::Critical,
        [&] {
            if (newText.isEmpty())
                return;
            if (!ItsASub()) {
                CategoryAt(curCategoryID)->UpdateCategory(newText);
            } else if (ExistSub(newText) > 0) {
                MsgBox(u"I did not rename "_s + SelectedText() + u" because I found\r\nanother subcategory named "_s +
                           newText + u" in "_s + CategoryAt(curCategoryID)->Description + u"."_s,
                       Buttons::Ok, Icon::Information, u"Rename Cancelled"_s);
                ShoWait(u"Rename Cancelled"_s);
                return;
            } else {
                const std::shared_ptr<Category> sub = CurrentSub();
                sub->UpdateSubCategory(newText, sub->ParentID);
            }
            accepted = true;
            ShoWait(u"Renamed"_s);
        },
        [] { ShoWait(u"Error while renaming"_s); });
    return accepted;
}

void CategoryTree::mnuCatDelete_Click()
{
    Trap(u"frmMain mnuCatDelete_Click Error #"_s, Icon::Critical, [this] {
        if (ItsASub())
            RemoveThisSubCategory();
        else
            RemoveThisCategory();
        m_tree->setFocus();
    });
}

void CategoryTree::DeleteCurrentCategory(QTreeWidgetItem* node)
{
    const Long id = CategoryAt(curCategoryID)->RecID;
    gConn.Execute(u"Delete from Categories Where ID="_s + CStr(id));
    gCategories.Remove(curCategoryID);
    m_tree->RemoveNode(node);
}

void CategoryTree::RemoveThisCategory()
{
    Trap(u"RemoveThisCategory Error #"_s, Icon::Information, [this] {
        const std::shared_ptr<Category> category = CategoryAt(curCategoryID);
        const QString name = category->Description;
        if (!category->Subs) {
            if (!Confirmed(u"Do you want me to delete "_s + name + u"?"_s))
                return;
            DeleteCurrentCategory(Selected());
        } else if (category->Subs->empty()) {
            if (!Confirmed(u"Do you want me to delete the category named "_s + name + u"?"_s)) {
                ShoWait(name + u" has not been Deleted"_s);
                return;
            }
            DeleteCurrentCategory(Selected());
            ShoWait(name + u" has been Deleted"_s);
        } else {
            MsgBox(u"I did not delete "_s + name + u" because it has subcategories."_s, Buttons::Ok, Icon::Information,
                   name + u" was not Deleted"_s);
        }
        if (gCategories.IsEmpty())
            m_window.ShowStatus();
        else
            trvCategories_NodeClick(Selected());
    });
}

void CategoryTree::RemoveThisSubCategory()
{
    Trap(u"RemoveThisSubCategory Error #"_s, Icon::Information, [this] {
        const std::shared_ptr<Category> category = CategoryAt(curCategoryID);
        const std::shared_ptr<Category> sub = category->Sub(curSubIndex);
        const QString name = sub->Description;
        if (sub->ContactCount > 0) {
            MsgBox(u"I did not delete "_s + name + u" because it has contacts."_s, Buttons::Ok, Icon::Information,
                   u"Delete Cancelled"_s);
            return;
        }
        if (!Confirmed(u"Do you want me to delete "_s + name + u"?"_s)) {
            ShoWait(name + u" has not been Deleted"_s);
            return;
        }
        gConn.Execute(u"delete from SubCategories Where ID="_s + CStr(sub->RecID));
        category->Subs->erase(category->Subs->begin() + (curSubIndex - 1));
        m_tree->RemoveNode(Selected());
        trvCategories_NodeClick(Selected());
        ShoWait(name + u" has been Deleted"_s);
    });
}

void CategoryTree::trvCategories_DblClick()
{
    Trap(u"frmMain trvCategories_DblClick Error #"_s, Icon::Critical, [this] {
        if (!ItsASub())
            return;
        if (CurrentSub()->ContactCount == 0)
            mnuNewContact_Click();
        else
            mnuViewContacts_Click();
    });
}

void CategoryTree::mnuViewContacts_Click()
{
    Trap(u"frmMain mnuViewContacts_Click Error #"_s, Icon::Critical, [] {
        const HourGlass hourGlass;
        if (Face<ContactListFace>::Get() == nullptr && gOpeners.ContactList)
            gOpeners.ContactList();
        if (auto* list = Face<ContactListFace>::Get())
            list->FillContactList();
    });
}

void CategoryTree::mnuNewContact_Click()
{
    Trap(u"frmMain mnuNewContact_Click Error #"_s, Icon::Critical, [] {
        if (auto* list = Face<ContactListFace>::Get())
            list->UnloadList();
        gEditMode = EditMode::NewContact;
        if (gOpeners.ContactEditor)
            gOpeners.ContactEditor();
    });
}

bool CategoryTree::FindInTree(const QString& key)
{
    QTreeWidgetItem* node = m_tree->FindKey(key);
    if (node == nullptr)
        return false;
    if (node->parent() != nullptr)
        curCategoryID = CLng(CategoryTreeView::TagOf(node->parent()));
    m_tree->setCurrentItem(node);
    return true;
}

QTreeWidgetItem* CategoryTree::LocateNode(Long id) const
{
    for (QTreeWidgetItem* node : m_tree->Nodes()) {
        if (CategoryTreeView::KeyOf(node).mid(1) == CStr(id))
            return node;
    }
    return nullptr;
}

void CategoryTree::AddSubNode(Long parentID, const QString& text, Long id)
{
    QTreeWidgetItem* node = m_tree->AddNode(LocateNode(parentID), SubKey(id), text);
    m_tree->setCurrentItem(node);
    CategoryTreeView::SetTag(node, CStr(id));
}

void CategoryTree::AddRootNode(const QString& text, Long id)
{
    QTreeWidgetItem* node = m_tree->AddNode(nullptr, RootKey(id), text);
    CategoryTreeView::SetTag(node, CStr(id));
    m_tree->setCurrentItem(node);
    if (m_window.isVisible())
        trvCategories_NodeClick(node);
}

void CategoryTree::ClearNodes()
{
    m_tree->RemoveAllNodes();
}

void CategoryTree::ShowTree()
{
    m_tree->setVisible(true);
    m_tree->setEnabled(true);
}
