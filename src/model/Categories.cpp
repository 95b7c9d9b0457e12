#include "model/Categories.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/ReadBack.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Category::List ReadSubs(Long categoryID)
{
    Recordset rows;
    rows.LockType = LockType::Pessimistic;
    rows.CursorType = CursorType::Keyset;
    rows.Open(u"Select * from SubCategories Where ParentID="_s + CStr(categoryID), gConn);
    Category::List subs;
    for (; !rows.Eof(); rows.MoveNext()) {
        auto sub = std::make_shared<Category>();
        sub->Description = rows.Fields("Description"_L1).Get().Text();
        sub->RecID = rows.Fields("ID"_L1).Get().ToLong();
        sub->ParentID = rows.Fields("ParentID"_L1).Get().ToLong();
        subs.push_back(std::move(sub));
    }
    return subs;
}

template <typename Predicate>
qsizetype PositionIn(const std::shared_ptr<Category>& category, Predicate matches)
{
    if (!category || !category->Subs)
        return 0;
    const auto found = std::ranges::find_if(*category->Subs, matches);
    return found == category->Subs->end() ? 0 : found - category->Subs->begin() + 1;
}

void InsertSub(Category& sub, Category& parent)
{
    gConn.Execute(u"Insert into subCategories (Description,Parentid) Values ('"_s + sub.Description + u"',"_s +
                  CStr(sub.ParentID) + u")"_s);
    sub.RecID = ReadBackID(u"Select ID from SubCategories Where Description='"_s + sub.Description +
                           u"' And ParentID="_s + CStr(sub.ParentID));
    if (auto* tree = Face<TreeFace>::Get())
        tree->AddSubNode(parent.RecID, sub.Description, sub.RecID);
    curSubIndex = LocateSub(sub.RecID);
}

} // namespace

void LoadCategories()
{
    Trap(u"LoadCategories Error #"_s, Icon::Information, [] {
        Recordset rows;
        rows.CursorLocation = CursorLocation::UseClient;
        rows.LockType = LockType::Pessimistic;
        rows.CursorType = CursorType::Dynamic;
        rows.Open(u"Select * from Categories"_s, gConn);
        for (; !rows.Eof(); rows.MoveNext()) {
            auto category = std::make_shared<Category>();
            category->Description = rows.Fields("Description"_L1).Get().Text();
            category->RecID = rows.Fields("ID"_L1).Get().ToLong();
            gCategories.Add(category->RecID, category);
            category->Subs = ReadSubs(category->RecID);
        }
    });
}

const std::shared_ptr<Category>& CategoryAt(Long id)
{
    const std::shared_ptr<Category>& category = gCategories.Item(id);
    if (!category)
        throw RunTimeError(ErrorNumber::ObjectRequired);
    return category;
}

const std::shared_ptr<Category>& CurrentSub()
{
    return CategoryAt(curCategoryID)->Sub(curSubIndex);
}

qsizetype LocateSub(Long id, std::optional<Long> categoryID)
{
    const auto hasId = [id](const std::shared_ptr<Category>& sub) { return sub->RecID == id; };
    if (categoryID)
        return PositionIn(CategoryAt(*categoryID), hasId);
    qsizetype position = 0;
    gCategories.ForEach([&](Long, const std::shared_ptr<Category>& category) {
        position = PositionIn(category, hasId);
        return position == 0;
    });
    return position;
}

qsizetype ExistSub(const QString& name, std::optional<Long> categoryID)
{
    const QString wanted = NameKey(name);
    return PositionIn(CategoryAt(categoryID.value_or(curCategoryID)),
                      [&](const std::shared_ptr<Category>& sub) { return NameKey(sub->Description) == wanted; });
}

Long GetKey(const QString& nodeKey)
{
    return Trap(u"GetKey  Error #"_s, Icon::Information, [&] {
        for (const QChar letter : {u'C', u'S'}) {
            const qsizetype position = nodeKey.indexOf(letter);
            if (position >= 0)
                return CLng(nodeKey.mid(position + 1).remove(letter));
        }
        return CLng(nodeKey.isEmpty() ? nodeKey : u"-"_s);
    });
}

void CreateASubCategory(const std::shared_ptr<Category>& category, bool showMessage)
{
    Trap(u"CreateASubCategory Error #"_s, Icon::Information, [&] {
        if (category->ParentID == 0)
            return;
        Category& parent = *CategoryAt(curCategoryID);
        if (!parent.Subs) {
            parent.Subs.emplace();
        } else if (ExistSub(category->Description, category->ParentID) > 0) {
            if (showMessage) {
                MsgBox(u"I did not create the new subcategory because\r\nthe name: "_s + category->Description +
                           u" already exists under "_s + parent.Description + u"."_s,
                       Buttons::Ok, Icon::Information, u"New Subcategory Not Created"_s);
            }
            ShoWait(category->Description + u" has not been Created"_s);
            return;
        }
        parent.Subs->push_back(category);
        InsertSub(*category, parent);
        ShoWait(category->Description + u" has been Created"_s);
    });
}
