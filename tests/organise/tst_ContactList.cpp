#include "organise/Desk.h"

#include "core/Clock.h"
#include "core/Dates.h"
#include "model/DeleteContacts.h"
#include "model/PropDetail.h"
#include "ui/widgets/Forms.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_ContactList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ARowForEachContactInTheirOrder();
    void AlertsPropertiesAndSelectionShowInTheirColumns();
    void AClickMakesTheContactCurrentAndKeepsTheColumn();
    void AClickOnCheckedTogglesTheSelection();
    void TheMenuSpeaksOfOneOrOfMany();
    void NewAddsARowAndCancelTakesItAway();
    void TheSecondClickOnAnyHeaderTurnsTheOrder();
    void DeletingTakesEverythingWithIt();
    void DeletingAsksInTheseWords();
    void MovingContactsMovesTheCounts();
    void AMoveToTheSameSubcategoryIsRefused();
    void TheChooserWantsASubcategory();
    void AnEmptyListClosesItselfWhenItComesBack();
    void ShowContactBringsTreeAndListToIt();
    void AnEmptyListHasNothingToSortOrChange();
    void AClosedListIsNotThereForTheOthers();
    void ClosingTheListUnderACategoryTellsNothing();
    void UnselectingAllAsksFirst();

private:
    static void Press(Grid& grid, int row, int column, Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers keys = {});
    static QAction& Entry(const QString& name);
};

void tst_ContactList::Press(Grid& grid, int row, int column, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    const QModelIndex index = grid.model()->index(row - 1, column - 1);
    QTest::mouseClick(grid.viewport(), button, keys, grid.visualRect(index).center());
}

QAction& tst_ContactList::Entry(const QString& name)
{
    return Control<QAction>(*Forms::Find(u"frmList"_s), name);
}

void tst_ContactList::ARowForEachContactInTheirOrder()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    QStringList names;
    for (int row = 1; row <= grid.Rows(); ++row) {
        names << grid.CellText(row, grid.ColumnIndex(u"FirstName")) + u' ' +
                     grid.CellText(row, grid.ColumnIndex(u"State"));
        QCOMPARE(grid.RowItemData(row), row);
    }
    QCOMPARE(names, (QStringList{u"Ann AL"_s, u"Bob AL"_s, u"Cy AL"_s}));
    QCOMPARE(Forms::Find(u"frmList"_s)->windowTitle(), u"Contacts in First home"_s);
    QCOMPARE(grid.Columns(), 22);
    QCOMPARE(grid.SelectedRow(), 1);
    QCOMPARE(grid.Column(grid.SelectedCol()).Key, u"FirstName"_s);
    QCOMPARE(curContact->RecID, 1);
    QTRY_COMPARE(desk.Person.LastStatus(), u"Contact list"_s);
}

void tst_ContactList::AlertsPropertiesAndSelectionShowInTheirColumns()
{
    Desk desk;
    Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    for (const int days : {-1, 0}) {
        gAlerts.Add(u"A1"_s, 2, ToDate(QDate(2026, 11, 22).addDays(days)), {});
        ++ContactAt(2)->NumberOfAlerts;
    }
    gAlerts.Add(u"A3"_s, 3, ToDate(QDate(2026, 12, 1)), {});
    ++ContactAt(3)->NumberOfAlerts;
    ContactAt(1)->Properties.Add(5, std::make_shared<PropDetail>());
    curContact = ContactAt(3);
    SelectCurContact();
    Grid& grid = desk.OpenList(u"S1"_s);
    const int first = grid.ColumnIndex(u"FirstName");
    QCOMPARE(grid.CellIcon(1, 1), QString());
    QCOMPARE(grid.CellText(2, 1), u"2"_s);
    QCOMPARE(grid.CellIcon(2, 1), u"red"_s);
    QCOMPARE(grid.CellColor(2, first), QColor(255, 0, 0));
    QCOMPARE(grid.CellIcon(3, 1), u"white"_s);
    QVERIFY(grid.CellColor(3, first) != QColor(255, 0, 0));
    QCOMPARE(grid.CellIcon(3, 2), u"checked"_s);
    QCOMPARE(grid.CellText(1, 3), u"1"_s);
    QCOMPARE(grid.CellIcon(1, 3), u"house"_s);
    // When the alerts are gone, the row looks like the others again.
    gAlerts.RemoveAll();
    curContact = ContactAt(2);
    curContact->NumberOfAlerts = 0;
    Face<ContactListFace>::Get()->ShowAlertIcon();
    QCOMPARE(grid.CellText(2, 1), QString());
    QCOMPARE(grid.CellIcon(2, 1), QString());
    QCOMPARE(grid.CellColor(2, first), grid.CellColor(2, grid.ColumnIndex(u"Address1")));
    Clock::SetSource({});
}

void tst_ContactList::AClickMakesTheContactCurrentAndKeepsTheColumn()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    gEditMode = EditMode::ModifyContact;
    Press(grid, 2, grid.ColumnIndex(u"HomePhone"));
    QCOMPARE(curContact->RecID, 2);
    QCOMPARE(gEditMode, EditMode::Neutral);
    QCOMPARE(gFocusField, u"Home Phone"_s);
    Press(grid, 1, 1);
    QCOMPARE(gFocusField, QString()); // an icon column has no header text
    const QRect cell = grid.visualRect(grid.model()->index(1, grid.ColumnIndex(u"LastName") - 1));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(desk.EditorCalls, 1);
    QCOMPARE(gEditMode, EditMode::ModifyContact);
    QCOMPARE(curContact->RecID, 2);
}

void tst_ContactList::AClickOnCheckedTogglesTheSelection()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    Press(grid, 2, 2);
    QCOMPARE(gSelected.Ids(), std::vector<Long>{2});
    QCOMPARE(grid.CellIcon(2, 2), u"checked"_s);
    QCOMPARE(desk.Main->StatusBar1().Text(3), u" 1 selected contact"_s);
    QVERIFY(desk.Main->MainMenus().Menu(u"mnuSelectedRecords"_s).menuAction()->isVisible());
    Press(grid, 3, 2);
    QCOMPARE(desk.Main->StatusBar1().Text(3), u" 2 selected contacts"_s);
    Press(grid, 2, 2);
    Press(grid, 3, 2);
    QVERIFY(gSelected.IsEmpty());
    QCOMPARE(grid.CellIcon(2, 2), QString());
    QCOMPARE(desk.Main->StatusBar1().Text(3), QString());
    QVERIFY(!desk.Main->MainMenus().Menu(u"mnuSelectedRecords"_s).menuAction()->isVisible());
}

void tst_ContactList::TheMenuSpeaksOfOneOrOfMany()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    auto& menu = Control<QMenu>(*Forms::Find(u"frmList"_s), u"mnuContacts"_s);
    Press(grid, 2, 4, Qt::RightButton);
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QCOMPARE(curContact->RecID, 2);
    QCOMPARE(Entry(u"mnuModify"_s).text(), u"Modify Bob M Ray"_s);
    QCOMPARE(Entry(u"mnuManageAlerts"_s).text(), u"Bob M Ray's Existing Alerts"_s);
    QCOMPARE(Entry(u"mnuNewAlert"_s).text(), u"Set a New Alert for Bob M Ray"_s);
    QVERIFY(Entry(u"mnuSelect"_s).isVisible());
    QVERIFY(!Entry(u"mnuUnselect"_s).isVisible());
    QVERIFY(Entry(u"mnuNotes"_s).isEnabled());

    // A right click outside of a highlight of several leaves it alone.
    Press(grid, 1, 4);
    Press(grid, 2, 4, Qt::LeftButton, Qt::ShiftModifier);
    Press(grid, 3, 4, Qt::RightButton);
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QCOMPARE(Entry(u"mnuDelete"_s).text(), u"Delete the 2 Highlighted Contacts"_s);
    QCOMPARE(Entry(u"mnuMove"_s).text(), u"Move the 2 Highlighted Contacts"_s);
    QVERIFY(Entry(u"mnuSelect"_s).isVisible() && Entry(u"mnuUnselect"_s).isVisible());
    for (const auto name : {"mnuModify"_L1, "mnuNotes"_L1, "mnuManageAlerts"_L1, "mnuNewAlert"_L1})
        QVERIFY(!Entry(QString(name)).isEnabled());
    Entry(u"mnuSelect"_s).trigger();
    QCOMPARE(gSelected.Ids(), (std::vector<Long>{1, 2}));

    // The menu key asks for the popup of the current cell.
    grid.SelectCell(3, 4);
    TypeKey(*Forms::Find(u"frmList"_s), Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QCOMPARE(Entry(u"mnuModify"_s).text(), u"Modify Cy Day"_s);

    Press(grid, 1, 3, Qt::RightButton);
    auto& properties = Control<QMenu>(*Forms::Find(u"frmList"_s), u"mnuProperty"_s);
    Press(grid, 3, 3);
    Press(grid, 3, 3, Qt::RightButton);
    QTRY_VERIFY(properties.isVisible());
    QCOMPARE(properties.title(), u"Cy Day's Properties"_s);
    properties.close();
}

void tst_ContactList::NewAddsARowAndCancelTakesItAway()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    Entry(u"mnuNew"_s).trigger();
    QCOMPARE(desk.EditorCalls, 1);
    QCOMPARE(gEditMode, EditMode::NewContact);
    QCOMPARE(grid.Rows(), 4);
    QCOMPARE(grid.SelectedRow(), 4);
    Face<ContactListFace>::Get()->TakeNewRowAway();
    QCOMPARE(grid.Rows(), 3);
    QCOMPARE(grid.SelectedRow(), 3);
    QCOMPARE(curContact->RecID, 3); // its own selection handler ran
    QCOMPARE(gEditMode, EditMode::Neutral);
}

void tst_ContactList::TheSecondClickOnAnyHeaderTurnsTheOrder()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    const auto order = [&grid] { return QList<Long>{grid.RowItemData(1), grid.RowItemData(2), grid.RowItemData(3)}; };
    Q_EMIT grid.ColumnClick(grid.ColumnIndex(u"FirstName"));
    QCOMPARE(order(), (QList<Long>{3, 2, 1}));
    QCOMPARE(grid.SelectedRow(), 1);
    Q_EMIT grid.ColumnClick(grid.ColumnIndex(u"LastName"));
    QCOMPARE(order(), (QList<Long>{3, 1, 2}));
}

void tst_ContactList::DeletingTakesEverythingWithIt()
{
    Desk desk;
    FreshDatabase::Execute(u"Insert into PropDetail (ContactID) Values (1)"_s);
    FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate) Values (2,'1/5/2026')"_s);
    FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate) Values (4,'1/5/2026')"_s);
    gAlerts.Add(u"A1"_s, 2, Date(), {});
    gAlerts.Add(u"A2"_s, 4, Date(), {});
    curContact = ContactAt(2);
    SelectCurContact();
    curContact = ContactAt(4);
    SelectCurContact();
    Grid& grid = desk.OpenList(u"S1"_s);
    Press(grid, 1, 4);
    Press(grid, 2, 4, Qt::LeftButton, Qt::ControlModifier);
    (void)desk.Database.TakeStatements();
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Delete the 2 Highlighted Contacts?"_s, Answer::No);
    QTest::keyClick(&grid, Qt::Key_Delete);
    QCOMPARE(desk.Person.LastStatus(), u"Delete cancelled"_s);
    QVERIFY(desk.Database.TakeStatements().isEmpty());

    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Delete the 2 Highlighted Contacts?"_s, Answer::Yes);
    QTest::keyClick(&grid, Qt::Key_Delete);
    QCOMPARE(desk.Person.LastStatus(), u"Deleted"_s);
    QCOMPARE(desk.Database.TakeStatements(), (QStringList{u"Delete from Contacts Where ID in (1,2)"_s,
                                                          u"Delete from PropDetail Where ContactID in (1,2)"_s,
                                                          u"Delete from Alerts where ContactID in (1,2)"_s}));
    QCOMPARE(grid.Rows(), 1);
    QCOMPARE(curContact->RecID, 3);
    QCOMPARE(gContacts.Count(), 2);
    QCOMPARE(gAlerts.Count(), 1);
    QCOMPARE(gSelected.Ids(), std::vector<Long>{4});
    QCOMPARE(desk.Main->StatusBar1().Text(3), u" 1 selected contact"_s);
    QCOMPARE(CategoryAt(1)->ContactCount, 2);
    QCOMPARE(CategoryAt(1)->Sub(1)->ContactCount, 1);
    QVERIFY(FreshDatabase::Rows(u"Select * from PropDetail"_s).isEmpty());
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Alerts"_s), QStringList{u"2"_s});
}

void tst_ContactList::DeletingAsksInTheseWords()
{
    Desk desk;
    desk.OpenList(u"S1"_s);
    const auto refuse = [&desk](DeleteMode mode, const QString& question) {
        curContact = ContactAt(1);
        desk.Person.Expect(u"Please Confirm Before I Proceed"_s, question, Answer::No);
        DeleteContacts(mode);
    };
    refuse(DeleteMode::Hilited, u"Delete Ann Lee?"_s);
    refuse(DeleteMode::Current, u"Do you want me to permanently delete Ann Lee?"_s);
    curContact = ContactAt(4);
    SelectCurContact();
    refuse(DeleteMode::Selected, u"Do you want me to permanently delete Dee Fox?"_s);
    curContact = ContactAt(2);
    SelectCurContact();
    refuse(DeleteMode::Selected, u"Do you want me to permanently delete the 2 Selected Contacts?"_s);
}

void tst_ContactList::MovingContactsMovesTheCounts()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    gSettings.ClientName = u"Mine"_s;
    Press(grid, 2, 4);
    Press(grid, 3, 4, Qt::LeftButton, Qt::ShiftModifier);
    ContactAt(2)->MI = u"'"_s;
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s,
                       u"Do you want me to move all the highlighted contacts to Houses?"_s, Answer::Yes);
    // One that is refused does not keep the other from moving.
    desk.Person.ExpectReport(u"Class Contact UpdtateDB Error #-2147217900"_s);
    const WhenMoveOpens chooser(1, 0);
    Entry(u"mnuMove"_s).trigger();
    QCOMPARE(gReturnValue, u"1-2"_s);
    QCOMPARE(grid.Rows(), 1);
    QCOMPARE(CategoryAt(1)->ContactCount, 2);
    QCOMPARE(CategoryAt(1)->Sub(1)->ContactCount, 1);
    QCOMPARE(CategoryAt(2)->ContactCount, 2);
    QCOMPARE(CategoryAt(2)->Sub(1)->ContactCount, 2);
    QCOMPARE(FreshDatabase::Rows(u"Select ID,CategoryID,SubCategoryID from Contacts Where ID in (2,3)"_s),
             (QStringList{u"2|1|1"_s, u"3|2|3"_s}));
    QCOMPARE(desk.Main->windowTitle(), u"Mine - 1 contact in First home"_s);
    QCOMPARE(curContact->RecID, 1);
}

void tst_ContactList::AMoveToTheSameSubcategoryIsRefused()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    grid.SetRowSelected(2, true);
    desk.Person.Expect(u"Move has been Cancelled"_s,
                       u"I have cancelled the move operation because the destination\r\nsubcategory is the same as the "
                       "current subcategory."_s);
    const WhenMoveOpens chooser(0, 0);
    Entry(u"mnuMove"_s).trigger();
    QCOMPARE(chooser.Caption, u"Do you want me to move all the highlighted contacts to "_s);
    QCOMPARE(grid.Rows(), 3);
}

void tst_ContactList::TheChooserWantsASubcategory()
{
    Desk desk;
    desk.OpenList(u"S1"_s);
    desk.Person.Expect(u"I can move contacts only to other subcategories"_s,
                       u"Please select a subcategory under Buyers."_s);
    WhenFormOpens chooser(u"frmMove"_s, [](Form& form) {
        auto& tree = Control<QTreeWidget>(form, u"TreeView1"_s);
        QTRY_COMPARE(tree.topLevelItemCount(), 3);
        tree.setCurrentItem(nullptr);
        ClickOn(form, u"cmdButton_2"_s);
        QVERIFY(tree.topLevelItem(0)->isExpanded());
        QVERIFY(form.isVisible());
        TypeKey(form, Qt::Key_Escape);
    });
    Entry(u"mnuMove"_s).trigger();
    QCOMPARE(gReturnValue, u"Cancelled"_s);
}

void tst_ContactList::AnEmptyListClosesItselfWhenItComesBack()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    grid.Clear();
    gEditMode = EditMode::Neutral;
    Form other(u"frmOther"_s);
    other.Show();
    QTest::qWait(10);
    other.Unload();
    QTRY_VERIFY(!IsLoaded(u"frmList"_s));
}

void tst_ContactList::ShowContactBringsTreeAndListToIt()
{
    Desk desk;
    desk.View().setCurrentItem(nullptr);
    curContact = ContactAt(3);
    ShowContactList(desk.Main.get());
    Face<ContactListFace>::Get()->FillContactList();
    QCOMPARE(desk.Tree->SelectedKey(), u"S1"_s);
    QCOMPARE(Face<ContactListFace>::Get()->Rows(), 3);
}

void tst_ContactList::AnEmptyListHasNothingToSortOrChange()
{
    Desk desk;
    Grid& grid = desk.OpenList(u"S1"_s);
    grid.Clear();
    Q_EMIT grid.ColumnClick(4);
    auto& menu = Control<QMenu>(*Forms::Find(u"frmList"_s), u"mnuContacts"_s);
    Q_EMIT menu.aboutToShow();
    QVERIFY(!Entry(u"mnuModify"_s).isEnabled());
    QVERIFY(!Entry(u"mnuDelete"_s).isEnabled());
    QVERIFY(!Entry(u"mnuNewProperty"_s).isEnabled());
    QVERIFY(Entry(u"mnuNew"_s).isEnabled());
}

void tst_ContactList::AClosedListIsNotThereForTheOthers()
{
    Desk desk;
    desk.OpenList(u"S1"_s);
    gOpeners.ContactEditor = [] { QVERIFY(Face<ContactListFace>::Get() == nullptr); };
    desk.Click(u"S3"_s);
    desk.Tree->trvCategories_DblClick();
}

void tst_ContactList::ClosingTheListUnderACategoryTellsNothing()
{
    Desk desk;
    desk.OpenList(u"S2"_s);
    desk.Click(u"C3"_s); // its category has no second subcategory
    const QString title = desk.Main->windowTitle();
    Face<ContactListFace>::Get()->UnloadList();
    QCOMPARE(desk.Main->windowTitle(), title);
}

void tst_ContactList::UnselectingAllAsksFirst()
{
    Desk desk;
    for (const auto& [selected, question] :
         {std::pair(QList<Long>{2}, u"Do you want me to unselect Bob M Ray?"_s),
          std::pair(QList<Long>{2, 4}, u"Do you want me to unselect All 2 contacts?"_s)}) {
        for (const Long id : selected) {
            curContact = ContactAt(id);
            SelectCurContact();
        }
        desk.Person.Expect(u"Please Confirm Before I Proceed"_s, question, Answer::No);
        UnselectAll();
        QCOMPARE(gSelected.Count(), selected.size());
        desk.Person.Expect(u"Please Confirm Before I Proceed"_s, question, Answer::Yes);
        UnselectAll();
        QVERIFY(gSelected.IsEmpty());
        QCOMPARE(curContact->RecID, 2); // the earliest selected one is the last to go
    }
}

QTEST_MAIN(tst_ContactList)
#include "tst_ContactList.moc"
