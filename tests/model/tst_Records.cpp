#include "core/adodb/Connection.h"
#include "core/Clock.h"
#include "core/Dates.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"

#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The records and their statements, on the real store.
class tst_Records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AContactIsWrittenAndReadBackByTheseStatements();
    void TheReadBackTakesTheOlderOfEqualRows();
    void ADuplicateIsFoundByNameInItsSubcategoryOnly();
    void APropertyIsWrittenByTheseStatements();
    void EmptiedNotesOfAPropertyStayInTheTable();
    void ASubcategoryWithAnApostropheFailsAndStaysInMemoryWithoutAnID();
    void AKeyOfANodeGivesItsID();
    void TheWorstAlertGivesTheColour();
    void AnAlertIsChangedInTheRowOfTheCurrentOne();

private:
    static std::shared_ptr<Contact> NewContact();
};

std::shared_ptr<Contact> tst_Records::NewContact()
{
    auto contact = std::make_shared<Contact>();
    contact->CategoryID = 1;
    contact->subCategoryID = 2;
    contact->FirstName = u"Ann"_s;
    contact->LastName = u"Lee"_s;
    contact->MailAddr1 = u"1 Elm St"_s;
    contact->MailState = 5;
    return contact;
}

void tst_Records::AContactIsWrittenAndReadBackByTheseStatements()
{
    FreshDatabase fresh;
    ScriptedUser user;
    const auto contact = NewContact();
    contact->MI = u"B"_s;
    contact->LastName = u"O'Hara"_s;
    contact->Notes = u"one\r\ntwo"_s;
    contact->RecID = contact->AddToDB(2);
    QCOMPARE(contact->RecID, 1);
    contact->DefaultProperty = 7;
    contact->UpdateDB(1);
    QCOMPARE(
        fresh.TakeStatements(),
        (QStringList{
            u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,MI,FormattedName,Salutation,MailAddr1,"
            "MailAddr2,MailCity,MailState,MailZip,MailZip4,Company,WorkPhone,Ext,HomePhone,Cell,Fax,Email,ReferredBy,"
            "Notes,Spouse)  Values (1,2,'Ann','O''Hara','B','Ann B O''Hara','','1 Elm St','','',5,'','','','','','','',"
            "'','','','one\r\ntwo','')"_s,
            u"Select ID from Contacts Where SubCategoryID=2 and FirstName='Ann' and MI='B' and LastName='O''Hara' and "
            "Mailaddr1='1 Elm St'"_s,
            u"Update Contacts set CategoryID=1,SubCategoryID=2,FirstName='Ann',LastName='O''Hara',MI='B',"
            "FormattedName='Ann B O''Hara',Salutation='',MailAddr1='1 Elm St',MailAddr2='',MailCity='',MailState=5,"
            "MailZip='',MailZip4='',Company='',WorkPhone='',Ext='',HomePhone='',Cell='',Fax='',Email='',ReferredBy='',"
            "Notes='one\r\ntwo',Spouse='', DefaultProperty=7 Where ID=1"_s}));
    QCOMPARE(FreshDatabase::Rows(u"Select FormattedName,MailState,DefaultProperty from Contacts"_s),
             QStringList{u"Ann B O'Hara|5|7"_s});
}

void tst_Records::TheReadBackTakesTheOlderOfEqualRows()
{
    const FreshDatabase fresh;
    QCOMPARE(NewContact()->AddToDB(2), 1);
    const auto second = NewContact();
    second->FirstName = u"ANN"_s;
    QCOMPARE(second->AddToDB(2), 1);
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Contacts"_s).size(), 2);
}

void tst_Records::ADuplicateIsFoundByNameInItsSubcategoryOnly()
{
    const FreshDatabase fresh;
    gContacts.Add(9, NewContact());
    QCOMPARE(Contact::LocateContact(u" aNN "_s, u" "_s, u"LEE"_s, 2), 9);
    QCOMPARE(Contact::LocateContact(u"Ann"_s, u"B"_s, u"Lee"_s, 2), 0);
    QCOMPARE(Contact::LocateContact(u"An n"_s, u""_s, u"Lee"_s, 2), 0);
    QCOMPARE(Contact::LocateContact(u"Ann"_s, u""_s, u"Lee"_s, 3), 0);
}

void tst_Records::APropertyIsWrittenByTheseStatements()
{
    FreshDatabase fresh;
    ScriptedUser user;
    curContact = NewContact();
    curContact->RecID = 4;
    PropDetail property;
    property.ContactID = 4;
    property.Addr1 = u"2 Oak"_s;
    property.State = 3;
    property.SqFt = 1500;
    property.Baths = 2.5F;
    property.AskingPrice = Currency::FromScaled(2'500'005'000);
    property.Rented = u"No"_s;
    property.ListingDate = u"01/05/2026"_s;
    property.RecID = property.SaveToDB();
    QCOMPARE(property.RecID, 1);
    property.UpdateDB();
    QCOMPARE(
        fresh.TakeStatements(),
        (QStringList{
            u"Insert Into PropDetail (Addr1,Addr2,City,State,Zip,Zip4,ContactID,MLS,Subdivision,PropType,Construction,"
            "SqFt,Roof,Parking,Rooms,Baths,Floor,Pool,MaintFee,AssocFee,Waterfront,Floodzone,Rented,RentalBasis,"
            "RentalAmount,LeaseExpires,Elevator,PetsAllowed,ListingDate,AskingPrice,ExpDate,ClosingDate,SoldDate,"
            "SoldPrice) Values ('2 Oak','','',3,'','',4,'','',0,0,1500,0,0,0,2.5,0,0,0,0,'0','0','2',0,0,'','0','0',"
            "'01/05/2026',250000.5,'','','',0)"_s,
            u"Select ID from PropDetail Where Addr1='2 Oak' And Addr2='' And ContactID=4"_s,
            u"Update PropDetail set Addr1='2 Oak',Addr2='', City='',State='3',Zip='', zip4='',contactid=4,MLS='', "
            "Subdivision='',PropType=0,Construction=0, SqFt='1500',Roof=0, Parking=0, Rooms='0',Baths='2.5',Floor=0, "
            "Pool=0,MaintFee=0,AssocFee=0, Waterfront=0,Floodzone=0,Rented=2,RentalBasis=0,RentalAmount=0,"
            "LeaseExpires='',Elevator=0, PetsAllowed=0,ListingDate='01/05/2026',AskingPrice=250000.5, ExpDate='',"
            "ClosingDate='',SoldDate='', SoldPrice=0 Where ID=1"_s}));

    curContact->LoadProperties();
    const auto read = *curContact->Properties.Find(1);
    QCOMPARE(read->Baths, 2.5F);
    QCOMPARE(read->AskingPrice.Scaled(), 2'500'005'000);
    QCOMPARE(read->Rented, u"No"_s);
    QCOMPARE(read->Elevator, QString());

    property.Addr1 = u"O'Hara Rd"_s;
    user.ExpectReport(u"Class PropDetail UpdateDB Error #-2147217900"_s);
    property.UpdateDB();
    QCOMPARE(FreshDatabase::Rows(u"Select Addr1 from PropDetail"_s), QStringList{u"2 Oak"_s});
    user.Done();
}

void tst_Records::EmptiedNotesOfAPropertyStayInTheTable()
{
    const FreshDatabase fresh;
    FreshDatabase::Execute(u"Insert into PropDetail (ContactID,Notes) Values (1,'old')"_s);
    PropDetail property;
    property.RecID = 1;
    property.Notes = u"  "_s;
    property.UpdateDBNotes();
    QCOMPARE(FreshDatabase::Rows(u"Select Notes from PropDetail"_s), QStringList{u"old"_s});
    property.Notes = u"new"_s;
    property.UpdateDBNotes();
    QCOMPARE(FreshDatabase::Rows(u"Select Notes from PropDetail"_s), QStringList{u"new"_s});
}

void tst_Records::ASubcategoryWithAnApostropheFailsAndStaysInMemoryWithoutAnID()
{
    const FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    LoadCategories();
    curCategoryID = 1;
    auto sub = std::make_shared<Category>();
    sub->ParentID = 1;
    sub->Description = u"Friend's"_s;
    user.ExpectReport(u"CreateASubCategory Error #-2147217900"_s);
    CreateASubCategory(sub, true);
    QCOMPARE(CategoryAt(1)->Subs->size(), 1U);
    QCOMPARE(sub->RecID, 0);
    QVERIFY(FreshDatabase::Rows(u"Select * from SubCategories"_s).isEmpty());

    // The next one of the same name is refused by what stayed in memory.
    auto again = std::make_shared<Category>(*sub);
    user.Expect(u"New Subcategory Not Created"_s,
                u"I did not create the new subcategory because\r\nthe name: Friend's already exists under Buyers."_s,
                Answer::Ok);
    CreateASubCategory(again, true);
    QCOMPARE(user.LastStatus(), u"Friend's has not been Created"_s);
    user.Done();
}

void tst_Records::AKeyOfANodeGivesItsID()
{
    ScriptedUser user;
    QCOMPARE(GetKey(u"C12"_s), 12);
    for (const QString& noKey : {u"7"_s, QString()}) {
        user.Expect(u"GetKey  Error #13"_s, u"Type mismatch"_s, Answer::Ok);
        QCOMPARE(GetKey(noKey), 0);
    }
    user.Done();
}

void tst_Records::TheWorstAlertGivesTheColour()
{
    const FreshDatabase fresh;
    const QDate today(2026, 11, 22);
    Clock::SetSource([today] { return QDateTime(today, QTime(23, 59)); });
    gAlerts.Add(u"A2"_s, 5, ToDate(today), {}); // of somebody else
    curContact = NewContact();
    curContact->RecID = 4;
    QCOMPARE(static_cast<int>(AlertColor()), -1);
    // A future one, a past one that outranks it, and one of today that outranks both.
    for (const auto& [day, state] : {std::pair(1, 0), std::pair(-1, 2), std::pair(0, 1), std::pair(-2, 1)}) {
        gAlerts.Add(u"A1"_s, 4, ToDate(today.addDays(day)), {});
        QCOMPARE(static_cast<int>(AlertColor()), state);
    }
    Clock::SetSource({});
}

void tst_Records::AnAlertIsChangedInTheRowOfTheCurrentOne()
{
    FreshDatabase fresh;
    ScriptedUser user;
    Alert alert;
    alert.ContactID = 4;
    alert.AlertDate = ToDate(QDate(2026, 1, 5));
    alert.AlertNote = u"call O'Hara"_s;
    QCOMPARE(alert.AddToDB(), 1);
    QCOMPARE(fresh.TakeStatements(),
             (QStringList{u"Insert into Alerts (ContactID,AlertDate,AlertNote) Values (4,'1/5/2026','call O''Hara')"_s,
                          u"Select ID from Alerts Where ContactID=4 and cdate(AlertDate)='1/5/2026'"_s}));
    // A second alert of the same contact and date reads the first one's number, which is meant.
    QCOMPARE(alert.AddToDB(), 1);
    gAlerts.Add(u"A2"_s, 4, alert.AlertDate, {});
    curAlertIndex = FindAlert(2);
    alert.AlertNote = u"changed"_s;
    alert.UpdateDB();
    QCOMPARE(FreshDatabase::Rows(u"Select AlertNote from Alerts"_s), (QStringList{u"call O'Hara"_s, u"changed"_s}));
    curAlertIndex = FindAlert(3);
    user.Expect(u"Class Alert UpdateDB Error #9"_s, u"Subscript out of range"_s, Answer::Ok);
    alert.UpdateDB();
    user.Done();
}

QTEST_APPLESS_MAIN(tst_Records)
#include "tst_Records.moc"
