#pragma once

#include "core/User.h"
#include "support/FreshDatabase.h"

#include <algorithm>
#include <utility>

/// Hears every report; answers nothing else.
class Listener : public User
{
public:
    Listener() { Install(this); }
    ~Listener() override { Install(nullptr); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    Answer MsgBox(const QString& text, Buttons, Icon, const QString& title) override
    {
        m_reports << title + QStringLiteral(": ") + text.left(200);
        return Answer::Ok;
    }
    QString AskFor(const QString&, int) override { return {}; }
    void ShoWait(const QString&) override {}
    void ShoWait() override {}
    void HourGlass(bool) override {}

    [[nodiscard]] QStringList Take() { return std::exchange(m_reports, {}); }

private:
    QStringList m_reports;
};

/// How two readings of the whole file differ.
struct Difference
{
    QStringList Gone;
    QStringList New;

    Difference(const QStringList& before, const QStringList& after)
    {
        const auto [b, a] = std::ranges::mismatch(before, after);
        const auto first = b - before.begin();
        qsizetype last = 0;
        while (last < before.size() - first && last < after.size() - first &&
               before[before.size() - 1 - last] == after[after.size() - 1 - last])
            ++last;
        Gone = before.mid(first, before.size() - first - last);
        New = after.mid(first, after.size() - first - last);
    }
};

/// Three rows in each table, so that there are neighbours to spoil on both sides.
inline void AddNeighbours()
{
    using namespace Qt::StringLiterals;
    for (const auto name : {"one"_L1, "two"_L1, "three"_L1}) {
        FreshDatabase::Execute("Insert into Categories (Description) Values ('"_L1 + name + "')"_L1);
        FreshDatabase::Execute("Insert into SubCategories (Description,ParentID) Values ('"_L1 + name + "',1)"_L1);
        FreshDatabase::Execute("Insert into PropDetail (ContactID,Addr1,Notes) Values (2,'"_L1 + name + "','')"_L1);
        FreshDatabase::Execute("Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,MI,MailAddr1,Notes) "
                               "Values (1,1,'"_L1 +
                               name + "','x','','','')"_L1);
    }
}
