#pragma once

#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "organise/frmList.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/frame/StatusPanels.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QMenu>
#include <QTest>

/// Chooses a node in the frmMove that opens next: a category, and one of its subcategories where `sub` is named.
class WhenMoveOpens : public WhenFormOpens
{
public:
    explicit WhenMoveOpens(int category, int sub = -1)
        : WhenFormOpens(QStringLiteral("frmMove"), [=, this](Form& form) {
            Caption = form.windowTitle();
            auto& tree = Control<QTreeWidget>(form, QStringLiteral("TreeView1"));
            QTRY_COMPARE(tree.topLevelItemCount(), 3);
            QTreeWidgetItem* node = tree.topLevelItem(category);
            tree.setCurrentItem(sub < 0 ? node : node->child(sub));
            ClickOn(form, QStringLiteral("cmdButton_2"));
        })
    {}

    QString Caption;
};

/// A started main window with its tree on a small file:
///   1 Buyers   1 First home: 1 Ann Lee, 2 Bob M Ray, 3 Cy Day;  2 Moving up: 4 Dee Fox
///   2 Sellers  3 Houses: empty
///   3 Vendors  without subcategories
class Desk
{
public:
    Desk()
    {
        using namespace Qt::StringLiterals;
        for (const auto name : {"Buyers"_L1, "Sellers"_L1, "Vendors"_L1})
            FreshDatabase::Execute("Insert into Categories (Description) Values ('"_L1 + name + "')"_L1);
        AddSub("First home"_L1, 1);
        AddSub("Moving up"_L1, 1);
        AddSub("Houses"_L1, 2);
        AddContact("Ann"_L1, ""_L1, "Lee"_L1, 1);
        AddContact("Bob"_L1, "M"_L1, "Ray"_L1, 1);
        AddContact("Cy"_L1, ""_L1, "Day"_L1, 1);
        AddContact("Dee"_L1, ""_L1, "Fox"_L1, 2);
        LoadCategories();
        Main = std::make_unique<frmMain>();
        Main->SetDeleteOnUnload(false);
        Tree = new CategoryTree(*Main);
        Main->AddContactsPanel(Tree, 1);
        gOpeners.ContactList = [this] { ShowContactList(Main.get()); };
        gOpeners.ContactEditor = [this] { ++EditorCalls; };
        Tree->FillTree();
        LoadContacts([](int) {});
        Main->Show();
        QTest::qWait(0);
        (void)Database.TakeStatements();
        Person.Forget();
    }

    ~Desk()
    {
        Main->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        gOpeners = {};
    }

    /// Clicks a node as the person does.
    void Click(const QString& key, Qt::MouseButton button = Qt::LeftButton)
    {
        CategoryTreeView& view = View();
        view.expandAll();
        QTreeWidgetItem* node = view.FindKey(key);
        QVERIFY(node != nullptr);
        view.scrollToItem(node);
        QTest::mouseClick(view.viewport(), button, {}, view.visualItemRect(node).center());
    }

    /// Shows a subcategory's contacts and gives the list's grid.
    Grid& OpenList(const QString& key)
    {
        Click(key);
        Tree->trvCategories_DblClick();
        QTest::qWait(0);
        return Control<Grid>(*Forms::Find(QStringLiteral("frmList")), QStringLiteral("GridList"));
    }

    [[nodiscard]] CategoryTreeView& View() const
    {
        return Control<CategoryTreeView>(*Main, QStringLiteral("trvCategories"));
    }
    [[nodiscard]] QAction& Entry(const QString& name) const { return Main->MainMenus().Entry(name); }

    FreshDatabase Database;
    ScriptedUser Person;
    std::unique_ptr<frmMain> Main;
    CategoryTree* Tree = nullptr;
    int EditorCalls = 0;

private:
    static void AddSub(QLatin1StringView name, int parent)
    {
        FreshDatabase::Execute(QStringLiteral("Insert into SubCategories (Description,ParentID) Values ('%1',%2)")
                                   .arg(QString(name))
                                   .arg(parent));
    }
    static void AddContact(QLatin1StringView first, QLatin1StringView mi, QLatin1StringView last, int sub)
    {
        FreshDatabase::Execute(QStringLiteral("Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName) "
                                              "Values (1,%1,'%2','%3','%4')")
                                   .arg(sub)
                                   .arg(QString(first), QString(mi), QString(last)));
    }
};
