#include "LoadedProgram.h"

#include "model/Category.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "Program.h"

Answer Consent::MsgBox(const QString& text, Buttons buttons, Icon, const QString&)
{
    if (buttons != Buttons::YesNo)
        qFatal("%s", qPrintable(text));
    return Answer::Yes;
}

LoadedProgram::LoadedProgram(int contacts, int every) : m_copy(contacts)
{
    OpenProgram(m_copy.Folder());
    LoadProgram();
    const std::shared_ptr<Category> here = gCategories.Items().front();
    const std::shared_ptr<Category> there = gCategories.Items().back();
    int position = 0;
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        const std::shared_ptr<Category>& category = position++ % every == 0 ? here : there;
        contact->CategoryID = category->RecID;
        contact->subCategoryID = static_cast<Integer>(category->Sub(1)->RecID);
    });
    curCategoryID = here->RecID;
    curSubIndex = 1;
}

LoadedProgram::~LoadedProgram()
{
    CloseProgram();
}
