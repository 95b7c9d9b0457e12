#include "core/adodb/Connection.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "organise/frmList.h"
#include "organise/frmMove.h"

using namespace Qt::StringLiterals;

// How the highlighted contacts of the list move to another subcategory.

namespace {

struct Destination
{
    Long CategoryID;
    std::shared_ptr<Category> Sub;
};

/// Reads the reply of frmMove: the position in Subs, "-", the category's ID.
Destination ReadReply(const QString& reply)
{
    const qsizetype hyphen = reply.indexOf(u'-');
    const qsizetype position = CLng(Val(QStringView(reply).left(hyphen)));
    const Long categoryID = CLng(Val(QStringView(reply).mid(hyphen + 1)));
    return {categoryID, CategoryAt(categoryID)->Sub(position)};
}

} // namespace

void frmList::ContactMove()
{
    Trap(u"frmList ContactMove Error #"_s, Icon::Information, [this] {
        const bool one = HilitedContacts() < 2;
        if (gHilited.empty())
            return;
        const QString question =
            one ? u"Do you want me to move "_s + FormatName(*ContactAt(gHilited.front())) + u" to "_s
                : u"Do you want me to move all the highlighted contacts to "_s;
        {
            frmMove chooser(frmMove::What::Contact, question);
            chooser.ShowModal(this);
        }
        if (gReturnValue == "Cancelled"_L1)
            return;
        HilitedContacts();
        const Destination destination = ReadReply(gReturnValue);
        // Only the first one is looked at, which is meant: a list shows one subcategory.
        if (ContactAt(gHilited.front())->subCategoryID == destination.Sub->RecID) {
            MsgBox(u"I have cancelled the move operation because the destination\r\nsubcategory is the same as the "
                   u"current "
                   "subcategory."_s,
                   Buttons::Ok, Icon::Information, u"Move has been Cancelled"_s);
            return;
        }
        if (Confirmed(question + destination.Sub->Description + u"?"_s))
            MoveContacts(destination.CategoryID, *destination.Sub);
    });
}

void frmList::MoveContacts(Long categoryID, const Category& target)
{
    Trap(u"frmList MoveContacts Error #"_s, Icon::Information, [&] {
        const HourGlass hourGlass;
        const Integer subCategoryID = CInt(static_cast<double>(target.RecID));
        const std::shared_ptr<Category>& targetCategory = CategoryAt(categoryID);
        const std::shared_ptr<Category> targetSub = targetCategory->Sub(LocateSub(target.RecID, categoryID));
        const auto move = [&](Contact& contact) {
            const std::shared_ptr<Category>& category = CategoryAt(contact.CategoryID);
            Category& sub = *category->Sub(LocateSub(contact.subCategoryID, contact.CategoryID));
            --category->ContactCount;
            --sub.ContactCount;
            contact.subCategoryID = subCategoryID;
            contact.CategoryID = categoryID;
            ++targetCategory->ContactCount;
            ++targetSub->ContactCount;
            contact.UpdateDB(contact.RecID);
        };
        gConn.ShareCommits([&] {
            for (const Long id : gHilited)
                move(*ContactAt(id));
        });
        RemoveContacts(gHilited);
        if (auto* tree = Face<TreeFace>::Get())
            tree->ShowSubContactCount();
    });
}
