#include "organise/Desk.h"

#include "ui/widgets/Forms.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

class tst_CategoryTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AClickTellsTheContactsInTheTitle();
    void TheMenuSpeaksOfTheNode();
    void TheMenuOfAnEmptyTreeOffersANewCategoryOnly();
    void ARefusedCategoryLeavesAGhostAndASecondOneTheReport();
    void ANewSubcategoryHangsUnderTheFirstNodeOfThatNumber();
    void ARename();
    void ACategoryMayTakeAnothersName();
    void ACategoryWithSubcategoriesStays();
    void TheLastCategoryLeavesTheTitleReady();
    void ASubcategoryGoesOnlyWithoutContacts();
    void AMoveKeepsTheCountsAsTheyWere();
    void AMoveIsRefused();
    void ADoubleClickOpensTheListOrANewContact();
    void OnlyThePersonsClicksChangeTheCurrentNode();
    void TheFocusAloneChoosesNothing();
    void TabEndsALabelEdit();
};

void tst_CategoryTree::AClickTellsTheContactsInTheTitle()
{
    Desk desk;
    gSettings.ClientName = u"Mine"_s;
    for (const auto& [key, title, category, sub] : {
             std::tuple(u"C1"_s, u"Mine - 4 contacts in Buyers"_s, 1, 0),
             std::tuple(u"S1"_s, u"Mine - 3 contacts in First home"_s, 1, 1),
             std::tuple(u"S2"_s, u"Mine - 1 contact in Moving up"_s, 1, 2),
             std::tuple(u"C2"_s, u"Mine - no contacts in Sellers"_s, 2, 0),
             std::tuple(u"S3"_s, u"Mine - no contacts in Houses"_s, 2, 1),
         }) {
        desk.Click(key);
        QCOMPARE(desk.Main->windowTitle(), title);
        QCOMPARE(curCategoryID, category);
        if (sub > 0)
            QCOMPARE(curSubIndex, sub);
    }
}

void tst_CategoryTree::TheMenuSpeaksOfTheNode()
{
    Desk desk;
    QMenu& menu = desk.Main->MainMenus().Menu(u"mnuCategory"_s);
    for (const auto& [key, captions] :
         {std::pair(u"C1"_s, u"New Category|New SubCategory Under Buyers|Rename Buyers|Delete Buyers|Move|"
                             "View Contacts|Contacts"_s),
          std::pair(u"S1"_s, u"New Category|New SubCategory Under Buyers|Rename First home|Delete First home|"
                             "Move First home|View First home's Contacts|New Contact Under First home"_s)}) {
        desk.Click(key, Qt::RightButton);
        QTRY_VERIFY(menu.isVisible());
        QStringList shown;
        for (const QAction* entry : menu.actions())
            shown << entry->text();
        menu.close();
        QCOMPARE(shown.join(u'|'), captions);
    }
}

void tst_CategoryTree::TheMenuOfAnEmptyTreeOffersANewCategoryOnly()
{
    Desk desk;
    desk.View().setCurrentItem(nullptr);
    for (const auto key : {"C3"_L1, "C2"_L1, "C1"_L1})
        desk.View().RemoveNode(desk.View().FindKey(QString(key)));
    QMenu& menu = desk.Main->MainMenus().Menu(u"mnuCategory"_s);
    QTest::mouseClick(desk.View().viewport(), Qt::LeftButton);
    QTRY_VERIFY(menu.isVisible());
    for (const QAction* entry : menu.actions())
        QCOMPARE(entry->isEnabled(), entry->objectName() == "mnuCatCreate"_L1);
    menu.close();
}

void tst_CategoryTree::ARefusedCategoryLeavesAGhostAndASecondOneTheReport()
{
    Desk desk;
    desk.Person.ExpectAskFor(u"New Category Name:"_s, u" BUYERS"_s);
    desk.Person.Expect(u"New Category has not been Created"_s,
                       u"I did not create  BUYERS because I found an existing category with the same name."_s);
    desk.Entry(u"mnuCatCreate"_s).trigger();
    QCOMPARE(desk.Tree->SelectedKey(), u"C0"_s);
    QCOMPARE(gCategories.Count(), 4);

    desk.Person.ExpectAskFor(u"New Category Name:"_s, u"Buyers"_s);
    desk.Person.Expect(u"New Category has not been Created"_s,
                       u"I did not create Buyers because I found an existing category with the same name."_s);
    desk.Person.Expect(u"frmMain CreateNewCategory Error #457"_s,
                       u"This key is already associated with an element of this collection"_s);
    desk.Entry(u"mnuCatCreate"_s).trigger();
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Categories"_s).size(), 3);
}

void tst_CategoryTree::ANewSubcategoryHangsUnderTheFirstNodeOfThatNumber()
{
    // Category 3 (Vendors) was added after the subcategory 3 (Houses): the look-up without the letter finds the latter.
    Desk desk;
    desk.Click(u"C3"_s);
    desk.Person.ExpectAskFor(u"New Subcategory Name"_s, u"Roofers"_s);
    desk.Entry(u"mnuSubCreate"_s).trigger();
    QCOMPARE(desk.Person.LastStatus(), u"Roofers has been Created"_s);
    QCOMPARE(desk.Tree->SelectedKey(), u"S4"_s);
    QCOMPARE(desk.Tree->SelectedParentKey(), u"S3"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select ParentID from SubCategories Where ID=4"_s), QStringList{u"3"_s});
    QCOMPARE(CategoryAt(3)->Subs->size(), 1U);
}

void tst_CategoryTree::ARename()
{
    // To another name, with an apostrophe, to a sister's name, and to nothing.
    for (const auto& [typed, label, status, refused] :
         {std::tuple(u"First house"_s, u"First house"_s, u"Renamed"_s, false),
          std::tuple(u"Friend's"_s, u"Friend's"_s, u"Renamed"_s, false),
          std::tuple(u"MOVING UP"_s, u"First home"_s, u"Rename Cancelled"_s, true),
          std::tuple(QString(), u"First home"_s, QString(), false)}) {
        Desk desk;
        desk.Click(u"S1"_s);
        if (refused) {
            desk.Person.Expect(u"Rename Cancelled"_s,
                               u"I did not rename First home because I found\r\nanother subcategory named "_s + typed +
                                   u" in Buyers."_s);
        }
        desk.Entry(u"mnuCatRename"_s).trigger();
        auto* editor = desk.View().findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText(typed);
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::qWait(0); // the label takes its text behind the key
        QCOMPARE(desk.Tree->SelectedText(), label);
        QCOMPARE(desk.Person.LastStatus(), status);
        QCOMPARE(FreshDatabase::Rows(u"Select Description from SubCategories Where ID=1"_s), QStringList{label});
    }
}

void tst_CategoryTree::ACategoryMayTakeAnothersName()
{
    Desk desk;
    desk.Click(u"C1"_s);
    QVERIFY(desk.View().AfterLabelEdit(u"Sellers"_s));
    QCOMPARE(desk.Database.TakeStatements(), QStringList{u"Update Categories set Description='Sellers' Where ID=1"_s});
}

void tst_CategoryTree::ACategoryWithSubcategoriesStays()
{
    Desk desk;
    desk.Click(u"C2"_s);
    desk.Person.Expect(u"Sellers was not Deleted"_s, u"I did not delete Sellers because it has subcategories."_s);
    QTest::keyClick(&desk.View(), Qt::Key_Delete);
    QVERIFY(desk.Database.TakeStatements().isEmpty());

    desk.Click(u"C3"_s);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to delete the category named Vendors?"_s,
                       Answer::No);
    desk.Entry(u"mnuCatDelete"_s).trigger();
    QCOMPARE(desk.Person.LastStatus(), u"Vendors has not been Deleted"_s);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to delete the category named Vendors?"_s,
                       Answer::Yes);
    desk.Entry(u"mnuCatDelete"_s).trigger();
    QCOMPARE(desk.Person.LastStatus(), u"Vendors has been Deleted"_s);
    QCOMPARE(desk.Tree->SelectedKey(), u"C2"_s); // the last root goes to the one before it
    QCOMPARE(curCategoryID, 2);
}

void tst_CategoryTree::TheLastCategoryLeavesTheTitleReady()
{
    Desk desk;
    gSettings.ClientName = u"Mine"_s;
    for (const Long id : {1, 2})
        gCategories.Remove(id);
    desk.View().RemoveNode(desk.View().FindKey(u"C2"_s));
    desk.View().RemoveNode(desk.View().FindKey(u"C1"_s));
    desk.Click(u"C3"_s);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to delete the category named Vendors?"_s,
                       Answer::Yes);
    desk.Entry(u"mnuCatDelete"_s).trigger();
    QCOMPARE(desk.Tree->NodeCount(), 0);
    QCOMPARE(desk.Main->windowTitle(), u"Mine  - Ready"_s);
}

void tst_CategoryTree::ASubcategoryGoesOnlyWithoutContacts()
{
    Desk desk;
    desk.Click(u"S1"_s);
    desk.Person.Expect(u"Delete Cancelled"_s, u"I did not delete First home because it has contacts."_s);
    desk.Entry(u"mnuCatDelete"_s).trigger();
    CategoryAt(1)->Sub(1)->ContactCount = 0;
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to delete First home?"_s, Answer::Yes);
    desk.Entry(u"mnuCatDelete"_s).trigger();
    QCOMPARE(desk.Database.TakeStatements(), QStringList{u"delete from SubCategories Where ID=1"_s});
    QCOMPARE(desk.Tree->SelectedKey(), u"S2"_s);
    QCOMPARE(curSubIndex, 1); // the one behind it has moved up
    QCOMPARE(desk.Person.LastStatus(), u"First home has been Deleted"_s);
}

void tst_CategoryTree::AMoveKeepsTheCountsAsTheyWere()
{
    Desk desk;
    desk.Click(u"S2"_s);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to move Moving up to Vendors?"_s,
                       Answer::Yes);
    WhenFormOpens chooser(u"frmMove"_s, [](Form& form) {
        QCOMPARE(form.windowTitle(), u"Do you want me to move Moving up to "_s);
        auto& tree = Control<QTreeWidget>(form, u"TreeView1"_s);
        QTRY_COMPARE(tree.topLevelItemCount(), 3);
        QCOMPARE(tree.topLevelItem(0)->childCount(), 0);
        tree.setCurrentItem(tree.topLevelItem(2));
        ClickOn(form, u"cmdButton_2"_s);
    });
    desk.Entry(u"mnuSubMove"_s).trigger();
    QCOMPARE(desk.Person.LastStatus(), u"Moving up has been Moved"_s);
    QCOMPARE(desk.Tree->SelectedKey(), u"S2"_s);
    QCOMPARE(desk.Tree->SelectedParentKey(), u"C3"_s);
    QCOMPARE(CategoryAt(1)->ContactCount, 4);
    QCOMPARE(CategoryAt(3)->ContactCount, 0);
    QCOMPARE(ContactAt(4)->CategoryID, 3);
    QCOMPARE(FreshDatabase::Rows(u"Select CategoryID from Contacts Where ID=4"_s), QStringList{u"3"_s});
    QCOMPARE(FreshDatabase::Rows(u"Select ParentID from SubCategories Where ID=2"_s), QStringList{u"3"_s});
}

void tst_CategoryTree::AMoveIsRefused()
{
    Desk desk;
    CategoryAt(2)->Sub(1)->Description = u"moving UP "_s;
    desk.Click(u"S2"_s);
    const auto refuse = [&desk](int target, const QString& title, const QString& text) {
        desk.Person.Expect(title, text);
        const WhenMoveOpens chooser(target);
        desk.Entry(u"mnuSubMove"_s).trigger();
        QCOMPARE(desk.Person.LastStatus(), u"Moving up has not been Moved"_s);
        QVERIFY(desk.Database.TakeStatements().isEmpty());
    };
    refuse(0, u"Move has been Cancelled"_s, u"I did not move Moving up\r\nbecause it is already in Buyers."_s);
    refuse(1, u"Move Cancelled"_s,
           u"I did not move Moving up\r\nbecause I have found another subcategory with the same name in Sellers."_s);
}

void tst_CategoryTree::ADoubleClickOpensTheListOrANewContact()
{
    Desk desk;
    desk.Click(u"C1"_s);
    desk.Tree->trvCategories_DblClick();
    QVERIFY(!IsLoaded(u"frmList"_s));
    desk.OpenList(u"S1"_s);
    QCOMPARE(desk.EditorCalls, 0);
    // An empty subcategory opens a new contact, and the list goes first.
    desk.Click(u"S3"_s);
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QVERIFY(!IsLoaded(u"frmList"_s));
    QCOMPARE(desk.EditorCalls, 1);
    QCOMPARE(gEditMode, EditMode::NewContact);
}

void tst_CategoryTree::OnlyThePersonsClicksChangeTheCurrentNode()
{
    Desk desk;
    desk.Click(u"C2"_s);
    QVERIFY(desk.Tree->FindInTree(u"S1"_s));
    QCOMPARE(curCategoryID, 1); // finding a subcategory makes its parent current
    const QString title = desk.Main->windowTitle();
    desk.View().setFocus();
    QTest::keyClick(&desk.View(), Qt::Key_Down);
    QCOMPARE(curSubIndex, 2);
    QVERIFY(desk.Main->windowTitle() != title);
}

void tst_CategoryTree::TheFocusAloneChoosesNothing()
{
    Desk desk;
    desk.Main->setFocus();
    desk.View().setFocus(Qt::TabFocusReason);
    QCOMPARE(desk.Tree->SelectedKey(), QString());
    QTest::keyClick(&desk.View(), Qt::Key_Delete);
    QTest::keyClick(&desk.View(), Qt::Key_Return);
    QVERIFY(desk.Database.TakeStatements().isEmpty());
    QTest::keyClick(&desk.View(), Qt::Key_Down);
    QCOMPARE(desk.Tree->SelectedKey(), u"C1"_s);
    QCOMPARE(curCategoryID, 1);
}

void tst_CategoryTree::TabEndsALabelEdit()
{
    Desk desk;
    desk.Click(u"C1"_s);
    desk.Entry(u"mnuCatRename"_s).trigger();
    auto* editor = desk.View().findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->setText(u"Purchasers"_s);
    QTest::keyClick(editor, Qt::Key_Tab);
    QTest::qWait(0);
    QCOMPARE(desk.View().FindKey(u"C1"_s)->text(0), u"Purchasers"_s);
    QCOMPARE(desk.Tree->SelectedKey(), u"C1"_s);
    QTRY_VERIFY(desk.View().findChild<QLineEdit*>() == nullptr);
}

QTEST_MAIN(tst_CategoryTree)
#include "tst_CategoryTree.moc"
