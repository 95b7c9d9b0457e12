#include "core/Convert.h"
#include "core/Strings.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "search/CheckCriterion.h"
#include "search/CriteriaRows.h"
#include "search/FindInContacts.h"
#include "search/FindInProps.h"
#include "search/SearchWalk.h"
#include "search/TextFinder.h"
#include "support/Columns.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// What matches and what does not, without a window.
class tst_SearchRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ResetGlobals(); }

    void CriteriaHold_data();
    void CriteriaHold();
    void ACriterionThatIsNoDateIsReportedAndFails();
    void TextsAreFoundAsInStrFindsThem();
    void MadeUpTextsAreFoundAsInStrFindsThem();
    void FieldsOfContactsAreReadInTheirOwnWays();
    void FieldsOfPropertiesAreReadInTheirOwnWays();
    void AnUnknownFieldIsTold();
    void ADateThatIsNoneEndsItsTestAlone();
    void TheSearchReadsAllRowsButTwo();
    void TheWalkGoesByAndOrAndNothing_data();
    void TheWalkGoesByAndOrAndNothing();
    void EveryBadRangeIsReportedOnceForEachPrice();
    void FeesFindNothingAndTheRentIsNotRead_data();
    void FeesFindNothingAndTheRentIsNotRead();

private:
    static std::shared_ptr<Contact> AddContact(Long id, const QString& first, const QString& last)
    {
        auto contact = std::make_shared<Contact>();
        contact->RecID = id;
        contact->FirstName = first;
        contact->LastName = last;
        gContacts.Add(id, contact);
        return contact;
    }
};

void tst_SearchRules::CriteriaHold_data()
{
    AddColumns<QString, QString, bool>({"value", "criterion", "holds"});
    const auto row = [](const char* what, const QString& value, const QString& criterion, bool holds) {
        QTest::newRow(what) << value << criterion << holds;
    };
    row("an empty value never holds", {}, u"= "_s, false);
    row("the same text", u"01/05/2026"_s, u"= 01/05/2026"_s, true);
    row("the same day in another form", u"1/5/2026"_s, u"= 01/05/2026"_s, false);
    row("an amount is not its bare value", u"250000"_s, u"= $250,000.00"_s, false);
    row("a comma ends the threshold", u"251"_s, u"More Than $250,000.00"_s, true);
    row("not more than the threshold", u"250"_s, u"More Than $250,000.00"_s, false);
    row("the number at the start of the value", u"251 and 9"_s, u"More Than $250.00"_s, true);
    row("a second point ends a number", u"1.5.9"_s, u"More Than $1.55"_s, false);
    row("no sign is read", u"-5"_s, u"More Than $0.00"_s, false);
    row("no number is 0", u"abc"_s, u"More Than $0.00"_s, false);
    row("less never holds", u"1"_s, u"Less Than $250,000.00"_s, false);
    row("the form that no window leaves", u"1"_s, u"< 2"_s, true);
    row("its mirror is not read", u"3"_s, u"> 2"_s, false);
    row("the first day of a range", u"1/5/2026"_s, u"From 01/05/2026 To 02/05/2026"_s, true);
    row("the last day of a range", u"02/05/2026"_s, u"From 01/05/2026 To 02/05/2026"_s, true);
    row("the day behind it", u"02/06/2026"_s, u"From 01/05/2026 To 02/05/2026"_s, false);
    row("later", u"01/06/2026"_s, u"After 01/05/2026"_s, true);
    row("not later on the day", u"01/05/2026"_s, u"After 01/05/2026"_s, false);
    row("earlier", u"12/31/1999"_s, u"Before 01/05/2026"_s, true);
    row("not earlier on the day", u"01/05/2026"_s, u"Before 01/05/2026"_s, false);
    row("a number is a date too", u"45000"_s, u"Before 01/05/2026"_s, true);
    row("no criterion", u"1"_s, {}, false);
    row("a blank", u"1"_s, u" "_s, false);
    row("an apostrophe", u"O'Hara"_s, u"'"_s, false);
    row("very long", u"1"_s, u"= "_s + QString(10000, u'1'), false);
}

void tst_SearchRules::CriteriaHold()
{
    QFETCH(QString, value);
    QFETCH(QString, criterion);
    const ScriptedUser person;
    QTEST(CheckCriterion(value, Criterion(criterion)), "holds");
}

void tst_SearchRules::ACriterionThatIsNoDateIsReportedAndFails()
{
    ScriptedUser person;
    for (const auto& [value, criterion] : {
             std::pair(u"5"_s, u"Between $1.00 To $9.00"_s), // read as "Before"
             std::pair(u"01/05/2026"_s, u"From 01/05/2026 To 01/05/2026"_s),
             std::pair(u"soon"_s, u"After 01/05/2026"_s),
             std::pair(u"01/05/2026"_s, u"After "_s),
             std::pair(u"01/05/2026"_s, u"From 01/05/2026 To "_s),
         }) {
        person.Expect(u" Error #13"_s, u"Type mismatch"_s);
        QVERIFY2(!CheckCriterion(value, Criterion(criterion)), qPrintable(criterion));
        person.Done();
        QCOMPARE(person.LastBox().Picture, Icon::Information);
    }
}

void tst_SearchRules::TextsAreFoundAsInStrFindsThem()
{
    for (const auto& [text, find] : {
             std::pair(u"a@b[c{d"_s, u"`B{C[D"_s), // no letter has another's bit
             std::pair(u"ab"_s, u"abc"_s),
             std::pair(u"Jose"_s, u"José"_s),
             std::pair(u"JOSÉ"_s, u"josé"_s),
             std::pair(u"\U00010400b"_s, u"\U00010428B"_s),
             std::pair(u"Ann 🏠"_s, u"🏠"_s),
             std::pair(QString(), u"a"_s),
             std::pair(u"a"_s, QString()),
             std::pair(QString(), QString()),
         })
        for (const Qt::CaseSensitivity sensitivity : {Qt::CaseInsensitive, Qt::CaseSensitive})
            QCOMPARE(TextFinder(find, sensitivity).IsIn(text), InStr(1, text, find, sensitivity) > 0);
}

void tst_SearchRules::MadeUpTextsAreFoundAsInStrFindsThem()
{
    const QString letters = u"aAkKsSiI@`[{ 1\u212A\u017F\u0130ßéÉ"_s;
    QRandomGenerator random(20261122);
    const auto made = [&](int longest) {
        QString text;
        for (int i = random.bounded(longest + 1); i > 0; --i)
            text += letters[random.bounded(static_cast<int>(letters.size()))];
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const QString text = made(8);
        const QString find = made(3);
        for (const Qt::CaseSensitivity sensitivity : {Qt::CaseInsensitive, Qt::CaseSensitive})
            QVERIFY2(TextFinder(find, sensitivity).IsIn(text) == (InStr(1, text, find, sensitivity) > 0),
                     qPrintable(text + u" | "_s + find));
    }
}

void tst_SearchRules::FieldsOfContactsAreReadInTheirOwnWays()
{
    Contact contact;
    contact.LastName = u"Lee"_s;
    contact.HomePhone = contact.WorkPhone = u"(215) 555-0100"_s;
    contact.MailAddr1 = u"12 Elm Street"_s;
    contact.MailState = 10;
    contact.Notes = u"two dogs"_s;
    using Row = std::tuple<QString, QString, bool, bool>; // whether it is found without and with regard to case
    for (const auto& [field, value, caseless, withCase] : {
             Row{u"LastName"_s, u"ee"_s, true, true},
             Row{u"LastName"_s, u"LEE"_s, true, false},
             // One telephone is looked for without its outer blanks, the others are not.
             Row{u"HomePhone"_s, u" 555 "_s, true, true},
             Row{u"WorkPhone"_s, u" 555 "_s, false, false},
             Row{u"Company"_s, u"x"_s, false, false},
             Row{u"Addr1"_s, u"elm"_s, true, false}, // both names of an address
             Row{u"MailAddr1"_s, u"elm"_s, true, false},
             Row{u"Notes"_s, u"Dog"_s, true, false},
             Row{u"cbostate"_s, u"fl"_s, false, false}, // the whole state in capitals
             Row{u"cbostate"_s, u"F"_s, false, false},
         }) {
        QVERIFY2(FindInContacts(value, field, Qt::CaseInsensitive)(contact) == caseless, qPrintable(field + value));
        QVERIFY2(FindInContacts(value, field, Qt::CaseSensitive)(contact) == withCase, qPrintable(field + value));
    }
}

void tst_SearchRules::FieldsOfPropertiesAreReadInTheirOwnWays()
{
    PropDetail property;
    property.Addr1 = u"12 Elm Street"_s;
    property.SqFt = 1312;
    property.MaintFee = CCur(u"125.5"_s);
    property.AskingPrice = CCur(u"250000"_s);
    property.PropType = 2;
    property.Waterfront = u"Yes"_s;
    property.ListingDate = u"11/22/2026"_s;
    property.SoldDate = u"01/05/2026 9:00:00 AM"_s;
    const ScriptedUser person;
    using Row = std::tuple<QString, QString, bool>;
    for (const auto& [field, value, found] : {
             Row{u"Addr1"_s, u"ELM"_s, true},
             Row{u"SqFt"_s, u"31"_s, true}, // a number is looked for as a text
             Row{u"SqFt"_s, u"1,312"_s, false},
             Row{u"Rooms"_s, u"0"_s, true},
             Row{u"MaintFee"_s, u"125"_s, true},
             Row{u"MaintFee"_s, u"= $125.50"_s, false}, // the windows' own form is found in no fee
             Row{u"SoldDate"_s, u"01/"_s, true},
             Row{u"SoldDate"_s, u"= 01/05/2026"_s, false},
             Row{u"Type"_s, u"pud"_s, false},
             Row{u"Waterfront"_s, u"Y"_s, false},
             Row{u"AskingPrice"_s, u"= $250,000.00"_s, false},
             Row{u"AskingPrice"_s, u"More Than $249,999.00"_s, true},
             Row{u"AskingPrice"_s, u"Less Than $900,000.00"_s, false},
             Row{u"ListingDate"_s, u"Before 11/30/2026"_s, true},
             Row{u"Listed"_s, u"yes"_s, false},
             Row{u"Closed"_s, u"No"_s, true}, // no date at all
             Row{u"Closed"_s, u"Yes"_s, false},
         })
        QVERIFY2(FindInProps(value, field, Qt::CaseInsensitive)(property) == found, qPrintable(field + value));
}

void tst_SearchRules::AnUnknownFieldIsTold()
{
    ScriptedUser person;
    person.Expect({}, u"Shoe size is not configured"_s);
    QVERIFY(!FindInContacts(u"9"_s, u"Shoe size"_s, Qt::CaseInsensitive)(Contact()));
    person.Expect({}, u"RentalAmount is not configured"_s);
    QVERIFY(!FindInProps(u"9"_s, u"RentalAmount"_s, Qt::CaseInsensitive)(PropDetail()));
}

void tst_SearchRules::ADateThatIsNoneEndsItsTestAlone()
{
    PropDetail property;
    property.ExpDate = u"never"_s;
    ScriptedUser person;
    person.Expect(u"frmMain FindInProps Error #13"_s, u"Type mismatch"_s);
    QVERIFY(!FindInProps(u"No"_s, u"Expired"_s, Qt::CaseInsensitive)(property));
}

void tst_SearchRules::TheSearchReadsAllRowsButTwo()
{
    // Each row once, but for the two that are never read; and every name is one that the tests know.
    const ScriptedUser person;
    for (const auto& [mode, rows, unread] :
         {std::tuple(SearchMode::Contacts, 19, 6), {SearchMode::Properties, 37, 26}}) {
        QCOMPARE(std::ssize(CriteriaRows(mode)), rows);
        QList<int> missing;
        for (int row = 1; row <= rows; ++row)
            missing << row;
        for (const SearchedRow& searched : SearchedRows(mode)) {
            QVERIFY(missing.removeOne(searched.Row));
            if (mode == SearchMode::Contacts)
                static_cast<void>(FindInContacts(u"x"_s, searched.FieldName, Qt::CaseInsensitive)(Contact()));
            else
                static_cast<void>(FindInProps(u"x"_s, searched.FieldName, Qt::CaseInsensitive)(PropDetail()));
        }
        QCOMPARE(missing, QList<int>{unread});
    }
}

void tst_SearchRules::TheWalkGoesByAndOrAndNothing_data()
{
    QTest::addColumn<QStringList>("rows"); // "row=value"
    QTest::addColumn<bool>("isAnd");
    QTest::addColumn<QString>("found");
    QTest::newRow("nothing, and") << QStringList{} << true << u"3 1 2"_s;
    QTest::newRow("nothing, or") << QStringList{} << false << u"3 1 2"_s;
    QTest::newRow("the row that is never read") << QStringList{u"6=Salem"_s} << true << u"3 1 2"_s;
    QTest::newRow("both must hold") << QStringList{u"1=ann"_s, u"3=lee"_s} << true << u"1"_s;
    QTest::newRow("one is enough") << QStringList{u"1=ann"_s, u"3=lee"_s} << false << u"3 1"_s;
    QTest::newRow("a miss") << QStringList{u"1=zoe"_s} << false << QString();
    QTest::newRow("a blank is filled") << QStringList{u"1= "_s} << false << QString();
    QTest::newRow("a hit in the last row") << QStringList{u"1=zoe"_s, u"19=555"_s} << false << u"2"_s;
}

void tst_SearchRules::TheWalkGoesByAndOrAndNothing()
{
    QFETCH(QStringList, rows);
    SearchCriteria criteria;
    criteria.Values.resize(19);
    QFETCH(bool, isAnd);
    criteria.And = isAnd;
    for (const QString& row : rows)
        criteria.Values[row.section(u'=', 0, 0).toInt() - 1] = row.section(u'=', 1);
    AddContact(3, u"Bob"_s, u"Lee"_s);
    AddContact(1, u"Ann"_s, u"Lee"_s);
    AddContact(2, u"Cy"_s, u"Day"_s)->Fax = u"555"_s;
    gContacts.Add(9, nullptr); // what a look at a missing key leaves behind
    QStringList found;
    FindContacts(criteria, [&](const Contact& contact) { found << CStr(contact.RecID); });
    QTEST(found.join(u' '), "found");
}

void tst_SearchRules::EveryBadRangeIsReportedOnceForEachPrice()
{
    const std::shared_ptr<Contact> contact = AddContact(1, u"Ann"_s, u"Lee"_s);
    for (Long id = 1; id <= 3; ++id) {
        auto property = std::make_shared<PropDetail>();
        property->RecID = id;
        property->City = u"Salem"_s;
        if (id != 2)
            property->AskingPrice = CCur(Long{id * 1000});
        contact->Properties.Add(id, property);
    }
    AddContact(2, u"Bob"_s, u"Ray"_s);
    ScriptedUser person;
    for (int i = 0; i < 2; ++i) // one has no price
        person.Expect(u" Error #13"_s, u"Type mismatch"_s);
    SearchCriteria criteria;
    criteria.Values.resize(37);
    criteria.Values[31] = u"Between $1.00 To $9.00"_s;
    int found = 0;
    FindProperties(criteria, [&](const PropDetail&) { ++found; });
    QCOMPARE(found, 0);
    person.Done();
    // With another row beside it, a property that meets that one is taken before the bad test is reached.
    criteria.Values[4] = u"Salem"_s;
    FindProperties(criteria, [&](const PropDetail&) { ++found; });
    QCOMPARE(found, 3);
}

void tst_SearchRules::FeesFindNothingAndTheRentIsNotRead_data()
{
    QTest::addColumn<QStringList>("rows"); // "row=value"
    QTest::addColumn<bool>("isAnd");
    QTest::addColumn<int>("found");
    QTest::newRow("the rent alone is no criterion") << QStringList{u"26=Equal To $9.00"_s} << true << 2;
    QTest::newRow("nor beside another") << QStringList{u"26=More Than $1.00"_s, u"5=Salem"_s} << true << 1;
    QTest::newRow("a fee empties an And") << QStringList{u"18=More Than $1.00"_s, u"5=Salem"_s} << true << 0;
    QTest::newRow("and adds nothing to an Or") << QStringList{u"18=More Than $1.00"_s, u"5=Salem"_s} << false << 1;
}

void tst_SearchRules::FeesFindNothingAndTheRentIsNotRead()
{
    QFETCH(QStringList, rows);
    QFETCH(bool, isAnd);
    const std::shared_ptr<Contact> contact = AddContact(1, u"Ann"_s, u"Lee"_s);
    for (const auto& [id, city] : {std::pair(Long{1}, u"Salem"_s), {Long{2}, u"Dover"_s}}) {
        auto property = std::make_shared<PropDetail>();
        property->RecID = id;
        property->City = city;
        property->MaintFee = CCur(u"125.5"_s);
        contact->Properties.Add(id, property);
    }
    SearchCriteria criteria;
    criteria.Values.resize(37);
    criteria.And = isAnd;
    for (const QString& row : rows)
        criteria.Values[row.section(u'=', 0, 0).toInt() - 1] = row.section(u'=', 1);
    int found = 0;
    FindProperties(criteria, [&](const PropDetail&) { ++found; });
    QTEST(found, "found");
}

QTEST_GUILESS_MAIN(tst_SearchRules)
#include "tst_SearchRules.moc"
