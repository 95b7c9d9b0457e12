#include "model/Category.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "model/Main.h"
#include "model/ReadBack.h"

using namespace Qt::StringLiterals;

const std::shared_ptr<Category>& Category::Sub(qsizetype position) const
{
    if (!Subs)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    if (position < 1 || position > std::ssize(*Subs))
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return (*Subs)[static_cast<size_t>(position - 1)];
}

Long Category::Locate(const QString& name)
{
    const QString wanted = NameKey(name);
    Long key = 0;
    gCategories.ForEach([&](Long id, const std::shared_ptr<Category>& category) {
        if (!category || NameKey(category->Description) != wanted)
            return true;
        key = id;
        return false;
    });
    return key;
}

Long Category::CreateACategory(bool showMessage) const
{
    return Trap(u"Class Category CreateACategory Error #"_s, Icon::Information, [&]() -> Long {
        if (Locate(Description) >= 1) {
            if (showMessage) {
                MsgBox(u"I did not create "_s + Description +
                           u" because I found an existing category with the same name."_s,
                       Buttons::Ok, Icon::Information, u"New Category has not been Created"_s);
            }
            return 0;
        }
        gConn.Execute(u"Insert into Categories (Description) Values ('"_s + FixQuotes(Description) + u"')"_s);
        return ReadBackID(u"Select ID from Categories Where Description='"_s + FixQuotes(Description) + u"'"_s);
    });
}

void Category::UpdateCategory(const QString& newName)
{
    Trap(u"Class Category UpdateCategory Error #"_s, Icon::Information, [&] {
        if (newName == Description)
            return;
        Description = newName;
        UpdateCatDbRecord(RecID);
    });
}

void Category::UpdateSubCategory(const QString& newName, Long newParentID)
{
    Trap(u"Class Category UpdateSubCategory Error #"_s, Icon::Information, [&] {
        if (newName == Description && newParentID == ParentID)
            return;
        Description = newName;
        ParentID = newParentID;
        UpdatesubCatDbRecord(RecID);
    });
}

void Category::UpdateCatDbRecord(Long id) const
{
    Trap(u"Class Category UpdateCatDbRecord Error #"_s, Icon::Information, [&] {
        gConn.Execute(u"Update Categories set Description='"_s + FixQuotes(Description) + u"' Where ID="_s + CStr(id));
    });
}

void Category::UpdatesubCatDbRecord(Long id) const
{
    Trap(u"Class Category UpdatesubCatDbRecord Error #"_s, Icon::Information, [&] {
        gConn.Execute(u"Update SubCategories set Description='"_s + FixQuotes(Description) + u"',  ParentID="_s +
                      CStr(ParentID) + u" Where ID="_s + CStr(id));
    });
}
