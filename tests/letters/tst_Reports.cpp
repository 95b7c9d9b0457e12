#include "letters/WordProcessor.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "support/WordReader.h"

#include "letters/reports/frmCreateWordFile.h"
#include "letters/reports/Reports.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "model/PropDetail.h"
#include "ui/widgets/Grid.h"

#include <QLabel>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// What the lists show. They are windows of other features; a report only asks them for their records.
class ShownLists final : public FoundFace, public ContactListFace, public PropertyListFace
{
public:
    [[nodiscard]] std::vector<Long> FoundContacts() const override { return {3, 1}; }
    [[nodiscard]] std::vector<Long> HighlightedContacts() const override { return {3}; }
    [[nodiscard]] std::vector<Long> FoundProperties() const override { return {2, 1}; }
    [[nodiscard]] std::vector<Long> HighlightedProperties() const override { return {1}; }
    [[nodiscard]] std::vector<Long> Highlighted() const override { return {2}; }

    void MarkSelected(Long, bool) override {}
    void RedrawContact(const Contact&) override {}
    void RemoveContacts(const std::vector<Long>&) override {}
    void RemoveProperties(const std::vector<Long>&) override {}
    void ShowHowManyFound() override {}
    [[nodiscard]] int Rows() const override { return 0; }
    [[nodiscard]] int SelectedRow() const override { return 0; }
    void AddRow() override {}
    void RemoveLastRow() override {}
    void TakeNewRowAway() override {}
    void SelectLastRow() override {}
    void SelectContact(Long) override {}
    void UnSelectAll() override {}
    void UpdateContactGridCols() override {}
    void SetSelectedRowData(Long) override {}
    void ShowPropertyCount(Long, int) override {}
    void ShowAlertIcon() override {}
    void FocusFirstName() override {}
    void ShowChecked(Long, bool) override {}
    void FillContactList() override {}
    void UnloadList() override {}

private:
    Face<FoundFace>::Registration m_found{*this};
    Face<ContactListFace>::Registration m_list{*this};
    Face<PropertyListFace>::Registration m_properties{*this};
};

/// The paragraphs of a document's text; what is bold stands between "*".
QStringList Paragraphs(const QString& document)
{
    QStringList paragraphs;
    QXmlStreamReader xml(PackageParts(document).value(u"word/document.xml"_s));
    bool bold = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.qualifiedName() == "w:p"_L1)
            paragraphs << QString();
        else if (xml.qualifiedName() == "w:r"_L1)
            bold = false;
        else if (xml.qualifiedName() == "w:b"_L1)
            bold = true;
        else if (xml.qualifiedName() == "w:t"_L1)
            paragraphs.last() += bold ? u'*' + xml.readElementText() + u'*' : xml.readElementText();
    }
    return paragraphs;
}

} // namespace

/// The report builder, worked as a person does.
class tst_Reports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void EachMenuOpensItsMode();
    void EachModeReportsItsRecords_data();
    void EachModeReportsItsRecords();
    void ThePagesAreRead();
    void WhatIsUntickedIsLeftOut();
    void WithoutTicksEachRecordIsAnEmptyParagraph();
    void HeaderAndFooterAreAskedFor();
    void AContactThatIsGoneEndsTheReportWhereItWas();
    void WithoutAProgramTheReportSaysSo();

private:
    /// Shows the window in a mode and has `work` work it.
    static void Open(const QString& mode, const std::function<void(Form& form)>& work);
    static void ClickRow(const Form& form, int row);

    std::unique_ptr<FreshDatabase> m_database;
    std::unique_ptr<ScriptedUser> m_user;
    std::unique_ptr<WordProcessor> m_processor;
    std::unique_ptr<ShownLists> m_lists;
};

void tst_Reports::init()
{
    m_database = std::make_unique<FreshDatabase>();
    m_user = std::make_unique<ScriptedUser>();
    m_processor = std::make_unique<WordProcessor>();
    m_lists = std::make_unique<ShownLists>();
    for (
        const auto statement :
        {"Insert into Categories (Description) Values ('Buyers')"_L1,
         "Insert into SubCategories (Description,ParentID) Values ('First home',1)"_L1,
         "Insert into Contacts "
         "(CategoryID,SubCategoryID,FirstName,MI,LastName,MailAddr1,MailAddr2,MailCity,MailState,MailZip,MailZip4,"
         "Salutation,WorkPhone,Ext,Notes) "
         "Values (1,1,'Ann','M','Lee','1 Elm','Apt 2','Rye',0,'10580','1234','Annie','(215) 555-0101','7','kind & <quick>')"_L1,
         "Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,MailAddr1,MailCity,MailZip) Values (1,1,'Bob','Ray','2 Oak','Troy','12180')"_L1,
         "Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName) Values (1,1,'Cy','Day')"_L1,
         "Insert into PropDetail (ContactID,MLS,Addr1,City,State,Zip,SqFt,Rooms,PropType,Construction,Floor,Roof,"
         "Parking,Pool,RentalBasis,MaintFee,AskingPrice,Waterfront,Rented,LeaseExpires,Notes) Values "
         "(2,'M1','5 Ash','Troy',1,'12180',1200,6,1,2,3,4,5,1,1,75.5,250000,1,2,'1/2/2027','secret')"_L1,
         "Insert into PropDetail (ContactID,MLS,Addr1,Addr2,City,Zip,Zip4) Values (1,'M2','6 Ash','Rear','Troy','12181','99')"_L1})
        FreshDatabase::Execute(QString(statement));
    LoadCategories();
    LoadContacts([](int) {});
}

void tst_Reports::cleanup()
{
    m_lists.reset();
    m_processor.reset();
    m_user.reset();
    m_database.reset();
}

void tst_Reports::Open(const QString& mode, const std::function<void(Form& form)>& work)
{
    const WhenFormOpens opened(u"frmCreateWordFile"_s, [&](Form& form) {
        QCoreApplication::processEvents();
        QTRY_VERIFY(Control<Grid>(form, u"Grid1"_s).Rows() > 0);
        work(form);
    });
    frmCreateWordFile form;
    form.Mode = mode;
    form.ShowModal();
}

void tst_Reports::ClickRow(const Form& form, int row)
{
    auto& grid = Control<Grid>(form, u"Grid1"_s);
    const QRect place = grid.visualRect(grid.model()->index(row - 1, 1));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place.center());
}

void tst_Reports::EachMenuOpensItsMode()
{
    PlugReports();
    const std::pair<std::function<void()>, QLatin1StringView> menus[]{
        {gOpeners.WordFileOfSelected, "Selected"_L1},
        {gOpeners.WordFileOfListed, "Listed"_L1},
        {gOpeners.WordFileOfFoundContacts, "Found"_L1},
        {gOpeners.WordFileOfHilitedContacts, "HilitedContact"_L1},
        {gOpeners.WordFileOfFoundProperties, "FoundProperties"_L1},
        {gOpeners.WordFileOfHilitedProperties, "HilitedProperty"_L1},
        {gOpeners.WordFileOfProperty, "Property"_L1},
    };
    for (const auto& [open, mode] : menus) {
        QString opened;
        const WhenFormOpens window(u"frmCreateWordFile"_s, [&opened](Form& form) {
            opened = static_cast<frmCreateWordFile&>(form).Mode;
            TypeKey(form, Qt::Key_Escape);
        });
        open();
        QCOMPARE(opened, QString(mode));
    }
    gOpeners = {};
}

void tst_Reports::EachModeReportsItsRecords_data()
{
    QTest::addColumn<QStringList>("first"); // the first paragraph of each record; none where nothing is made
    QTest::addColumn<int>("rows");
    QTest::newRow("Selected") << QStringList{u"*Name*: *Cy Day"_s, u"*Name*: *Bob Ray"_s} << 12;
    QTest::newRow("Found") << QStringList{u"Cy Day"_s, u"Ann M Lee"_s} << 12;
    QTest::newRow("HilitedContact") << QStringList{u"Cy Day"_s} << 12;
    QTest::newRow("Listed") << QStringList{u"Bob Ray"_s} << 12;
    QTest::newRow("Contact") << QStringList{} << 12;
    QTest::newRow("FoundProperties") << QStringList{u"M2"_s, u"M1"_s} << 7;
    QTest::newRow("HilitedProperty") << QStringList{u"M1"_s} << 7;
    QTest::newRow("Property") << QStringList{u"M2"_s} << 7;
}

void tst_Reports::EachModeReportsItsRecords()
{
    QFETCH(QStringList, first);
    QFETCH(int, rows);
    gSelected.Add(3);
    gSelected.Add(2);
    Open(QString::fromLatin1(QTest::currentDataTag()), [&](Form& form) {
        QCOMPARE(Control<Grid>(form, u"Grid1"_s).Rows(), rows);
        const QString caption = rows == 7 ? u"Property Information"_s : u"Contact Information"_s;
        QCOMPARE(Control<QLabel>(form, u"lblHeader"_s).text(), caption);
        QCOMPARE(Control<QLabel>(form, u"lblFooter"_s).text(), caption);
        ClickOn(form, u"cmdButton_2"_s);
        QVERIFY(form.isVisible());
        ClickOn(form, u"cmdButton_1"_s);
    });
    QCOMPARE(m_processor->Opened().size(), first.isEmpty() ? 0 : 1);
    if (first.isEmpty())
        return;
    QStringList found;
    const QString start = rows == 7 ? u"*MLS**: *"_s : u"*Name**: *"_s;
    for (const QString& paragraph : Paragraphs(m_processor->Opened().value(0))) {
        if (paragraph.startsWith(start))
            found << paragraph.mid(start.size());
    }
    for (QString& text : first)
        text = text.section(u'*', -1);
    QCOMPARE(found, first);
}

void tst_Reports::ThePagesAreRead()
{
    gSelected.Add(1);
    Open(u"Selected"_s, [](Form& form) { ClickOn(form, u"cmdButton_2"_s); });
    Open(u"HilitedProperty"_s, [](Form& form) { ClickOn(form, u"cmdButton_2"_s); });
    QCOMPARE(m_processor->Opened().size(), 2);
    for (const QString& document : m_processor->Opened())
        QCOMPARE(PackageFaults(document).join(u'\n'), QString());
    const QList<QList<Page>> pages = RenderDocuments(m_processor->Opened());
    QCOMPARE(pages.value(0).value(0).Lines,
             (QStringList{u"Contact Information"_s, u"Name: Ann M Lee"_s, u"Address: 1 Elm"_s, u"Apt 2"_s,
                          u"Rye AL 10580-1234"_s, u"Salutation: Annie"_s, u"Spouse:"_s, u"Referred By:"_s,
                          u"Company:"_s, u"Email:"_s, u"Home Phone:"_s, u"Work Phone: (215) 555-0101 Ext: 7"_s,
                          u"Cell Phone:"_s, u"Fax:"_s, u"Notes: kind & <quick>"_s, u"Contact Information"_s}));
    QCOMPARE(pages[0][0].Bold.value(0), u"Name:"_s);
    QCOMPARE(pages[0][0].Bold.size(), 12);
    QCOMPARE(pages.value(1).value(0).Lines, (QStringList{u"Property Information"_s,
                                                         u"MLS: M1"_s,
                                                         u"Subdivision:"_s,
                                                         u"Property Address: 5 Ash"_s,
                                                         u"Troy AK 12180"_s,
                                                         u"Property Detail: Sq Ft: 1200"_s,
                                                         u"Rooms: 6"_s,
                                                         u"Baths: 0"_s,
                                                         u"Type: Multi Family"_s,
                                                         u"Construction: Brick"_s,
                                                         u"Floor: Quarry Tile"_s,
                                                         u"Roof: Shingle"_s,
                                                         u"Parking: Covered Parking"_s,
                                                         u"Pool: In Ground"_s,
                                                         u"Maint Fee: $75.50"_s,
                                                         u"Assoc Fee: $.00"_s,
                                                         u"Waterfront: Yes"_s,
                                                         u"Flood Zone:"_s,
                                                         u"Rental Information: Rented: No"_s,
                                                         u"Rental Basis: Monthly"_s,
                                                         u"Rental Amount: $.00"_s,
                                                         u"Lease Expires: 1/2/2027"_s,
                                                         u"Sale Information: Listing Date:"_s,
                                                         u"Listing Exp Date:"_s,
                                                         u"Asking Price: $250,000.00"_s,
                                                         u"Sold Date:"_s,
                                                         u"Sold Price: $.00"_s,
                                                         u"Closing Date:"_s,
                                                         u"Notes:"_s,
                                                         u"Property Information"_s}));
}

void tst_Reports::WhatIsUntickedIsLeftOut()
{
    gSelected.Add(3);
    Open(u"Selected"_s, [](Form& form) {
        const auto& grid = Control<Grid>(form, u"Grid1"_s);
        for (int row = 2; row <= 12; ++row)
            ClickRow(form, row);
        QCOMPARE(grid.RowItemData(2), 0);
        QCOMPARE(grid.CellIcon(2, 1), QString());
        // Once more brings the tick back, by key as well.
        ClickRow(form, 9);
        TypeKey(form, Qt::Key_Down);
        TypeKey(form, Qt::Key_Space);
        QCOMPARE(grid.RowItemData(10), -1);
        // Below the rows there is nothing to tick.
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(20, grid.viewport()->height() - 2));
        QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, grid.visualRect(grid.model()->index(9, 1)).center());
        QCOMPARE(grid.RowItemData(10), -1);
        ClickOn(form, u"cmdButton_2"_s);
    });
    QCOMPARE(Paragraphs(m_processor->Opened().value(0)),
             (QStringList{u"*Name**: *Cy Day"_s, u"*Work Phone**: * Ext: "_s, u"*Cell Phone**: *"_s, {}, {}}));
}

void tst_Reports::WithoutTicksEachRecordIsAnEmptyParagraph()
{
    Open(u"Found"_s, [](Form& form) {
        for (int row = 1; row <= 12; ++row)
            ClickRow(form, row);
        ClickOn(form, u"cmdButton_2"_s);
    });
    QCOMPARE(Paragraphs(m_processor->Opened().value(0)), (QStringList{{}, {}, {}}));
}

void tst_Reports::HeaderAndFooterAreAskedFor()
{
    gSelected.Add(3);
    m_user->ExpectAskFor(u"Header Text:"_s, {});
    m_user->ExpectAskFor(u"Footer Text:"_s, u"Below & beyond"_s);
    Open(u"Selected"_s, [](Form& form) {
        QTest::mouseClick(&Control<QLabel>(form, u"lblHeader"_s), Qt::LeftButton);
        auto& footer = Control<QLabel>(form, u"lblFooter"_s);
        footer.setFocus();
        TypeKey(form, Qt::Key_Space);
        QCOMPARE(footer.text(), u"Below & beyond"_s);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
        QCoreApplication::sendEvent(&footer, &held); // a key that is held asks once
        ClickOn(form, u"cmdButton_2"_s);
    });
    const QMap<QString, QByteArray> parts = PackageParts(m_processor->Opened().value(0));
    QVERIFY(!parts.value(u"word/header1.xml"_s).contains("w:t"));
    QVERIFY(parts.value(u"word/header1.xml"_s).contains("w:p"));
    QVERIFY(parts.value(u"word/footer1.xml"_s).contains("Below &amp; beyond"));
}

void tst_Reports::AContactThatIsGoneEndsTheReportWhereItWas()
{
    gSelected.Add(3);
    gSelected.Add(77);
    gSelected.Add(1);
    m_user->ExpectReport(u"frmCreateWordFile CreateWordFile Error #424"_s);
    Open(u"Selected"_s, [](Form& form) { ClickOn(form, u"cmdButton_2"_s); });
    const QStringList paragraphs = Paragraphs(m_processor->Opened().value(0));
    QVERIFY(paragraphs.contains(u"*Name**: *Cy Day"_s));
    QVERIFY(!paragraphs.contains(u"*Name**: *Ann M Lee"_s));
    QVERIFY(!m_user->HourGlassIsOn());
}

void tst_Reports::WithoutAProgramTheReportSaysSo()
{
    m_processor.reset();
    m_processor = std::make_unique<WordProcessor>(false);
    gSelected.Add(3);
    m_user->ExpectReport(u"frmCreateWordFile CreateWordFile Error #429"_s);
    Open(u"Selected"_s, [](Form& form) { ClickOn(form, u"cmdButton_2"_s); });
    QVERIFY(m_user->LastBox().Text.contains(m_processor->Opened().value(0)));
}

QTEST_MAIN(tst_Reports)
#include "tst_Reports.moc"
