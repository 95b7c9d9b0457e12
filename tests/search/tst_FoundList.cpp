#include "search/SearchDesk.h"

#include "model/DeleteContacts.h"
#include "model/faces.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "model/ShowContact.h"

#include <QApplication>

using namespace Qt::StringLiterals;

/// What is done with what was found.
class tst_FoundList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HeadersSortAndTheSpacerCountsNowhere();
    void CaptionsNameTheRow_data();
    void CaptionsNameTheRow();
    void AnAmpersandIsShownAsOne();
    void APressOutsideTheHighlightKeepsIt();
    void NothingPopsUpOverTheSpacer();
    void SelectAndUnselectFollowTheRows();
    void RemovingRowsLeavesTheCount();
    void AContactIsViewedInItsList();
    void APropertyIsViewedInItsList();
    void TheSubcategoryOfAViewedPropertyIsTheCurrentOne();
    void ThePopupActsOnWhatItNames();
    void DeletingContacts_data();
    void DeletingContacts();
    void DeletingTheDefaultPropertyIsTold();
    void DeletingHighlightedProperties();
    void DeletingAllFoundProperties_data();
    void DeletingAllFoundProperties();
    void ANoKeepsEverything();
    void AContactThatIsGoneIsReportedOnce();
    void APropertyThatIsGoneIsReportedAndTheOthersGo();
    void WhereTheFirstOwnerIsGoneNothingElseBecomesCurrent();
    void AnEditedContactIsRedrawn();

private:
    static constexpr auto question = "Please Confirm Before I Proceed"_L1;
    /// The texts of the entries of a popup that can be seen.
    static QStringList Captions(QMenu& menu)
    {
        QStringList captions;
        for (const QAction* entry : menu.actions())
            if (entry->isVisible())
                captions << entry->text();
        return captions;
    }
    static QStringList PopUp(SearchDesk& desk, int row, const char* menu)
    {
        desk.Press(desk.Found(), row, Qt::RightButton);
        const QStringList captions = Captions(desk.Menu(menu));
        const bool shown = desk.Menu(menu).isVisible();
        desk.Menu(menu).close();
        return shown ? captions : QStringList{};
    }
};

void tst_FoundList::HeadersSortAndTheSpacerCountsNowhere()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    Grid& found = desk.Found();
    Q_EMIT found.ColumnClick(found.ColumnIndex(u"AskingPrice"));
    QCOMPARE(desk.Texts(u"AskingPrice"), (QStringList{u"$250,000.00"_s, u"$90,000.00"_s, QString()}));
    Q_EMIT found.ColumnClick(found.ColumnIndex(u"Address1")); // any column flips the direction
    QVERIFY(!found.RowVisible(1));
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"2 Elm St"_s, u"3 Oak Ave"_s}));
    QCOMPARE(found.SelectedRow(), 2);
    found.selectAll();
    QCOMPARE(found.SelectionCount(), 3);
    auto* face = Face<FoundFace>::Get();
    QCOMPARE(face->FoundProperties(), (std::vector<Long>{1, 2, 3}));
    QCOMPARE(face->HighlightedProperties(), (std::vector<Long>{1, 2, 3}));
    QVERIFY(face->FoundContacts().empty());
    curPropertyID = 0;
    face->ShowHowManyFound();
    QCOMPARE(desk.Heading(), u"3 properties found"_s);
    QCOMPARE(curPropertyID, 0);
}

void tst_FoundList::CaptionsNameTheRow_data()
{
    QTest::addColumn<bool>("properties");
    QTest::addColumn<int>("row"); // 0: several
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("contact") << false << 1
                             << QStringList{u"View"_s, u"Delete Ann Lee"_s, u"Remove Ann Lee from the Found List"_s,
                                            u"Select Ann Lee"_s, u"Send Ann Lee's Information to a Word File"_s};
    QTest::newRow("contacts") << false << 0
                              << QStringList{u"View"_s, u"Delete the Highlighted Contacts"_s,
                                             u"Remove the Highlighted Contacts from the Found List"_s,
                                             u"Select the Highlighted Contacts"_s,
                                             u"Send Highlighted Contact Information to a Word File"_s};
    QTest::newRow("property") << true << 2
                              << QStringList{u"Delete the property located at 2 Elm St"_s,
                                             u"Remove the property located at 2 Elm St from the Found List"_s,
                                             u"Send the property located at 2 Elm St's Information to a Word File"_s};
    QTest::newRow("properties") << true << 0
                                << QStringList{u"Delete the Highlighted Properties"_s,
                                               u"Remove the Highlighted Properties from the Found List"_s,
                                               u"Send Highlighted Property Information to a Word File"_s};
}

void tst_FoundList::CaptionsNameTheRow()
{
    QFETCH(bool, properties);
    QFETCH(int, row);
    SearchDesk desk;
    if (properties)
        desk.Properties();
    desk.Search();
    desk.Found().ClearHighlight();
    if (row == 0)
        desk.Found().selectAll();
    QTEST(PopUp(desk, std::max(row, 1), properties ? "mnuHilitedProperties" : "mnuHilitedContacts"), "captions");
    QCOMPARE(desk.Person.LastStatus(), properties ? u"Property Search"_s : u"Contact search"_s);
    if (properties && row > 0)
        QCOMPARE(curPropertyID, row);
}

void tst_FoundList::AnAmpersandIsShownAsOne()
{
    SearchDesk desk;
    ContactAt(2)->LastName = u"Ray & Son"_s;
    (*ContactAt(1)->Properties.Find(2))->Addr1 = u"Elm & 2nd"_s;
    desk.Search();
    QCOMPARE(PopUp(desk, 2, "mnuHilitedContacts").at(1), u"Delete Bob M Ray && Son"_s);
    desk.Properties();
    desk.Search();
    QCOMPARE(PopUp(desk, 2, "mnuHilitedProperties").at(0), u"Delete the property located at Elm && 2nd"_s);
}

void tst_FoundList::APressOutsideTheHighlightKeepsIt()
{
    SearchDesk desk;
    desk.Search();
    Grid& found = desk.Found();
    found.ClearHighlight();
    found.SetRowSelected(1, true);
    found.SetRowSelected(2, true);
    QCOMPARE(PopUp(desk, 3, "mnuHilitedContacts").at(1), u"Delete the Highlighted Contacts"_s);
    QCOMPARE(Face<FoundFace>::Get()->HighlightedContacts(), (std::vector<Long>{1, 2}));
    // One highlighted row alone gives way to the one that was pressed.
    found.ClearHighlight();
    found.SetRowSelected(1, true);
    QCOMPARE(PopUp(desk, 3, "mnuHilitedContacts").at(1), u"Delete Cy Day"_s);
    QCOMPARE(Face<FoundFace>::Get()->HighlightedContacts(), (std::vector<Long>{3}));
}

void tst_FoundList::NothingPopsUpOverTheSpacer()
{
    SearchDesk desk;
    desk.SetCriterion(1, u"zoe"_s);
    desk.Search();
    QTest::mouseClick(desk.Found().viewport(), Qt::RightButton, {}, QPoint(20, 5));
    QVERIFY(!desk.Menu("mnuHilitedContacts").isVisible());
    TypeKey(desk.Main(), Qt::Key_Delete);
}

void tst_FoundList::SelectAndUnselectFollowTheRows()
{
    SearchDesk desk;
    desk.Search();
    const auto shown = [&desk] {
        Q_EMIT desk.Menu("mnuHilitedContacts").aboutToShow();
        return std::pair(desk.Entry("mnuSelectHilitedContacts").isVisible(),
                         desk.Entry("mnuUnselectHilitedContacts").isVisible());
    };
    desk.Press(desk.Found(), 1);
    QCOMPARE(shown(), std::pair(true, false));
    desk.Entry("mnuSelectHilitedContacts").trigger();
    QVERIFY(ContactAt(1)->Selected);
    QCOMPARE(shown(), std::pair(false, true));
    desk.Found().selectAll();
    QCOMPARE(shown(), std::pair(true, true));
    desk.Entry("mnuSelectHilitedContacts").trigger();
    QCOMPARE(gSelected.Ids(), (std::vector<Long>{1, 2, 3}));
    QCOMPARE(curContact->RecID, 3);
    QCOMPARE(shown(), std::pair(false, true));
    desk.Entry("mnuUnselectHilitedContacts").trigger();
    QVERIFY(gSelected.IsEmpty());
    QVERIFY(!desk.Found().CellFont(2, 1).bold());
}

void tst_FoundList::RemovingRowsLeavesTheCount()
{
    SearchDesk desk;
    desk.Search();
    desk.Press(desk.Found(), 1);
    desk.Entry("mnuClearHilitedContacts").trigger();
    QCOMPARE(desk.Texts(u"Name"), (QStringList{u"Bob M Ray"_s, u"Cy Day"_s}));
    QCOMPARE(desk.Heading(), u"3 contacts found"_s);
    QCOMPARE(desk.FoundMenus(), QStringList{u"mnuFoundContacts"_s});
    desk.Found().selectAll();
    desk.Entry("mnuClearHilitedContacts").trigger();
    QCOMPARE(desk.Found().Rows(), 1);
    QCOMPARE(desk.FoundMenus(), QStringList{});
    QCOMPARE(gContacts.Count(), 3);

    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 2);
    desk.Entry("mnuClearHilitedProperties").trigger();
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"3 Oak Ave"_s}));
    QCOMPARE(desk.Heading(), u"3 properties found"_s);
    QCOMPARE(desk.Database.TakeStatements(), QStringList{});
}

void tst_FoundList::AContactIsViewedInItsList()
{
    SearchDesk desk;
    desk.Search();
    Grid& found = desk.Found();
    const QPoint place = found.visualRect(found.model()->index(1, 0)).center();
    QTest::mouseClick(found.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(found.viewport(), Qt::LeftButton, {}, place);
    Form* list = Forms::Find(u"frmList"_s);
    QVERIFY(list != nullptr && list->isVisible());
    const auto& grid = Control<Grid>(*list, u"GridList"_s);
    QCOMPARE(grid.RowItemData(grid.SelectedRow()), 2);
    QCOMPARE(grid.SelectionCount(), 1);
    QCOMPARE(curContact->RecID, 2);
    QCOMPARE(gEditMode, EditMode::Neutral);
    QCOMPARE(Face<TreeFace>::Get()->SelectedKey(), u"S1"_s);
}

void tst_FoundList::APropertyIsViewedInItsList()
{
    SearchDesk desk;
    const Openers before = gOpeners;
    QString opened;
    gOpeners.PropertyList = [&opened] { opened = QString::number(curPropertyID) + u" of "_s + curContact->FirstName; };
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 3);
    TypeKey(desk.Main(), Qt::Key_Return);
    QCOMPARE(opened, u"3 of Bob"_s);
    QCOMPARE(Face<TreeFace>::Get()->SelectedKey(), u"S1"_s);
    gOpeners = before;
}

void tst_FoundList::TheSubcategoryOfAViewedPropertyIsTheCurrentOne()
{
    SearchDesk desk;
    curCategoryID = 1;
    const auto second = std::make_shared<Category>();
    second->Description = u"Second home"_s;
    second->ParentID = 1;
    CreateASubCategory(second, false);
    ContactAt(2)->subCategoryID = 2;
    ContactAt(2)->DefaultProperty = 3;
    curContact = ContactAt(1);
    ShowContact(); // the list of the first home stands open
    desk.Main().ShowTab(1);
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 3);
    {
        const WhenFormOpens opened(u"frmPropertyList"_s, [](Form& form) { TypeKey(form, Qt::Key_Escape); });
        TypeKey(desk.Main(), Qt::Key_Return);
    }
    QCOMPARE(Face<TreeFace>::Get()->SelectedKey(), u"S2"_s);
    QCOMPARE(CategoryAt(curCategoryID)->Sub(curSubIndex)->RecID, 2);
}

void tst_FoundList::ThePopupActsOnWhatItNames()
{
    SearchDesk desk;
    desk.Search();
    Grid& found = desk.Found();
    found.SelectCell(3, 1);
    found.SetRowSelected(3, false);
    found.SetRowSelected(1, true);
    // Below the last row, where no row is pressed.
    QTest::mouseClick(found.viewport(), Qt::RightButton, {}, QPoint(20, found.viewport()->height() - 4));
    QCOMPARE(desk.Entry("mnuClearHilitedContacts").text(), u"Remove Cy Day from the Found List"_s);
    desk.Menu("mnuHilitedContacts").close();
    desk.Entry("mnuClearHilitedContacts").trigger();
    QCOMPARE(desk.Texts(u"Name"), (QStringList{u"Ann Lee"_s, u"Bob M Ray"_s}));
}

void tst_FoundList::DeletingContacts_data()
{
    QTest::addColumn<QList<int>>("highlighted");
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("one") << QList<int>{2} << false << u"Do you want me to permanently delete Bob M Ray?"_s
                         << QStringList{u"Ann Lee"_s, u"Cy Day"_s};
    QTest::newRow("two") << QList<int>{1, 3} << false
                         << u"Do you want me to permanently delete the 2 Highlighted Contacts?"_s
                         << QStringList{u"Bob M Ray"_s};
    QTest::newRow("all") << QList<int>{1} << true << u"Do you want me to permanently delete the 3 Found Contacts?"_s
                         << QStringList{};
}

void tst_FoundList::DeletingContacts()
{
    QFETCH(QList<int>, highlighted);
    QFETCH(bool, all);
    QFETCH(QString, text);
    QFETCH(QStringList, left);
    SearchDesk desk;
    desk.Search();
    desk.Found().ClearHighlight();
    for (const int row : highlighted)
        desk.Found().SetRowSelected(row, true);
    desk.Found().setFocus();
    desk.Person.Expect(question, text, Answer::Yes);
    if (all)
        desk.Entry("mnuDeleteFoundContacts").trigger();
    else
        TypeKey(desk.Main(), Qt::Key_Delete);
    QCOMPARE(desk.Texts(u"Name"), left);
    QCOMPARE(gContacts.Count(), left.size());
    QCOMPARE(desk.Heading(), left.isEmpty()     ? u"No contacts found"_s
                             : left.size() == 1 ? u"1 contact found"_s
                                                : u"2 contacts found"_s);
}

void tst_FoundList::DeletingTheDefaultPropertyIsTold()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 3);
    desk.Press(desk.Found(), 1);
    // The question names the row, whatever was current before.
    curPropertyID = 3;
    curContact = ContactAt(2);
    desk.Person.Expect(question, u"Do you want me to permanently delete A-1?"_s, Answer::Yes);
    desk.Person.Expect(u"Default Property Deleted for Ann Lee"_s,
                       u"Please note that you have deleted this contact's Default Property. It is\r\n"
                       "important that you remember to assign a new Default Property for this\r\n"
                       "contact to prevent missing detail in Mail Merges that contain property\r\n"
                       "information."_s);
    TypeKey(desk.Main(), Qt::Key_Delete);
    QCOMPARE(ContactAt(1)->DefaultProperty, 0);
    QVERIFY(!ContactAt(1)->Properties.Exists(1));
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"2 Elm St"_s, u"3 Oak Ave"_s}));
    QCOMPARE(desk.Heading(), u"2 properties found"_s);
    QCOMPARE(desk.Person.LastStatus(), u"Deleted"_s);
    QCOMPARE(desk.Database.TakeStatements(), QStringList{u"Delete from PropDetail Where ID=1"_s});
}

void tst_FoundList::DeletingHighlightedProperties()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    desk.Found().SelectCell(2, 2);
    desk.Found().SetRowSelected(3, true);
    desk.Person.Expect(question, u"Do you want me to permanently delete the highlighted Properties?"_s, Answer::Yes);
    desk.Entry("mnuDeleteHilitedProperties").trigger();
    QCOMPARE(desk.Texts(u"Address1"), QStringList{u"1 Elm St"_s});
    QCOMPARE(desk.Database.TakeStatements(),
             (QStringList{u"Delete from PropDetail Where ID=3"_s, u"Delete from PropDetail Where ID=2"_s}));
}

void tst_FoundList::DeletingAllFoundProperties_data()
{
    QTest::addColumn<int>("highlighted");
    QTest::addColumn<QString>("text");
    QTest::newRow("none highlighted") << 0 << u"Do you want me to permanently delete all the found properties?"_s;
    QTest::newRow("one highlighted: still all") << 1 << u"Do you want me to permanently delete this property?"_s;
    QTest::newRow("two highlighted") << 2 << u"Do you want me to permanently delete all the found properties?"_s;
}

void tst_FoundList::DeletingAllFoundProperties()
{
    QFETCH(int, highlighted);
    QFETCH(QString, text);
    SearchDesk desk;
    ContactAt(1)->DefaultProperty = 0;
    desk.Properties();
    desk.Search();
    for (int row = 1; row <= highlighted; ++row)
        desk.Found().SetRowSelected(row, true);
    desk.Person.Expect(question, text, Answer::Yes);
    desk.Entry("mnuDeleteFoundProp").trigger();
    QCOMPARE(desk.Found().Rows(), 1);
    QCOMPARE(desk.Heading(), u"No properties found"_s);
    QCOMPARE(desk.HeadingColor(), QColor(255, 0, 0));
    QCOMPARE(FreshDatabase::Rows(u"Select ID from PropDetail"_s), QStringList{});
}

void tst_FoundList::ANoKeepsEverything()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 2);
    desk.Person.Expect(question, u"Do you want me to permanently delete the property located at 2 Elm St?"_s,
                       Answer::No);
    desk.Entry("mnuDeleteHilitedProperties").trigger();
    QCOMPARE(desk.Person.LastStatus(), u"Delete cancelled"_s);
    QCOMPARE(desk.Found().Rows(), 4);
    QCOMPARE(desk.Database.TakeStatements(), QStringList{});
}

void tst_FoundList::AContactThatIsGoneIsReportedOnce()
{
    SearchDesk desk;
    desk.Search();
    desk.Press(desk.Found(), 2);
    gContacts.Remove(2);
    desk.Person.Expect(u"frmMain ViewFoundItem Error #424"_s, u"Object required"_s);
    TypeKey(desk.Main(), Qt::Key_Return);
    // What the look left behind is nobody, also to the next search.
    desk.Search();
    QCOMPARE(desk.Texts(u"Name"), (QStringList{u"Ann Lee"_s, u"Cy Day"_s}));
}

void tst_FoundList::APropertyThatIsGoneIsReportedAndTheOthersGo()
{
    SearchDesk desk;
    ContactAt(1)->DefaultProperty = 0;
    desk.Properties();
    desk.Search();
    ContactAt(1)->Properties.Remove(2);
    desk.Person.Expect(question, u"Do you want me to permanently delete all the found properties?"_s, Answer::Yes);
    desk.Person.Expect(u"frmMain DeletePropFromFoundList Error #424"_s, u"Object required"_s);
    desk.Entry("mnuDeleteFoundProp").trigger();
    QCOMPARE(desk.Texts(u"Address1"), QStringList{u"2 Elm St"_s});
    QCOMPARE(FreshDatabase::Rows(u"Select ID from PropDetail"_s), QStringList{u"2"_s});
}

void tst_FoundList::WhereTheFirstOwnerIsGoneNothingElseBecomesCurrent()
{
    SearchDesk desk;
    ContactAt(1)->DefaultProperty = 0;
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 3);
    gContacts.Remove(1);
    desk.Person.Expect(question, u"Do you want me to permanently delete B-3?"_s, Answer::Yes);
    desk.Person.Expect(u"frmMain ShowHowManyFound Error #424"_s, u"Object required"_s);
    TypeKey(desk.Main(), Qt::Key_Delete);
    QCOMPARE(desk.Heading(), u"2 properties found"_s);
    QCOMPARE(curContact->RecID, 2);
    QCOMPARE(curPropertyID, 3);
}

void tst_FoundList::AnEditedContactIsRedrawn()
{
    SearchDesk desk;
    desk.Search();
    ContactAt(2)->LastName = u"Raymond"_s;
    Face<FoundFace>::Get()->RedrawContact(*ContactAt(2));
    QCOMPARE(desk.Texts(u"Name").at(1), u"Bob M Raymond"_s);
    desk.Properties();
    desk.Search();
    Face<FoundFace>::Get()->RemoveContacts({1}); // a property of that number stays
    Face<FoundFace>::Get()->RemoveProperties({2});
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"3 Oak Ave"_s}));
}

QTEST_MAIN(tst_FoundList)
#include "tst_FoundList.moc"
