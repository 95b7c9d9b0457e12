#include "transfer/ExportData.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Files.h"
#include "core/Trap.h"
#include "model/faces.h"
#include "model/Main.h"
#include "transfer/AppendFileBytes.h"
#include "transfer/TransferFile.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/Form.h"
#include "ui/widgets/Forms.h"

#include <QFileInfo>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A table that goes into a file of its own first. Its rows are all of them, or those that belong to the contacts of
/// the list %1.
struct Dump
{
    QLatin1StringView File;
    QLatin1StringView All;
    QLatin1StringView Chosen;
};

constexpr Dump properties{"PropertyExport.xml"_L1, "Select * from PropDetail"_L1,
                          "Select * from PropDetail where ContactID in (%1)"_L1};
constexpr Dump subcategories{
    "SubCategoryExport.xml"_L1, "Select * from SubCategories"_L1,
    "Select * from SubCategories Where ID in (SELECT SubCategoryID FROM Contacts where ID in (%1))"_L1};
constexpr Dump categories{
    "CategoryExport.xml"_L1, "Select * from Categories"_L1,
    "Select * from Categories Where ID in (Select ParentID from SubCategories Where ID in (SELECT "
    "SubCategoryID FROM Contacts where ID in (%1)))"_L1};
constexpr Dump alerts{"AlertExport.xml"_L1, "Select * from Alerts"_L1,
                      "Select * from Alerts Where ContactID in  (%1)"_L1};
constexpr Dump letters{"FormLettersExport.xml"_L1, "Select * from FormLetters"_L1, {}};

/// They are made in one order and stand in the file in another.
constexpr std::array made{properties, subcategories, categories, alerts, letters};
constexpr std::array appended{alerts, properties, categories, subcategories, letters};

/// What the person reads, for a backup and for an export.
struct Words
{
    QString Question;
    QString FileName;
    QString RefusedTitle;
    QString Refused;
    QString DoneTitle;
    QString Done;
};

Words WordsOf(bool all)
{
    if (all)
        return {u"What file do you want me to back up your data to?"_s,
                u"DataBackup"_s,
                u"Data Backup has been Cancelled"_s,
                u"I cancelled the data backup because\r\nyou have no contacts in the system."_s,
                u"Database Backed upDone"_s, // the words run together on purpose
                u"I have successfully backed up your database."_s};
    return {u"What file do you want me to export to?"_s,
            u"ContactTransfer"_s,
            u"Contact Export has been Cancelled"_s,
            u"I cancelled the contact export because\r\nthere are no contacts to export"_s,
            u"Contact Export Done"_s,
            u"I have successfully exported your contacts."_s};
}

/// Opens the one recordset of an export on a selection.
void Open(Recordset& rows, const QString& selection)
{
    rows.CursorLocation = CursorLocation::UseClient;
    rows.LockType = LockType::Pessimistic;
    rows.CursorType = CursorType::Dynamic;
    rows.Open(selection, gConn);
}

/// Asks under the question's title whether a file may be written over; true when it has been deleted.
bool DeleteAfterAsking(const QString& file, const QString& question, const QString& title)
{
    if (MsgBox(question, Buttons::YesNo, Icon::Question, title) != Answer::Yes)
        return false;
    DeleteFile(file);
    return true;
}

/// Saves the rows; where the file has come into being meanwhile, the person decides about the chosen one. False for No.
bool Save(const Recordset& rows, const QString& file, const QString& chosen)
{
    for (;;) {
        try {
            rows.Save(file, file != chosen);
            return true;
        } catch (const RunTimeError& error) {
            if (error.Number() != ErrorNumber::FileAlreadyExists)
                throw;
        }
        if (!DeleteAfterAsking(chosen, chosen + u" already exists, overwrite the existing file?"_s,
                               u"Over Write an Existing File Warning"_s))
            return false;
    }
}

QStringList TemporaryNames()
{
    QStringList names;
    for (const Dump& dump : made)
        names << dump.File;
    return names;
}

/// Asks for the file; nothing where the person does not want one that exists written over. Raises 32755 on a cancel.
QString ChosenFile(const Words& words)
{
    CommonDialog dialog;
    dialog.CancelError = true;
    dialog.DefaultExt = u"xml"_s;
    dialog.Filter = u"xml (*.xml);;All files (*)"_s;
    dialog.DialogTitle = words.Question;
    dialog.FileName = words.FileName;
    dialog.ShowSave(Forms::Active());
    RefuseOwnFile(dialog.FileName, TemporaryNames());
    if (QFileInfo(dialog.FileName).isFile() && !DeleteAfterAsking(dialog.FileName, u"Do you want me to overwrite it?"_s,
                                                                  dialog.FileTitle() + u" Already Exists"_s))
        return {};
    return dialog.FileName;
}

/// The tables but the contacts: each into a file of its own, all of them behind the contacts. False where the person
/// said No on the way.
bool AppendTables(Recordset& rows, bool all, const QString& list, const QString& chosen)
{
    const auto isLeftOut = [all](const Dump& dump) { return !all && dump.Chosen.isEmpty(); };
    for (const Dump& dump : made) {
        if (isLeftOut(dump))
            continue;
        const QString file = TemporaryFile(dump.File);
        Open(rows, all ? QString(dump.All) : QString(dump.Chosen).arg(list));
        if (QFileInfo::exists(file))
            DeleteFile(file);
        if (!Save(rows, file, chosen))
            return false;
        rows.Close();
    }
    for (const Dump& dump : appended) {
        if (!isLeftOut(dump))
            AppendFileBytes(TemporaryFile(dump.File), chosen);
    }
    for (const Dump& dump : appended) {
        if (!isLeftOut(dump))
            DeleteFile(TemporaryFile(dump.File));
    }
    return true;
}

void Export(const QString& mode)
{
    const bool all = mode == "All"_L1;
    const Words words = WordsOf(all);
    const QString list = all ? QString() : GetSelected(mode);
    Recordset rows;
    Open(rows, all ? u"Select * from Contacts"_s : u"select * from Contacts where ID in  ("_s + list + u")"_s);
    if (rows.RecordCount() == 0) {
        MsgBox(words.Refused, Buttons::Ok, Icon::Information, words.RefusedTitle);
        return;
    }
    const QString chosen = ChosenFile(words);
    if (chosen.isEmpty() || !Save(rows, chosen, chosen))
        return;
    rows.Close();
    if (!AppendTables(rows, all, list, chosen))
        return;
    SyncFile(chosen);
    MsgBox(words.Done, Buttons::Ok, Icon::Information, words.DoneTitle);
}

void Report(const RunTimeError& error)
{
    if (error.Number() != CommonDialog::CancelWasSelected)
        MsgBox(u"frmMain ExportData: "_s + error.Description(), Buttons::Ok, Icon::Critical,
               CStr(Long{error.Number()}));
}

} // namespace

void ExportData(const QString& mode)
{
    try {
        Export(mode);
    } catch (const RunTimeError& error) {
        Report(error);
    } catch (const std::bad_alloc&) {
        Report(RunTimeError(ErrorNumber::OutOfMemory));
    }
}

QString GetSelected(const QString& mode)
{
    return Trap(u"frmMain GetSelected Error #"_s, Icon::Critical, [&] {
        QStringList numbers;
        if (mode == "Selected"_L1) {
            for (const Long id : gSelected.Ids())
                numbers << CStr(id);
        } else if (mode == "Highlighted"_L1) {
            if (const auto* found = Face<FoundFace>::Get()) {
                for (const Long id : found->HighlightedContacts())
                    numbers << CStr(id);
            }
        }
        return numbers.join(u", "_s);
    });
}
