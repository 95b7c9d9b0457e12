#include "core/Clock.h"
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
    void ACriterionThatIsNoDateIsReportedAndFails_data();
    void ACriterionThatIsNoDateIsReportedAndFails();
    void TextsAreFoundAsInStrFindsThem_data();
    void TextsAreFoundAsInStrFindsThem();
    void MadeUpTextsAreFoundAsInStrFindsThem();
    void FieldsOfContacts_data();
    void FieldsOfContacts();
    void FieldsOfProperties_data();
    void FieldsOfProperties();
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
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("criterion");
    QTest::addColumn<bool>("holds");
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

void tst_SearchRules::ACriterionThatIsNoDateIsReportedAndFails_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("criterion");
    QTest::newRow("between is read as before") << u"5"_s << u"Between $1.00 To $9.00"_s;
    QTest::newRow("a range of one day") << u"01/05/2026"_s << u"From 01/05/2026 To 01/05/2026"_s;
    QTest::newRow("a stored text that is no date") << u"soon"_s << u"After 01/05/2026"_s;
    QTest::newRow("an empty date") << u"01/05/2026"_s << u"After "_s;
    QTest::newRow("a range without its end") << u"01/05/2026"_s << u"From 01/05/2026 To "_s;
}

void tst_SearchRules::ACriterionThatIsNoDateIsReportedAndFails()
{
    QFETCH(QString, value);
    QFETCH(QString, criterion);
    ScriptedUser person;
    person.Expect(u" Error #13"_s, u"Type mismatch"_s);
    QVERIFY(!CheckCriterion(value, Criterion(criterion)));
    QCOMPARE(person.LastBox().Picture, Icon::Information);
}

void tst_SearchRules::TextsAreFoundAsInStrFindsThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::newRow("other case") << u"12 ELM Street"_s << u"elm s"_s;
    QTest::newRow("no letter has another's bit") << u"a@b[c{d"_s << u"`B{C[D"_s;
    QTest::newRow("at the end") << u"abcabd"_s << u"ABD"_s;
    QTest::newRow("longer than the text") << u"ab"_s << u"abc"_s;
    QTest::newRow("accents distinguish") << u"Jose"_s << u"José"_s;
    QTest::newRow("accents have a case") << u"JOSÉ"_s << u"josé"_s;
    QTest::newRow("the Kelvin sign") << u"5 \u212A"_s << u"5 k"_s;
    QTest::newRow("the long s") << u"Wa\u017Fhington"_s << u"WASH"_s;
    QTest::newRow("outside the first plane") << u"\U00010400b"_s << u"\U00010428B"_s;
    QTest::newRow("emoji") << u"Ann 🏠"_s << u"🏠"_s;
    QTest::newRow("an empty text") << QString() << u"a"_s;
    QTest::newRow("nothing to find") << u"a"_s << QString();
    QTest::newRow("nothing in nothing") << QString() << QString();
    QTest::newRow("a blank") << u"a b"_s << u" "_s;
}

void tst_SearchRules::TextsAreFoundAsInStrFindsThem()
{
    QFETCH(QString, text);
    QFETCH(QString, find);
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

void tst_SearchRules::FieldsOfContacts_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("caseless");
    QTest::addColumn<bool>("withCase");
    QTest::newRow("a part of a name") << u"LastName"_s << u"ee"_s << true << true;
    QTest::newRow("in capitals") << u"LastName"_s << u"LEE"_s << true << false;
    QTest::newRow("a part of a telephone") << u"HomePhone"_s << u"555-01"_s << true << true;
    QTest::newRow("a telephone is looked for without its outer blanks") << u"HomePhone"_s << u" 555 "_s << true << true;
    QTest::newRow("others are not") << u"WorkPhone"_s << u" 555 "_s << false << false;
    QTest::newRow("an empty field") << u"Company"_s << u"x"_s << false << false;
    QTest::newRow("both names of an address") << u"Addr1"_s << u"elm"_s << true << false;
    QTest::newRow("the other of them") << u"MailAddr1"_s << u"elm"_s << true << false;
    QTest::newRow("notes") << u"Notes"_s << u"Dog"_s << true << false;
    QTest::newRow("the whole state") << u"cbostate"_s << u"FL"_s << true << true;
    QTest::newRow("not in small letters") << u"cbostate"_s << u"fl"_s << false << false;
    QTest::newRow("not a part of it") << u"cbostate"_s << u"F"_s << false << false;
}

void tst_SearchRules::FieldsOfContacts()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    Contact contact;
    contact.LastName = u"Lee"_s;
    contact.HomePhone = contact.WorkPhone = u"(215) 555-0100"_s;
    contact.MailAddr1 = u"12 Elm Street"_s;
    contact.MailState = 10;
    contact.Notes = u"two dogs"_s;
    QTEST(FindInContacts(value, field, Qt::CaseInsensitive)(contact), "caseless");
    QTEST(FindInContacts(value, field, Qt::CaseSensitive)(contact), "withCase");
}

void tst_SearchRules::FieldsOfProperties_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("found");
    const auto row = [](const char* field, const char* value, bool found) {
        QTest::addRow("%s %s", field, value) << QString::fromLatin1(field) << QString::fromLatin1(value) << found;
    };
    row("Addr1", "ELM", true);
    row("SqFt", "31", true);
    row("SqFt", "1,312", false);
    row("Baths", "2.5", true);
    row("Rooms", "0", true); // the number as a text
    row("MaintFee", "125", true);
    row("MaintFee", "= $125.50", false);
    row("SoldDate", "01/", true);
    row("SoldDate", "= 01/05/2026", false);
    row("Type", "PUD", true);
    row("Type", "pud", false);
    row("Waterfront", "Yes", true);
    row("Waterfront", "Y", false);
    row("AskingPrice", "= 250000", true);
    row("AskingPrice", "= $250,000.00", false);
    row("AskingPrice", "More Than $249,999.00", true);
    row("AskingPrice", "Less Than $900,000.00", false);
    row("ListingDate", "Before 11/30/2026", true);
    row("Listed", "Yes", true);
    row("Listed", "No", false);
    row("Listed", "yes", false);
    row("Expired", "Yes", false);
    row("Expired", "No", true);
    row("Closed", "No", true); // no date at all
    row("Closed", "Yes", false);
    row("Sold", "Yes", true);
}

void tst_SearchRules::FieldsOfProperties()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    PropDetail property;
    property.Addr1 = u"12 Elm Street"_s;
    property.SqFt = 1312;
    property.Baths = 2.5F;
    property.MaintFee = CCur(u"125.5"_s);
    property.AskingPrice = CCur(u"250000"_s);
    property.PropType = 2;
    property.Waterfront = u"Yes"_s;
    property.ListingDate = u"11/22/2026"_s;
    property.ExpDate = u"11/23/2026"_s;
    property.SoldDate = u"01/05/2026 9:00:00 AM"_s;
    const ScriptedUser person;
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseInsensitive, Qt::CaseSensitive}) {
        if (field == "Addr1"_L1 && sensitivity == Qt::CaseSensitive)
            continue;
        QTEST(FindInProps(value, field, sensitivity)(property), "found");
    }
    Clock::SetSource({});
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
