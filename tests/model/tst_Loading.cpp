#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"

#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// What a start makes of the file.
class tst_Loading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OrphansArePurgedWithoutAWord();
    void WithoutContactsTheAlertsAreNotRead();
    void AnAlertOfAMissingContactEndsTheLoad();
    void TheBarMovesByOnePercentForARow();
    void TheFirstStartWritesOneRowOfSettings();
    void NullsOfTheSettingsAreFilled();
    void AMissingPictureIsReportedOnce();
    void TheTitleOfTheMakerIsTheProgramsOwn();

private:
    static void Load();
    static void AddContact(int category, int subCategory);
};

void tst_Loading::Load()
{
    LoadCategories();
    LoadContacts([](int) {});
}

void tst_Loading::AddContact(int category, int subCategory)
{
    FreshDatabase::Execute(
        u"Insert into Contacts (CategoryID,SubCategoryID,FirstName) Values (%1,%2,'x')"_s.arg(category).arg(
            subCategory));
}

void tst_Loading::OrphansArePurgedWithoutAWord()
{
    FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
    AddContact(1, 1);
    AddContact(8, 1);
    AddContact(1, 9);
    FreshDatabase::Execute(u"Insert into PropDetail (ContactID,SqFt) Values (1,1200)"_s);
    Load();
    QCOMPARE(FreshDatabase::Rows(u"Select ID from Contacts"_s), QStringList{u"1"_s});
    QCOMPARE(gContacts.Count(), 3);
    QCOMPARE(CategoryAt(1)->ContactCount, 2); // the contact without a subcategory was counted before it went
    QCOMPARE(CategoryAt(1)->Sub(1)->ContactCount, 1);
    QCOMPARE(ContactAt(1)->Properties.Count(), 1);

    fresh.StartAnew();
    Load();
    QCOMPARE(gContacts.Count(), 1);
    QCOMPARE(CategoryAt(1)->ContactCount, 1);
    user.Done();
}

void tst_Loading::WithoutContactsTheAlertsAreNotRead()
{
    FreshDatabase fresh;
    FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate) Values (1,'1/5/2026')"_s);
    (void)fresh.TakeStatements();
    Load();
    QCOMPARE(fresh.TakeStatements(), (QStringList{u"Select * from Categories"_s, u"Select * from Contacts"_s}));
    QCOMPARE(gAlerts.Count(), 0);
}

void tst_Loading::AnAlertOfAMissingContactEndsTheLoad()
{
    const FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
    AddContact(1, 1);
    for (const int contact : {1, 5, 1})
        FreshDatabase::Execute(u"Insert into Alerts (ContactID,AlertDate) Values (%1,'1/5/2026')"_s.arg(contact));
    user.Expect(u"LoadContacts Error #424"_s, u"Object required"_s, Answer::Ok);
    Load();
    QCOMPARE(ContactAt(1)->NumberOfAlerts, 1);
    QCOMPARE(gContacts.Count(), 2); // asking for the missing contact has left its key behind
    user.Done();
}

void tst_Loading::TheBarMovesByOnePercentForARow()
{
    const FreshDatabase fresh;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
    for (int i = 0; i < 4; ++i)
        AddContact(i == 1 ? 7 : 1, 1);
    QList<int> steps;
    LoadCategories();
    LoadContacts([&](int percent) { steps << percent; });
    QCOMPARE(steps, (QList<int>{1, 2, 3})); // the purged row gives no step
}

void tst_Loading::TheFirstStartWritesOneRowOfSettings()
{
    FreshDatabase fresh;
    ScriptedUser user;
    const QString images = QDir(fresh.Folder()).filePath(u"Resource/Images/"_s);
    LoadSettings();
    QCOMPARE(gSettings.Picture, images + u"Impressionist1.jpg"_s);
    QCOMPARE(gSettings.PropPicture, images + u"Impressionist2.jpg"_s);
    QCOMPARE(gSettings.ClientName, QString());
    QCOMPARE(
        fresh.TakeStatements()[1],
        u"Insert into Settings (LabelProduct,LabelNumber,DefaultPicture,DefaultPropPicture,ClientName) values (0,'','"_s +
            images + u"Impressionist1.jpg','"_s + images + u"Impressionist2.jpg','')"_s);
    fresh.StartAnew();
    LoadSettings();
    QCOMPARE(FreshDatabase::Rows(u"Select LabelProduct from Settings"_s).size(), 1);
    user.Done();
}

void tst_Loading::NullsOfTheSettingsAreFilled()
{
    const FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Settings (Clock) Values (2)"_s);
    LoadSettings();
    // Both windows get the first picture here, which is meant.
    QVERIFY(gSettings.PropPicture.endsWith("Impressionist1.jpg"_L1));
    QCOMPARE(gSettings.Picture, gSettings.PropPicture);
    QCOMPARE(gSettings.ClientName, u"Orvantine 1.0 "_s);
    QCOMPARE(gSettings.Clock, 2);
    QCOMPARE(gSettings.LabelProduct, 0);
    user.Done();
}

void tst_Loading::AMissingPictureIsReportedOnce()
{
    FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Settings (DefaultPicture,DefaultPropPicture,ClientName) "
                           "Values ('/gone/a.jpg','/gone/b.jpg','Lee Realty ')"_s);
    user.Expect(u"Default Contact List Picture File is Missing"_s,
                u"I couldn't locate the default image file associated with the contact list:\r\n/gone/a.jpg"_s,
                Answer::Ok);
    user.Expect(u"Default Property List Picture File is Missing"_s,
                u"I couldn't locate the default image file associated with the property list:\r\n/gone/b.jpg"_s,
                Answer::Ok);
    LoadSettings();
    QCOMPARE(gSettings.Picture, QString());
    fresh.StartAnew();
    LoadSettings();
    QCOMPARE(gSettings.ClientName, u"Lee Realty "_s);
    user.Done();
}

void tst_Loading::TheTitleOfTheMakerIsTheProgramsOwn()
{
    const FreshDatabase fresh;
    ScriptedUser user;
    FreshDatabase::Execute(u"Insert into Settings (ClientName) Values ('Orvantine by Pelmar')"_s);
    LoadSettings();
    QCOMPARE(gSettings.ClientName, u"Orvantine 1.0 "_s);
    SetClientName(u"Lee's "_s);
    QCOMPARE(FreshDatabase::Rows(u"Select ClientName from Settings"_s), QStringList{u"Lee's "_s});
    user.Done();
}

QTEST_APPLESS_MAIN(tst_Loading)
#include "tst_Loading.moc"
