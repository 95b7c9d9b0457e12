#include "search/SearchDesk.h"

#include "model/faces.h"
#include "model/PropDetail.h"

#include <QContextMenuEvent>

using namespace Qt::StringLiterals;

/// The found list and the windows beside it: what they open, and what they delete while it stands there.
class tst_FoundAndOthers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APropertyIsViewedInItsWindow();
    void AContactWithoutAPlaceInTheTreeIsReported();
    void DeletingInTheContactListKeepsItsRowCurrent();
    void DeletingInThePropertyListKeepsItsOwnerCurrent();
    void AContactThatIsGoneLeavesTheOthersWhole();
    void SeveralDefaultPropertiesAreToldOneByOne();
    void DatesAreSortedAsDatesWithTheSpacerFirst();
    void TheMenuKeyIsAboutTheCurrentRow();
    void APropertyThatIsGoneIsReportedOnce();
    void AHeldEnterOpensNothing();
    void AnImportSearchesContactsAnew();
    void AMarkThatComesLaterFits();

private:
    static constexpr auto question = "Please Confirm Before I Proceed"_L1;
    static PropDetail& Property(Long contact, Long id) { return **ContactAt(contact)->Properties.Find(id); }
    /// Opens the contact list of the one subcategory.
    static Form& OpenList()
    {
        Face<TreeFace>::Get()->FindInTree(u"S1"_s);
        Face<TreeFace>::Get()->trvCategories_DblClick();
        Form* list = Forms::Find(u"frmList"_s);
        if (list == nullptr)
            qFatal("no list has opened");
        return *list;
    }
};

void tst_FoundAndOthers::APropertyIsViewedInItsWindow()
{
    SearchDesk desk;
    auto& list = Control<Grid>(OpenList(), u"GridList"_s);
    list.SetSelectedRow(3);
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 2);
    {
        const WhenFormOpens opened(u"frmPropertyList"_s, [&list](Form& form) {
            const auto& rows = Control<Grid>(form, u"GridPropList"_s);
            QCOMPARE(rows.Rows(), 2);
            QCOMPARE(rows.RowItemData(rows.SelectedRow()), 2);
            QCOMPARE(form.windowTitle(), u"Ann Lee Properties"_s);
            QCOMPARE(list.RowItemData(list.SelectedRow()), 1);
            QCOMPARE(list.SelectionCount(), 1);
        });
        TypeKey(desk.Main(), Qt::Key_Return);
    }
    QCOMPARE(curContact->RecID, 1);
    QCOMPARE(curPropertyID, 2);
}

void tst_FoundAndOthers::AContactWithoutAPlaceInTheTreeIsReported()
{
    SearchDesk desk;
    ContactAt(2)->subCategoryID = 99;
    desk.Search();
    Face<TreeFace>::Get()->FindInTree(u"S1"_s);
    desk.Press(desk.Found(), 2);
    desk.Person.Expect(u"frmMain ViewFoundItem Error #91"_s, RunTimeError::StandardDescription(91));
    TypeKey(desk.Main(), Qt::Key_Return);
    QVERIFY(Forms::Find(u"frmList"_s) == nullptr);
}

void tst_FoundAndOthers::DeletingInTheContactListKeepsItsRowCurrent()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    auto& list = Control<Grid>(OpenList(), u"GridList"_s);
    desk.Press(list, 2);
    desk.Person.Expect(question, u"Delete Bob M Ray?"_s, Answer::Yes);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(list.RowItemData(list.SelectedRow()), 3);
    QCOMPARE(curContact->RecID, 3);
}

void tst_FoundAndOthers::DeletingInThePropertyListKeepsItsOwnerCurrent()
{
    SearchDesk desk;
    Property(2, 3).ContactID = 2;
    auto second = std::make_shared<PropDetail>(Property(2, 3));
    second->RecID = 4;
    second->Addr1 = u"4 Oak Ave"_s;
    second->MLS.clear();
    ContactAt(2)->Properties.Add(4, second);
    ContactAt(2)->DefaultProperty = 3;
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 3);
    const WhenFormOpens opened(u"frmPropertyList"_s, [&desk](Form& form) {
        desk.Person.Expect(question, u"Do you want me to permanently delete this property?"_s, Answer::Yes);
        desk.Person.Expect(u"New Default Property"_s,
                           u"Bob M Ray's new default property is now the property located at 4 Oak Ave"_s);
        Control<QAction>(form, u"mnuDelete"_s).trigger();
        QCOMPARE(curContact->RecID, 2);
        QCOMPARE(curPropertyID, 4);
        QCOMPARE(form.windowTitle(), u" - 1 property for Bob M Ray"_s);
    });
    TypeKey(desk.Main(), Qt::Key_Return);
    QCOMPARE(ContactAt(2)->DefaultProperty, 4);
    QCOMPARE(ContactAt(1)->DefaultProperty, 1);
    QCOMPARE(desk.Heading(), u"3 properties found"_s);
}

void tst_FoundAndOthers::AContactThatIsGoneLeavesTheOthersWhole()
{
    SearchDesk desk;
    desk.Search();
    gContacts.Remove(2);
    desk.Person.Expect(question, u"Do you want me to permanently delete the 3 Found Contacts?"_s, Answer::Yes);
    desk.Person.Expect(u"DeleteContacts Error #424"_s, u"Object required"_s);
    desk.Entry("mnuDeleteFoundContacts").trigger();
    QVERIFY(gContacts.Exists(1) && gContacts.Exists(3));
    QCOMPARE(desk.Found().Rows(), 4);
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Contacts order by ID"_s), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

void tst_FoundAndOthers::SeveralDefaultPropertiesAreToldOneByOne()
{
    SearchDesk desk;
    ContactAt(2)->DefaultProperty = 3;
    desk.Properties();
    desk.Search();
    desk.Found().selectAll();
    desk.Person.Expect(question, u"Do you want me to permanently delete the highlighted Properties?"_s, Answer::Yes);
    desk.Person.ExpectReport(u"Default Property Deleted for Bob M Ray"_s);
    desk.Person.ExpectReport(u"Default Property Deleted for Ann Lee"_s);
    desk.Entry("mnuDeleteHilitedProperties").trigger();
    QCOMPARE(ContactAt(2)->DefaultProperty, 0);
    QCOMPARE(ContactAt(1)->DefaultProperty, 0);
}

void tst_FoundAndOthers::DatesAreSortedAsDatesWithTheSpacerFirst()
{
    SearchDesk desk;
    Property(1, 1).ClosingDate = u"9/30/2025"_s;
    Property(1, 2).ClosingDate = u"12/1/2026"_s;
    Property(2, 3).ClosingDate = u"2/1/2026"_s;
    desk.Properties();
    desk.Search();
    const QStringList oldestFirst{u"9/30/2025"_s, u"2/1/2026"_s, u"12/1/2026"_s};
    const QStringList newestFirst{u"12/1/2026"_s, u"2/1/2026"_s, u"9/30/2025"_s};
    const auto sort = [&desk] {
        Q_EMIT desk.Found().ColumnClick(desk.Found().ColumnIndex(u"ClosingDate"));
        return desk.Texts(u"ClosingDate");
    };
    QCOMPARE(sort(), newestFirst);
    QCOMPARE(sort(), oldestFirst);
    QVERIFY(!desk.Found().RowVisible(1));
    QCOMPARE(sort(), newestFirst);
    // A new search keeps the direction that comes next; other columns begin anew.
    desk.Search();
    QCOMPARE(sort(), oldestFirst);
    desk.Choose("optSearch_0");
    desk.Search();
    Q_EMIT desk.Found().ColumnClick(desk.Found().ColumnIndex(u"Properties"));
    QCOMPARE(desk.Texts(u"Properties"), (QStringList{u"2"_s, u"1"_s, u"0"_s}));
}

void tst_FoundAndOthers::TheMenuKeyIsAboutTheCurrentRow()
{
    SearchDesk desk;
    desk.Search();
    Grid& found = desk.Found();
    found.SelectCell(3, 1);
    found.ClearHighlight();
    found.SetRowSelected(1, true);
    QCOMPARE(found.SelectedRow(), 3);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&found, &asked);
    QCOMPARE(desk.Entry("mnuDeleteHilitedContacts").text(), u"Delete Cy Day"_s);
    QCOMPARE(Face<FoundFace>::Get()->HighlightedContacts(), std::vector<Long>{3});
    desk.Menu("mnuHilitedContacts").close();
    // Where a contact is gone nothing is offered.
    gContacts.Remove(3);
    desk.Person.Expect(u"frmMain mnuHilitedContacts_Click Error #424"_s, u"Object required"_s);
    Q_EMIT desk.Menu("mnuHilitedContacts").aboutToShow();
    QVERIFY(!desk.Entry("mnuSelectHilitedContacts").isVisible());
}

void tst_FoundAndOthers::APropertyThatIsGoneIsReportedOnce()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    desk.Press(desk.Found(), 2);
    ContactAt(1)->Properties.Remove(2);
    desk.Person.Expect(u"frmMain mnuDeleteHilitedProperties_Click Error #424"_s, u"Object required"_s);
    TypeKey(desk.Main(), Qt::Key_Delete);
    QCOMPARE(desk.Found().Rows(), 4);
}

void tst_FoundAndOthers::AHeldEnterOpensNothing()
{
    SearchDesk desk;
    desk.SetCriterion(3, u"Lee"_s);
    desk.Press(desk.Criteria(), 3);
    desk.Search();
    HoldKey(desk.Main(), Qt::Key_Return);
    QVERIFY(Forms::Find(u"frmSetValue"_s) == nullptr);
    QCOMPARE(desk.Heading(), u"1 contact found"_s);
    desk.Press(desk.Found(), 1);
    HoldKey(desk.Main(), Qt::Key_Return);
    QVERIFY(Forms::Find(u"frmList"_s) == nullptr);
}

void tst_FoundAndOthers::AnImportSearchesContactsAnew()
{
    SearchDesk desk;
    desk.Properties();
    desk.SetCriterion(5, u"Salem"_s);
    desk.Search();
    for (int i = 0; i < 2; ++i) { // from the one mode and from the other
        Face<SearchFace>::Get()->SearchContactsAnew();
        QVERIFY(Control<QRadioButton>(desk.Main(), u"optSearch_0"_s).isChecked());
        QCOMPARE(desk.Criteria().Rows(), 19);
        QCOMPARE(desk.Criteria().CellText(1, 1), u"First Name:"_s);
        for (int row = 1; row <= 19; ++row)
            QCOMPARE(desk.Criteria().CellText(row, 2), QString());
        QCOMPARE(desk.Found().Rows(), 0);
        QCOMPARE(desk.Heading(), u"Search Results"_s);
        QCOMPARE(desk.FoundMenus(), QStringList{});
        desk.SetCriterion(1, u"Ann"_s);
        desk.Search();
        QCOMPARE(desk.Texts(u"Name"), QStringList{u"Ann Lee"_s});
    }
}

void tst_FoundAndOthers::AMarkThatComesLaterFits()
{
    SearchDesk desk;
    ContactAt(1)->LastName = QString(40, u'W');
    desk.Search();
    const int plain = desk.Found().columnWidth(0);
    curContact = ContactAt(1);
    SelectCurContact();
    QVERIFY(desk.Found().columnWidth(0) > plain);
}

QTEST_MAIN(tst_FoundAndOthers)
#include "tst_FoundAndOthers.moc"
