#pragma once

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Clock.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "support/RunningProgram.h"
#include "support/Windows.h"
#include "transfer/CutSections.h"
#include "transfer/ExportData.h"
#include "transfer/ImportData.h"
#include "ui/widgets/CommonDialog.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

/// The sections of a transfer file, in their order.
enum Section
{
    Contacts,
    AlertRows,
    Properties,
    CategoryRows,
    SubCategories,
    Letters
};

/// The started program on a file of its own, with a person who names files.
class Agency : public RunningProgram
{
public:
    enum class File
    {
        Empty,
        /// Buyers: First home: 1 Ann Lee with a property and an alert, 2 Bob M Ray.  Sellers: Houses: 3 Cy Day with an
        /// alert. And a letter.
        Small
    };

    explicit Agency(File file)
    {
        if (file == File::Small)
            Fill();
        Start();
    }
    /// An invented agency with so many contacts.
    explicit Agency(int contacts)
    {
        using namespace Qt::StringLiterals;
        gConn.Close();
        QProcess::execute(QStringLiteral(MAKE_SAMPLE), {u"--contacts"_s, QString::number(contacts), u"--today"_s,
                                                        u"2026-01-15"_s, u"--database"_s, Database.DatabaseFile()});
        Database.StartAnew();
        Start();
    }
    ~Agency() override
    {
        CommonDialog::SetSource({});
        End();
    }

    /// Runs an export that is saved under a name; gives the file.
    QString Export(const QString& mode, const QString& name, const QString& title, const QString& text)
    {
        Name(name);
        Person.Expect(title, text);
        ExportData(mode);
        return FileOf(name);
    }
    QString Backup(const QString& name)
    {
        return Export(QStringLiteral("All"), name, QStringLiteral("Database Backed upDone"),
                      QStringLiteral("I have successfully backed up your database."));
    }
    void ExpectRestoreQuestion(Answer answer)
    {
        Person.Expect(QStringLiteral("Please Confirm Before I Proceed"),
                      QStringLiteral("It is highly recommended that you backup your data using external tools\r\n"
                                     "prior to continuing with the total system restore. A corrupted restore file\r\n"
                                     "will cause your system to become unstable and your data unrecoverable.\r\n"
                                     "Do you want me to proceed with the restore at this time?"),
                      answer);
    }
    void Restore(const QString& file)
    {
        Name(file);
        ExpectRestoreQuestion(Answer::Yes);
        Person.Expect(QStringLiteral("Database Restored"),
                      QStringLiteral("I have successfully restored your database."));
        ImportData(true);
    }
    void Import(const QString& file)
    {
        Name(file);
        Person.Expect(QStringLiteral("Contacts Imported"),
                      QStringLiteral("I have successfully imported your contacts."));
        ImportData(false);
    }

    /// What the person types in the file dialog; "" cancels.
    void Name(const QString& name)
    {
        CommonDialog::SetSource([this, name](const CommonDialog& dialog, bool) {
            Asked = dialog.DialogTitle + u'|' + dialog.FileName + u'|' + dialog.DefaultExt;
            return name.isEmpty() ? name : FileOf(name);
        });
    }
    [[nodiscard]] QString FileOf(const QString& name) const { return QDir(Database.Folder()).absoluteFilePath(name); }
    /// The files that stand beside the database.
    [[nodiscard]] QStringList Leftovers() const
    {
        return QDir(Database.Folder() + QStringLiteral("/Data")).entryList({QStringLiteral("*.xml")}, QDir::Files);
    }
    void Select(Long id)
    {
        curContact = ContactAt(id);
        SelectCurContact();
    }

    QString Asked;

private:
    static void Fill()
    {
        for (const char* statement :
             {"Insert into Categories (Description) Values ('Buyers')",
              "Insert into Categories (Description) Values ('Sellers')",
              "Insert into SubCategories (Description,ParentID) Values ('First home',1)",
              "Insert into SubCategories (Description,ParentID) Values ('Houses',2)",
              "Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName,Email) Values "
              "(1,1,'Ann','','Lee','ann@x')",
              "Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName,Notes) Values "
              "(1,1,'Bob','M','Ray','two')",
              "Insert into Contacts (CategoryID,SubCategoryID,FirstName,MI,LastName) Values (2,2,'Cy','','Day')",
              "Insert Into PropDetail "
              "(Addr1,Addr2,City,State,Zip,Zip4,ContactID,MLS,Subdivision,PropType,Construction,SqFt,"
              "Roof,Parking,Rooms,Baths,Floor,Pool,MaintFee,AssocFee,Waterfront,Floodzone,Rented,RentalBasis,"
              "RentalAmount,"
              "LeaseExpires,Elevator,PetsAllowed,ListingDate,AskingPrice,ExpDate,ClosingDate,SoldDate,SoldPrice) "
              "Values ("
              "'1 Elm "
              "Street','','Troy',5,'19000','',1,'M1','',1,2,1500,0,0,7,2.5,0,0,0,12.5,'1','2','0',0,900,'','1','2',"
              "'1/5/2026',250000.5,'','','',0)",
              "Insert into Alerts (ContactID,AlertDate,AlertNote) Values (1,'1/5/2026','Call Ann')",
              "Insert into Alerts (ContactID,AlertDate,AlertNote) Values (3,'2/6/2026','Write to Cy')",
              "Insert into FormLetters (FormName,FormText) values ('Hello','Dear !<FirstName>!')"})
            FreshDatabase::Execute(QString::fromLatin1(statement));
    }
};

/// The sections of a transfer file, as texts.
inline QList<QByteArray> SectionsOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is not there", qPrintable(fileName));
    QList<QByteArray> sections;
    QBuffer buffer;
    CutSections(file, {6, true}, [&](int) -> QIODevice& {
        if (buffer.isOpen()) {
            buffer.close();
            sections << std::exchange(buffer.buffer(), {});
        }
        buffer.open(QIODevice::WriteOnly);
        return buffer;
    });
    sections << buffer.buffer();
    return sections;
}
