#include "model/ShowContact.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"

using namespace Qt::StringLiterals;

void ShowContact()
{
    Trap(u"frmMain ShowContact Error #"_s, Icon::Critical, [] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        // Opening the list makes its first contact current.
        const std::shared_ptr<Contact> contact = curContact;
        if (auto* tree = Face<TreeFace>::Get()) {
            tree->FindInTree(u"C"_s + CStr(contact->CategoryID));
            tree->FindInTree(u"S"_s + CStr(contact->subCategoryID));
            tree->trvCategories_DblClick();
        }
        if (auto* main = Face<MainFace>::Get())
            main->ShowTab(0);
        curContact = contact;
        if (auto* list = Face<ContactListFace>::Get())
            list->SelectContact(contact->RecID);
    });
}
