#include "transfer/StartImport.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "transfer/ContactNames.h"
#include "transfer/ImportedFields.h"

#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// From an ID in the file to the ID of the row that it became; 0, which is then remembered, for an ID that the file
/// lacks.
using Map = Dictionary<Long, Long>;

Long FileID(Recordset& row)
{
    return row.Fields("ID"_L1).Get().ToLong();
}

Long Mapped(Map& map, Recordset& row, QLatin1StringView name)
{
    return map.Item(row.Fields(name).Get().LongOrZero());
}

class ImportRun
{
public:
    void TakeCategory(Recordset& row);
    void TakeSubCategory(Recordset& row);
    void TakeContact(Recordset& row);
    void TakeAlert(Recordset& row);
    void TakeProperty(Recordset& row);
    static void TakeLetter(Recordset& row);

private:
    /// False where the contact has no ID, which has been reported: nothing of the file can hang on it.
    [[nodiscard]] bool AddContact(const std::shared_ptr<Contact>& contact);
    [[nodiscard]] qsizetype LocateAlert(Long id) const;

    Map m_categories;
    Map m_subCategories;
    Map m_contacts;
    QSet<Long> m_notAdded;               ///< the file's IDs of the contacts that were left out
    std::optional<ContactNames> m_names; ///< made when the first contact comes
    /// The IDs of the alerts that have one: those made earlier in this run of the program. The import adds none.
    QSet<Long> m_alertIDs = [] {
        QSet<Long> ids;
        for (const std::shared_ptr<Alert>& alert : gAlerts)
            ids.insert(alert->ID);
        return ids;
    }();
};

void ImportRun::TakeCategory(Recordset& row)
{
    const QString description = row.Fields("Description"_L1).Get().Text();
    Long id = Category::Locate(description);
    if (id == 0) {
        if (auto* tree = Face<TreeFace>::Get())
            tree->CreateNewCategory(description);
        id = Category::Locate(description);
    }
    m_categories.Add(FileID(row), id);
}

void ImportRun::TakeSubCategory(Recordset& row)
{
    auto sub = std::make_shared<Category>();
    sub->Description = row.Fields("Description"_L1).Get().Text();
    sub->ParentID = Mapped(m_categories, row, "ParentID"_L1);
    const bool hangsNowhere = row.Fields("ParentID"_L1).Get().LongOrZero() == 0 && !gCategories.Exists(sub->ParentID);
    const qsizetype position = hangsNowhere ? 0 : ExistSub(sub->Description, sub->ParentID);
    if (position > 0) {
        sub = CategoryAt(sub->ParentID)->Sub(position);
    } else if (row.Fields("ParentID"_L1).Get().LongOrZero() == 0) {
        return;
    } else {
        curCategoryID = sub->ParentID;
        CreateASubCategory(sub, false);
    }
    m_subCategories.Add(FileID(row), sub->RecID);
}

void ImportRun::TakeContact(Recordset& row)
{
    if (!m_names)
        m_names.emplace();
    const auto text = [&row](QLatin1StringView name) { return row.Fields(name).Get().Text(); };
    const QString first = text("FirstName"_L1);
    const QString middle = text("MI"_L1);
    const QString last = text("LastName"_L1);
    const Integer subCategory = Value(Mapped(m_subCategories, row, "subCategoryID"_L1)).ToInteger();
    const Long found = m_names->Locate(first, middle, last, subCategory);
    const auto contact = found != 0 ? ContactAt(found) : std::make_shared<Contact>();
    SetImportedFields(*contact, row);
    if (found != 0) {
        contact->UpdateDB(contact->RecID);
    } else {
        contact->FirstName = first;
        contact->MI = middle;
        contact->LastName = last;
        contact->subCategoryID = subCategory;
        contact->CategoryID = Mapped(m_categories, row, "CategoryID"_L1);
        if (!AddContact(contact)) {
            m_notAdded.insert(FileID(row));
            return;
        }
    }
    m_contacts.Add(FileID(row), contact->RecID);
}

bool ImportRun::AddContact(const std::shared_ptr<Contact>& contact)
{
    contact->RecID = contact->AddToDB(contact->subCategoryID);
    if (contact->RecID == 0)
        return false;
    gContacts.Add(contact->RecID, contact);
    m_names->Add(contact->RecID, *contact);
    Category& category = *CategoryAt(contact->CategoryID);
    ++category.ContactCount;
    // A contact whose subcategory the file lacks lies in none.
    if (const qsizetype position = LocateSub(contact->subCategoryID, contact->CategoryID); position > 0)
        ++category.Sub(position)->ContactCount;
    return true;
}

qsizetype ImportRun::LocateAlert(Long id) const
{
    return id == 0 || m_alertIDs.contains(id) ? gAlerts.LocateAlert(id) : 0;
}

void ImportRun::TakeAlert(Recordset& row)
{
    if (m_notAdded.contains(row.Fields("ContactID"_L1).Get().LongOrZero()))
        return;
    const Long contactID = Mapped(m_contacts, row, "ContactID"_L1);
    if (!gContacts.Exists(contactID))
        return;
    const Value date = row.Fields("AlertDate"_L1).Get();
    if (date.IsNull())
        throw RunTimeError(ErrorNumber::InvalidUseOfNull);
    auto alert = std::make_shared<Alert>();
    alert->ContactID = contactID;
    alert->AlertDate = CDate(date.Text());
    alert->AlertNote = row.Fields("AlertNote"_L1).Get().Text();
    alert->ID = FileID(row);
    if (LocateAlert(alert->ID) == 0) {
        // The alert in the collection keeps the ID 0: an alert of the file must never be taken for one that came of it.
        const QString key = u"A"_s + CStr(alert->AddToDB());
        gAlerts.Add(key, contactID, CDate(Format(alert->AlertDate, u"mm/dd/yyyy")), alert->AlertNote);
        return;
    }
    // The number is one of another file, so this falls on whatever alert stands at that position here, which is meant.
    alert->Key = u"A"_s + CStr(alert->ID);
    gAlerts.Replace(alert->ID, alert);
    curAlertIndex = alert->ID;
    alert->UpdateDB();
}

void ImportRun::TakeProperty(Recordset& row)
{
    auto property = std::make_shared<PropDetail>();
    SetImportedFields(*property, row);
    if (m_notAdded.contains(property->ContactID))
        return;
    property->ContactID = m_contacts.Item(property->ContactID);
    curContact = ContactAt(property->ContactID);
    auto& properties = curContact->Properties;
    if (property->LocateProperty(property->ContactID) == 0) {
        property->RecID = property->SaveToDB();
        properties.Add(property->RecID, property);
    } else {
        properties.Item(property->RecID) = property;
    }
}

void ImportRun::TakeLetter(Recordset& row)
{
    const auto text = [&row](QLatin1StringView name) { return row.Fields(name).Get().Text(); };
    // As they stand: an apostrophe ends the literal and the run, which is meant.
    gConn.Execute(u"Insert into FormLetters (FormName,FormText) values ('"_s + text("FormName"_L1) + u"','"_s +
                  text("FormText"_L1) + u"')"_s);
}

/// Takes the rows one by one; false where the store itself failed, which has been reported: every row behind would only
/// say it again.
template <typename Take>
bool TakeSection(const QString& fileName, Take&& take)
{
    const int failures = gConn.Failures();
    // A file that is not there is an empty document, and that is no rowset.
    QFile file(fileName);
    (void)file.open(QIODevice::ReadOnly);
    Recordset rows;
    rows.Open(file);
    file.close();
    for (; !rows.Eof(); rows.MoveNext()) {
        take(rows);
        if (gConn.Failures() != failures)
            return false;
    }
    return true;
}

void Import(const SectionFiles& files)
{
    ImportRun run;
    const bool wasStored = TakeSection(files.Categories, [&run](Recordset& row) { run.TakeCategory(row); }) &&
                           TakeSection(files.SubCategories, [&run](Recordset& row) { run.TakeSubCategory(row); }) &&
                           TakeSection(files.Contacts, [&run](Recordset& row) { run.TakeContact(row); }) &&
                           TakeSection(files.Alerts, [&run](Recordset& row) { run.TakeAlert(row); }) &&
                           TakeSection(files.Properties, [&run](Recordset& row) { run.TakeProperty(row); });
    if (wasStored && files.FormLetters)
        TakeSection(*files.FormLetters, &ImportRun::TakeLetter);
    curContact.reset();
}

} // namespace

void StartImport(const SectionFiles& files)
{
    Trap(u"StartImport Error #"_s, Icon::Information, [&] {
        if (auto* tree = Face<TreeFace>::Get())
            tree->ShowTree();
        gConn.ShareCommits([&] { Import(files); });
    });
}
