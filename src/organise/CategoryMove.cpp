#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "organise/frmMove.h"
#include "ui/frame/frmMain.h"

using namespace Qt::StringLiterals;

// How a subcategory moves to another category.

void CategoryTree::NodeMove()
{
    Trap(u"frmMain NodeMove Error #"_s, Icon::Critical, [this] {
        const QString name = SelectedText();
        const QString question = u"Do you want me to move "_s + name + u" to "_s;
        {
            frmMove chooser(frmMove::What::Category, question, SelectedText());
            chooser.ShowModal(&m_window);
        }
        if (gReturnValue == "Cancelled"_L1)
            return;
        const Long target = CLng(gReturnValue);
        const QString targetName = CategoryAt(target)->Description;
        const auto refuse = [&](const QString& reason, const QString& title) {
            MsgBox(u"I did not move "_s + name + u"\r\n"_s + reason, Buttons::Ok, Icon::Information, title);
            ShoWait(name + u" has not been Moved"_s);
        };
        if (target == CLng(CategoryTreeView::TagOf(Selected()->parent()))) {
            refuse(u"because it is already in "_s + targetName + u"."_s, u"Move has been Cancelled"_s);
        } else if (ExistSub(name, target) > 0) {
            refuse(u"because I have found another subcategory with the same name in "_s + targetName + u"."_s,
                   u"Move Cancelled"_s);
        } else if (Confirmed(question + targetName + u"?"_s)) {
            MoveNode(target);
            ShoWait(name + u" has been Moved"_s);
        } else {
            ShoWait(name + u" has not been Moved"_s);
        }
        m_window.update();
    });
}

void CategoryTree::MoveNode(Long newParentID)
{
    const QString name = SelectedText();
    TrapThen(
        u"MoveNode Error #"_s, Icon::Information,
        [&] {
            const HourGlass hourGlass;
            QTreeWidgetItem* node = Selected();
            const Long oldParentID = GetKey(SelectedParentKey());
            const qsizetype position = LocateSub(CLng(CategoryTreeView::TagOf(node)), oldParentID);
            const std::shared_ptr<Category> sub = CategoryAt(oldParentID)->Sub(position);
            if (!CategoryAt(newParentID)->Subs)
                throw RunTimeError(ErrorNumber::ObjectNotSet);
            CategoryAt(newParentID)->Subs->push_back(sub);
            CategoryAt(oldParentID)->Subs->erase(CategoryAt(oldParentID)->Subs->begin() + (position - 1));
            sub->UpdateSubCategory(name, newParentID);
            gConn.ShareCommits([&] {
                gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
                    if (!contact || contact->subCategoryID != sub->RecID)
                        return;
                    contact->CategoryID = newParentID;
                    contact->UpdateDB(contact->RecID);
                });
            });
            // The counts of both categories stay as they were until the next start, which is meant.
            RehangNode(node, newParentID);
            curSubIndex = LocateSub(sub->RecID);
            ShoWait(name + u" has been moved"_s);
        },
        [&] { ShoWait(u"Error moving "_s + name); });
}

void CategoryTree::RehangNode(QTreeWidgetItem* node, Long newParentID)
{
    const QString key = CategoryTreeView::KeyOf(node);
    const QString name = node->text(0);
    m_tree->RemoveNode(node);
    FindInTree(u"C"_s + CStr(newParentID));
    QTreeWidgetItem* parent = Selected();
    QTreeWidgetItem* moved = m_tree->AddNode(parent, key, name);
    CategoryTreeView::SetTag(moved, CStr(GetKey(key)));
    parent->setExpanded(true);
    m_tree->setCurrentItem(moved);
    // The subcategory that is selected now lies in this category.
    curCategoryID = newParentID;
}
