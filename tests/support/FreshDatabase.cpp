#include "support/FreshDatabase.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "model/Category.h"
#include "model/Contact.h"
#include "model/Main.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace {

void CopyDelivered(const QString& from, const QString& to)
{
    if (!QFile::copy(QStringLiteral(ORVANTINE_BINARY_DIR "/data/") + from, to))
        qFatal("%s is not built", qPrintable(from));
}

} // namespace

void ResetGlobals()
{
    gCategories.RemoveAll();
    gContacts.RemoveAll();
    gAlerts.RemoveAll();
    gSelected.RemoveAll();
    gHilited.clear();
    gHilitedList.clear();
    gSettings = {};
    gReturnValue.clear();
    gEditMode = EditMode::ModifyContact;
    gAlertMode = 0;
    gFocusField.clear();
    curContact.reset();
    curCategoryID = 0;
    curSubIndex = 0;
    curContactCount = 0;
    curAlertIndex = 0;
    curPropertyID = 0;
    savedPropertyID = 0;
    gAlertsCurrent = 0;
    gAlertsFuture = 0;
}

FreshDatabase::FreshDatabase()
{
    const QDir folder(m_folder.path());
    folder.mkpath(u"Data"_s);
    folder.mkpath(u"Resource/Images"_s);
    CopyDelivered(u"Delivered.mdb"_s, DatabaseFile());
    for (const auto image : {"Impressionist1.jpg"_L1, "Impressionist2.jpg"_L1, "HazeBlue.jpg"_L1})
        CopyDelivered("Images/"_L1 + image, folder.filePath("Resource/Images/"_L1 + image));
    StartAnew();
}

FreshDatabase::~FreshDatabase()
{
    gConn.SetRecorder({});
    gConn.Close();
    ResetGlobals();
}

QString FreshDatabase::DatabaseFile() const
{
    return m_folder.filePath(u"Data/Contacts.mdb"_s);
}

void FreshDatabase::StartAnew()
{
    gConn.Close();
    ResetGlobals();
    gAppPath = m_folder.path();
    Open();
}

void FreshDatabase::Open()
{
    gConn.Open(u"Driver={Microsoft Access Driver (*.mdb)};Dbq="_s + gAppPath +
               u"\\Data\\Contacts.mdb;Password=kostrevy48"_s);
    Record();
}

void FreshDatabase::Record()
{
    gConn.SetRecorder([this](const QString& statement) { m_statements << statement; });
}

QStringList FreshDatabase::TakeStatements()
{
    return std::exchange(m_statements, {});
}

void FreshDatabase::Execute(const QString& statement)
{
    gConn.Execute(statement);
}

QStringList FreshDatabase::Rows(const QString& selection)
{
    Recordset rows;
    rows.Open(selection, gConn);
    QStringList lines;
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList values;
        for (int i = 0; i < rows.FieldCount(); ++i) {
            const Value value = rows.Fields(i).Get();
            values << (value.IsNull() ? u"NULL"_s : value.Text());
        }
        lines << values.join(u'|');
    }
    return lines;
}

QStringList FreshDatabase::WholeFile()
{
    QStringList all;
    for (const auto table : {"Categories"_L1, "SubCategories"_L1, "Contacts"_L1, "PropDetail"_L1, "Alerts"_L1,
                             "FormLetters"_L1, "Settings"_L1}) {
        all << QString(table) << Rows("Select * from "_L1 + table);
    }
    return all;
}
