#pragma once

#include "letters/FormLetters.h"
#include "letters/PictureBox.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "support/RunningProgram.h"
#include "support/Windows.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

/// The program on its third tab, on a small file:
///   1 Ann Lee    100 Oak St, Apt 2, Reno NV 89501-1234; default property 1, Townhome at 1 Elm St, Sparks CA, $250,000
///   2 Bob M Ray  7 Pine Rd, Reno, no ZIP extension; no property
///   3 Cy Day     the state is Null; property 2, which is not the default one
///   Letters      1 Hello, 2 News, 3 Plain
class Study : public RunningProgram
{
public:
    /// With the letters, or with an empty library.
    explicit Study(bool letters = true)
    {
        using namespace Qt::StringLiterals;
        for (
            const auto statement :
            {"Insert into Categories (Description) Values ('Buyers')"_L1,
             "Insert into SubCategories (Description,ParentID) Values ('First home',1)"_L1,
             "Insert into Contacts "
             "(CategoryID,SubCategoryID,FirstName,LastName,FormattedName,MailAddr1,MailAddr2,MailCity,"
             "MailState,MailZip,MailZip4,DefaultProperty) Values (1,1,'Ann','Lee','Ann Lee','100 Oak St','Apt "
             "2','Reno',"
             "32,'89501','1234',1)"_L1,
             "Insert into Contacts "
             "(CategoryID,SubCategoryID,FirstName,MI,LastName,FormattedName,MailAddr1,MailAddr2,MailCity,"
             "MailState,MailZip,MailZip4) Values (1,1,'Bob','M','Ray','Bob M Ray','7 Pine Rd','','Reno',-1,'89502','')"_L1,
             "Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName) Values (1,1,'Cy','Day')"_L1,
             "Insert into PropDetail (ContactID,Addr1,City,State,Zip,Zip4,PropType,RentalBasis,AskingPrice,SoldPrice,"
             "RentalAmount,Baths,ListingDate) Values (1,'1 Elm St','Sparks',5,'89434','77',4,1,250000,null,1200,2.5,"
             "'05/12/2026')"_L1,
             "Insert into PropDetail (ContactID,Addr1,City) Values (3,'9 Ash St','Fernley')"_L1})
            FreshDatabase::Execute(QString(statement));
        if (letters) {
            AddLetter(u"Hello"_s, u"Dear !<FirstName>! ,\r\nyour house in !<City>! is <b>sold</b>."_s);
            AddLetter(u"News"_s, u"To !<FormattedName>! at !<MailAddr1>! "_s);
            AddLetter(u"Plain"_s, u"Come in.\r\n<b>Now</b>"_s);
        }
        Start();
    }

    static void AddLetter(const QString& name, const QString& text)
    {
        FreshDatabase::Execute(
            QStringLiteral("Insert into FormLetters (FormName,FormText) Values ('%1','%2')").arg(name, text));
    }

    static void Select(const std::vector<Long>& contacts)
    {
        for (const Long id : contacts) {
            curContact = ContactAt(id);
            SelectCurContact();
        }
    }

    [[nodiscard]] FormLetters& Page() const { return Control<FormLetters>(Main(), QStringLiteral("FormLetters")); }
    [[nodiscard]] QListWidget& Forms() const { return Control<QListWidget>(Main(), QStringLiteral("lstForms")); }
    [[nodiscard]] QPlainTextEdit& Letter() const { return Control<QPlainTextEdit>(Main(), QStringLiteral("Letter")); }
    [[nodiscard]] PictureBox& Picture(int index) const
    {
        return Control<PictureBox>(Main(), QStringLiteral("picForms_%1").arg(index));
    }
    [[nodiscard]] QString Caption(const QString& label) const { return Control<QLabel>(Main(), label).text(); }

    [[nodiscard]] QStringList Names() const
    {
        QStringList names;
        for (int row = 0; row < Forms().count(); ++row)
            names << Forms().item(row)->text();
        return names;
    }
    /// The indexes of the pictures that can be pressed.
    [[nodiscard]] QString Enabled() const
    {
        QString indexes;
        for (int index = 1; index <= 6; ++index) {
            if (Picture(index).isEnabled())
                indexes += QString::number(index);
        }
        return indexes;
    }
    void Press(int index) const { ClickOn(Main(), QStringLiteral("picForms_%1").arg(index)); }
    /// Writes over all that the letter holds.
    void Write(const QString& text) const
    {
        Letter().selectAll();
        Letter().insertPlainText(text);
    }

protected:
    void Started() override { Main().ShowTab(static_cast<int>(frmMain::Tab::Letters)); }
};
