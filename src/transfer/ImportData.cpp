#include "transfer/ImportData.h"

#include "core/adodb/Connection.h"
#include "core/Files.h"
#include "core/Trap.h"
#include "model/Category.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "transfer/CutSections.h"
#include "transfer/StartImport.h"
#include "transfer/TransferFile.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/Form.h"
#include "ui/widgets/Forms.h"

using namespace Qt::StringLiterals;

namespace {

/// The sections' files, in the order of the transfer file.
const QStringList& SectionNames()
{
    static const QStringList names{u"ContactImport.xml"_s,  u"AlertImport.xml"_s,       u"PropertyImport.xml"_s,
                                   u"CategoryImport.xml"_s, u"SubCategoryImport.xml"_s, u"FormLettersImport.xml"_s};
    return names;
}

constexpr int sectionsOfImport = 5;
constexpr int sectionsOfRestore = 6;

void Inform(const QString& title, const QString& text)
{
    MsgBox(text, Buttons::Ok, Icon::Information, title);
}

/// The file that the person names; "" where none.
QString ChosenFile(bool restore)
{
    CommonDialog dialog;
    dialog.DefaultExt = u"xml"_s;
    dialog.Filter = u"xml (*.xml);;All files (*)"_s;
    dialog.DialogTitle = restore ? u"What file do you want me to restore the Database with?"_s
                                 : u"What file do you want me to import from?"_s;
    dialog.ShowOpen(Forms::Active());
    if (!dialog.FileName.isEmpty())
        RefuseOwnFile(dialog.FileName, SectionNames());
    return dialog.FileName;
}

/// Whether the file is of the kind that was asked for; says so where it is not. This is the only test of a file.
bool IsRightKind(const QString& fileName, bool restore)
{
    QFile file(fileName);
    OpenFile(file, QIODevice::ReadOnly);
    const bool isBackup = IsDatabaseBackup(file);
    if (restore && !isBackup) {
        Inform(u"Restore Cancelled"_s,
               u"I did not restore from the file that you have selected\r\n because it is not a "
               "database backup file."_s);
    } else if (!restore && isBackup) {
        Inform(u"Import Cancelled"_s, u"I did not import from the file that you have selected\r\n because it is not a "
                                      "Contact Transfer File."_s);
    }
    return isBackup == restore;
}

void CutIntoFiles(const QString& fileName, bool restore)
{
    // What a run that failed left behind is no section of this file.
    for (const QString& name : SectionNames())
        QFile::remove(TemporaryFile(name));
    QFile source(fileName);
    OpenFile(source, QIODevice::ReadOnly);
    QFile section;
    const CutPlan plan{restore ? sectionsOfRestore : sectionsOfImport, restore};
    CutSections(source, plan, [&section](int index) -> QIODevice& {
        if (section.isOpen())
            CloseWritten(section);
        section.setFileName(TemporaryFile(SectionNames()[index]));
        OpenFile(section, QIODevice::WriteOnly | QIODevice::Truncate, true);
        return section;
    });
    CloseWritten(section);
}

void RefreshScreen()
{
    if (auto* panels = Face<AlertPanelsFace>::Get()) {
        panels->ClearPanels();
        panels->FillAlertGrid(false);
        panels->FillAlertGrid(true);
    }
    auto* main = Face<MainFace>::Get();
    if (main != nullptr)
        main->ShowTab(0);
    if (auto* search = Face<SearchFace>::Get())
        search->SearchContactsAnew();
    if (auto* letters = Face<LettersFace>::Get())
        letters->LoadFormLetters();
    if (main != nullptr)
        main->ShowStatus();
}

void Import(bool restore)
{
    const QString fileName = ChosenFile(restore);
    if (fileName.isEmpty() || !IsRightKind(fileName, restore) || (restore && !DeleteAllData()))
        return;
    ShoWait(u"Performing System Restore.."_s); // in an import too, which is meant
    // A fault from here on leaves the hourglass and the section's files, which is meant. A restore shows it already.
    if (!restore)
        User::Current().HourGlass(true);
    CutIntoFiles(fileName, restore);
    const auto file = [](int index) { return TemporaryFile(SectionNames()[index]); };
    StartImport({file(3), file(4), file(0), file(2), file(1), restore ? std::optional(file(5)) : std::nullopt});
    for (const int index : {3, 4, 0, 2, 1})
        DeleteFile(file(index));
    if (restore)
        DeleteFile(file(5));
    RefreshScreen();
    ShoWait(u"Ready"_s);
    User::Current().NoHourGlass(); // one that a run which failed has left goes with it
    if (restore)
        Inform(u"Database Restored"_s, u"I have successfully restored your database."_s);
    else
        Inform(u"Contacts Imported"_s, u"I have successfully imported your contacts."_s);
}

} // namespace

void ImportData(bool restore)
{
    Trap(u"ImportData Error #"_s, Icon::Information, [restore] { Import(restore); });
}

bool DeleteAllData()
{
    return Trap(u"DeleteAllData Error #"_s, Icon::Information, [] {
        if (!Confirmed(u"It is highly recommended that you backup your data using external tools\r\n"
                       "prior to continuing with the total system restore. A corrupted restore file\r\n"
                       "will cause your system to become unstable and your data unrecoverable.\r\n"
                       "Do you want me to proceed with the restore at this time?"_s))
            return false;
        User::Current().HourGlass(true);
        ShoWait(u"Restoring Database..."_s);
        for (const auto table :
             {"Contacts"_L1, "PropDetail"_L1, "Subcategories"_L1, "Categories"_L1, "FormLetters"_L1, "Alerts"_L1})
            gConn.Execute(u"Delete * from "_s + table);
        if (auto* tree = Face<TreeFace>::Get())
            tree->ClearNodes();
        gCategories.RemoveAll();
        gContacts.RemoveAll();
        gAlerts.RemoveAll();
        return true;
    });
}
