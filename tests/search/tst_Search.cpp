#include "search/SearchDesk.h"

#include "model/PropDetail.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QFont>
#include <QLineEdit>

using namespace Qt::StringLiterals;

/// The search tab as a person works it: criteria, search, what is found.
class tst_Search : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheTabBeginsWithContacts();
    void TheOtherModeForgetsEverything();
    void ALookAtAnotherTabLosesNothing();
    void ARowIsAskedForInItsWindow_data();
    void ARowIsAskedForInItsWindow();
    void WhatIsTypedOpensTheWindowWithIt();
    void CancellingKeepsTheCriterion();
    void ClearAndClearAll();
    void ContactsAreFound();
    void NoContactAtAll();
    void SelectedContactsStandOut();
    void PropertiesAreFound();
    void PropertiesAreFoundByCaseAndByAllRows();
    void ARowThatFailsKeepsWhatItHad();
    void APropertySearchClearsTheLastOne();
    void ASearchByKeysAlone();
};

void tst_Search::TheTabBeginsWithContacts()
{
    SearchDesk desk;
    Grid& grid = desk.Criteria();
    QCOMPARE(grid.Rows(), 19);
    QCOMPARE(grid.Column(1).Header, u"Contact Criteria"_s);
    QCOMPARE(grid.Column(2).Header, u"    Search Values"_s);
    QCOMPARE(grid.CellText(7, 1), u"State:"_s);
    QCOMPARE(desk.Heading(), u"Search Results"_s);
    QCOMPARE(desk.HeadingColor(), QColor(154, 167, 252));
    QVERIFY(Control<QRadioButton>(desk.Main(), u"optSearch_0"_s).font().bold());
    QVERIFY(Control<QRadioButton>(desk.Main(), u"optAndOr_1"_s).isChecked());
    QVERIFY(!Control<QCheckBox>(desk.Main(), u"chkCase"_s).isChecked());
    const QAbstractItemModelTester tester(desk.Found().model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    desk.Search();
    desk.Properties();
    desk.Search();
}

void tst_Search::TheOtherModeForgetsEverything()
{
    SearchDesk desk;
    desk.SetCriterion(1, u"Ann"_s);
    desk.Search();
    QCOMPARE(desk.FoundMenus(), QStringList{u"mnuFoundContacts"_s});
    desk.Properties();
    QCOMPARE(desk.Criteria().Rows(), 37);
    QCOMPARE(desk.Criteria().Column(1).Header, u"Contact Criteria"_s);
    QCOMPARE(desk.Criteria().CellText(1, 2), QString());
    QCOMPARE(desk.Found().Rows(), 0);
    QCOMPARE(desk.Heading(), u"Search Results"_s);
    QCOMPARE(desk.FoundMenus(), QStringList{});
    QCOMPARE(desk.Person.LastStatus(), u"Property Search"_s);
    desk.Choose("optSearch_0");
    QCOMPARE(desk.Criteria().Rows(), 19);
    QCOMPARE(desk.Person.LastStatus(), u"Contact search"_s);
}

void tst_Search::ALookAtAnotherTabLosesNothing()
{
    SearchDesk desk;
    desk.SetCriterion(3, u"Lee"_s);
    desk.Search();
    desk.Main().ShowTab(0);
    desk.Main().ShowTab(1);
    QCOMPARE(desk.Criteria().CellText(3, 2), u"Lee"_s);
    QCOMPARE(desk.Heading(), u"1 contact found"_s);
}

void tst_Search::ARowIsAskedForInItsWindow_data()
{
    QTest::addColumn<bool>("properties");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("caption");
    QTest::newRow("a name") << false << 3 << u"frmSetValue"_s << u"LastName"_s;
    QTest::newRow("a state") << false << 7 << u"frmSetValue"_s << u"Mailing State"_s;
    QTest::newRow("an amount") << true << 32 << u"frmCurrency"_s << u" Search Criteria"_s;
    QTest::newRow("a date") << true << 31 << u"frmDate"_s << u" Search Criteria"_s;
    QTest::newRow("sold is called rented") << true << 33 << u"frmSetValue"_s << u"Rented"_s;
}

void tst_Search::ARowIsAskedForInItsWindow()
{
    QFETCH(bool, properties);
    QFETCH(int, row);
    QFETCH(QString, window);
    QFETCH(QString, caption);
    SearchDesk desk;
    if (properties)
        desk.Properties();
    Grid& grid = desk.Criteria();
    grid.EnsureVisible(row, 1);
    const QPoint place = grid.visualRect(grid.model()->index(row - 1, 0)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    const WhenFormOpens opened(window, [&](Form& form) { QCOMPARE(form.windowTitle(), caption); });
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place);
}

void tst_Search::WhatIsTypedOpensTheWindowWithIt()
{
    SearchDesk desk;
    Grid& grid = desk.Criteria();
    desk.Press(grid, 3);
    desk.Search();
    {
        const WhenFormOpens opened(u"frmSetValue"_s, [](Form& form) {
            TypeText(form, u"ay"_s);
            TypeKey(form, Qt::Key_Return);
        });
        TypeText(desk.Main(), u"d"_s);
    }
    QCOMPARE(grid.CellText(3, 2), u"day"_s);
    QCOMPARE(desk.Heading(), u"Search Results"_s);
    // Enter opens it empty; a list takes no letter.
    {
        const WhenFormOpens opened(u"frmSetValue"_s, [](Form& form) {
            QCOMPARE(Control<QLineEdit>(form, u"txtLongString"_s).text(), QString());
            TypeText(form, u"x"_s);
            TypeKey(form, Qt::Key_Return);
        });
        TypeKey(desk.Main(), Qt::Key_Return);
    }
    QCOMPARE(grid.CellText(3, 2), u"x"_s);
    desk.Press(grid, 7);
    const WhenFormOpens opened(
        u"frmSetValue"_s, [](Form& form) { QCOMPARE(Control<QComboBox>(form, u"cboState"_s).currentIndex(), -1); });
    TypeText(desk.Main(), u"F"_s);
}

void tst_Search::CancellingKeepsTheCriterion()
{
    SearchDesk desk;
    desk.SetCriterion(3, u"Lee"_s);
    desk.Press(desk.Criteria(), 3);
    const WhenFormOpens opened(u"frmSetValue"_s, [](Form& form) {
        TypeText(form, u"x"_s);
        TypeKey(form, Qt::Key_Escape);
    });
    TypeText(desk.Main(), u"y"_s);
    QCOMPARE(desk.Criteria().CellText(3, 2), u"Lee"_s);
}

void tst_Search::ClearAndClearAll()
{
    SearchDesk desk;
    desk.SetCriterion(1, u"Ann"_s);
    desk.SetCriterion(3, u"Lee"_s);
    desk.Search();
    ClickOn(desk.Main(), u"cmdbutton_1"_s); // no row is selected
    QCOMPARE(desk.Criteria().CellText(1, 2), u"Ann"_s);
    QCOMPARE(desk.Heading(), u"Search Results"_s);
    desk.Press(desk.Criteria(), 1);
    ClickOn(desk.Main(), u"cmdbutton_1"_s);
    QCOMPARE(desk.Criteria().CellText(1, 2), QString());
    QCOMPARE(desk.Criteria().CellText(3, 2), u"Lee"_s);
    ClickOn(desk.Main(), u"cmdbutton_3"_s);
    QCOMPARE(desk.Criteria().CellText(3, 2), QString());
    QVERIFY(desk.Found().Rows() > 0);
    ClickOn(desk.Main(), u"cmdbutton_4"_s);
    QCOMPARE(desk.Found().Rows(), 0);
    QCOMPARE(desk.FoundMenus(), QStringList{});
}

void tst_Search::ContactsAreFound()
{
    SearchDesk desk;
    Grid& found = desk.Found();
    desk.Search();
    QCOMPARE(desk.Texts(u"Name"), (QStringList{u"Ann Lee"_s, u"Bob M Ray"_s, u"Cy Day"_s}));
    QCOMPARE(desk.Heading(), u"3 contacts found"_s);
    QCOMPARE(found.Rows(), 4);
    QVERIFY(!found.RowVisible(4));
    QCOMPARE(found.SelectedRow(), 3);
    QStringList ann;
    for (int column = 1; column <= found.Columns(); ++column)
        ann << found.CellText(1, column);
    QCOMPARE(ann.join(u'|'), u"Ann Lee|(215) 555-0100|||||12 Elm St|||FL|19103-2204|2"_s);
    QCOMPARE(found.RowItemData(1), 1);
    // No column is narrower than the spacer.
    QVERIFY(found.columnWidth(3) > found.fontMetrics().horizontalAdvance(u'.' + QString(25, u' ') + u'.'));

    desk.SetCriterion(7, u"FL"_s);
    desk.SetCriterion(1, u"CY"_s);
    desk.Search();
    QCOMPARE(desk.Texts(u"Name"), (QStringList{u"Ann Lee"_s, u"Cy Day"_s}));
    Control<QCheckBox>(desk.Main(), u"chkCase"_s).setChecked(true);
    desk.Search();
    QCOMPARE(desk.Texts(u"Name"), QStringList{u"Ann Lee"_s});
    desk.Choose("optAndOr_0");
    desk.Search();
    QCOMPARE(desk.Heading(), u"No contacts found"_s);
    QCOMPARE(desk.HeadingColor(), QColor(255, 0, 0));
    QCOMPARE(desk.FoundMenus(), QStringList{});
}

void tst_Search::NoContactAtAll()
{
    SearchDesk desk;
    gContacts.RemoveAll();
    desk.Search();
    QCOMPARE(desk.Found().Rows(), 1);
    QVERIFY(!desk.Found().RowVisible(1));
    QCOMPARE(desk.Heading(), u"No contacts found"_s);
    QCOMPARE(desk.Found().SelectedRow(), 0);
}

void tst_Search::SelectedContactsStandOut()
{
    SearchDesk desk;
    Grid& found = desk.Found();
    const auto marked = [&found](int row) {
        return found.CellFont(row, 1).bold() && found.CellFont(row, 1).italic() &&
               found.CellColor(row, 1) == QColor(0, 192, 0);
    };
    curContact = ContactAt(2);
    SelectCurContact();
    desk.Search();
    QVERIFY(!marked(1) && marked(2));
    // Those that are listed follow at once.
    curContact = ContactAt(1);
    SelectCurContact();
    QVERIFY(marked(1));
    curContact = ContactAt(2);
    UnSelectCurContact();
    QVERIFY(!marked(2));
}

void tst_Search::PropertiesAreFound()
{
    SearchDesk desk;
    Grid& found = desk.Found();
    desk.Properties();
    desk.Search();
    QCOMPARE(desk.Heading(), u"3 properties found"_s);
    QCOMPARE(desk.FoundMenus(), QStringList{u"mnuFoundProperties"_s});
    QCOMPARE(found.Columns(), 38);
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"2 Elm St"_s, u"3 Oak Ave"_s}));
    QCOMPARE(desk.Texts(u"ContactName"), (QStringList{u"Ann Lee"_s, u"Ann Lee"_s, u"Bob M Ray"_s}));
    QCOMPARE(desk.Texts(u"AskingPrice"), (QStringList{u"$250,000.00"_s, u"$90,000.00"_s, QString()}));
    QCOMPARE(desk.Texts(u"SqFt"), (QStringList{u"1312"_s, QString(), QString()}));
    QCOMPARE(desk.Texts(u"Listed"), (QStringList{u"Yes"_s, u"No"_s, u" "_s}));
    QCOMPARE(desk.Texts(u"ListingDate"), (QStringList{QString(), QString(), QString()}));
    QVERIFY(found.isColumnHidden(0));
    QCOMPARE(found.CellText(3, 1), u"2"_s);
    QCOMPARE(found.RowItemData(3), 3);
    QCOMPARE(found.columnWidth(found.ColumnIndex(u"ExpDate") - 1), 100);
    // The first one is the current one.
    QCOMPARE(curPropertyID, 1);
    QCOMPARE(curContact->RecID, 1);

    desk.SetCriterion(28, u"No"_s);
    desk.Search();
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"2 Elm St"_s, u"3 Oak Ave"_s}));
    QCOMPARE(curPropertyID, 2);
    desk.SetCriterion(32, u"Less Than $900,000.00"_s);
    desk.Choose("optAndOr_0");
    desk.Search();
    QCOMPARE(desk.Heading(), u"No properties found"_s);
}

void tst_Search::PropertiesAreFoundByCaseAndByAllRows()
{
    SearchDesk desk;
    desk.Properties();
    desk.SetCriterion(3, u"elm"_s);
    desk.SetCriterion(28, u"Yes"_s);
    desk.Search();
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"2 Elm St"_s}));
    desk.Choose("optAndOr_0");
    desk.Search();
    QCOMPARE(desk.Texts(u"Address1"), QStringList{u"1 Elm St"_s});
    Control<QCheckBox>(desk.Main(), u"chkCase"_s).setChecked(true);
    desk.Search();
    QCOMPARE(desk.Heading(), u"No properties found"_s);
    desk.SetCriterion(3, u"Elm"_s);
    desk.Search();
    QCOMPARE(desk.Heading(), u"1 property found"_s);
}

void tst_Search::ARowThatFailsKeepsWhatItHad()
{
    SearchDesk desk;
    (*ContactAt(1)->Properties.Find(1))->SoldDate = u"never"_s;
    desk.Properties();
    desk.Person.Expect(u"frmMain AddPropToFoundGrid Error #13"_s, u"Type mismatch"_s);
    desk.Search();
    QCOMPARE(desk.Heading(), u"3 properties found"_s);
    QCOMPARE(desk.Texts(u"AskingPrice").first(), u"$250,000.00"_s);
    QCOMPARE(desk.Texts(u"Closed"), (QStringList{QString(), u" "_s, u" "_s}));
    QCOMPARE(desk.Found().RowItemData(1), 1);
    QVERIFY(!desk.Person.HourGlassIsOn());
}

void tst_Search::APropertySearchClearsTheLastOne()
{
    SearchDesk desk;
    desk.Properties();
    desk.Search();
    desk.SetCriterion(5, u"dover"_s);
    desk.Search();
    QCOMPARE(desk.Texts(u"Address1"), QStringList{u"3 Oak Ave"_s});
    QCOMPARE(desk.Heading(), u"1 property found"_s);
}

void tst_Search::ASearchByKeysAlone()
{
    SearchDesk desk;
    auto& option = Control<QRadioButton>(desk.Main(), u"optSearch_0"_s);
    option.setFocus(Qt::TabFocusReason);
    TypeKey(desk.Main(), Qt::Key_Right);
    QCOMPARE(desk.Criteria().Rows(), 37);
    TypeKey(desk.Main(), Qt::Key_Tab);
    QVERIFY(desk.Criteria().hasFocus());
    for (int i = 0; i < 5; ++i)
        TypeKey(desk.Main(), Qt::Key_Down);
    {
        const WhenFormOpens opened(u"frmSetValue"_s, [](Form& form) {
            TypeText(form, u"alem"_s);
            TypeKey(form, Qt::Key_Return);
        });
        TypeText(desk.Main(), u"S"_s);
    }
    QCOMPARE(desk.Criteria().CellText(5, 2), u"Salem"_s);
    for (int i = 0; i < 10 && QApplication::focusWidget()->objectName() != "cmdbutton_2"_L1; ++i)
        TypeKey(desk.Main(), Qt::Key_Tab);
    TypeKey(desk.Main(), Qt::Key_Return);
    QCOMPARE(desk.Texts(u"Address1"), (QStringList{u"1 Elm St"_s, u"2 Elm St"_s}));
    for (int i = 0; i < 10 && QApplication::focusWidget() != &desk.Found(); ++i)
        TypeKey(desk.Main(), Qt::Key_Tab);
    TypeKey(desk.Main(), Qt::Key_Down);
    // Into the window of its properties, and back.
    {
        const WhenFormOpens opened(u"frmPropertyList"_s, [](Form& form) {
            QCOMPARE(form.windowTitle(), u"Ann Lee Properties"_s);
            TypeKey(form, Qt::Key_Escape);
        });
        TypeKey(desk.Main(), Qt::Key_Return);
    }
    QVERIFY(QTest::qWaitFor([&desk] { return QApplication::focusWidget() == &desk.Found(); }));
    TypeKey(desk.Main(), Qt::Key_Down);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s,
                       u"Do you want me to permanently delete the property located at 2 Elm St?"_s, Answer::Yes);
    TypeKey(desk.Main(), Qt::Key_Delete);
    QCOMPARE(desk.Heading(), u"1 property found"_s);
    QCOMPARE(desk.Database.TakeStatements(), QStringList{u"Delete from PropDetail Where ID=2"_s});
}

QTEST_MAIN(tst_Search)
#include "tst_Search.moc"
