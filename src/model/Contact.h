#pragma once

#include "core/Dictionary.h"
#include "core/Types.h"

#include <QString>
#include <memory>
#include <optional>

class PropDetail;
class Recordset;

/// One person: the central record. Contacts of the same name may exist in different subcategories, not in one.
class Contact
{
public:
    Long RecID = 0;
    Long CategoryID = 0;
    Integer subCategoryID = 0;
    /// PropDetail.ID of the default property, 0 for none.
    Long DefaultProperty = 0;
    /// How many alerts point to this contact; the alerts themselves stand in gAlerts.
    Long NumberOfAlerts = 0;
    /// In gSelected; in memory only.
    bool Selected = false;
    bool FilledProperties = false;
    /// Position in the list of states.
    Single MailState = 0;

    QString FirstName;
    QString MI;
    QString LastName;
    QString Salutation;
    QString Spouse;
    QString Company;
    QString MailAddr1;
    QString MailAddr2;
    QString MailCity;
    QString MailZip;
    QString MailZip4;
    QString WorkPhone;
    QString Ext;
    QString HomePhone;
    QString Cell;
    QString Fax;
    QString Email;
    QString ReferredBy;
    QString Notes;

    /// Keyed by PropDetail.ID.
    Dictionary<Long, std::shared_ptr<PropDetail>> Properties;

    /// Takes every field from the current row.
    void LoadFromDB(Recordset& row);
    /// Reads all properties of this contact anew.
    void LoadProperties();

    /// Writes this contact as a new row and gives its ID; without a subcategory it is that of the tree's selected node.
    /// Gives 0 after a report; `written` then tells whether the row is there all the same, its ID unknown.
    [[nodiscard]] Long AddToDB(std::optional<Long> subCategory = {}, bool* written = nullptr) const;
    /// Writes every field to the row of this ID; false after a report.
    bool UpdateDB(Long id) const;
    /// Asks about the highlighted rows of the contact list, and deletes their contacts.
    static void DeleteFromDB();

    /// The key of the first contact of a subcategory with this name, without regard to case and outer blanks; 0 where
    /// there is none. Every contact may be asked.
    [[nodiscard]] static Long LocateContact(const QString& firstName, const QString& mi, const QString& lastName,
                                            Long subCategory);
};

/// First name, middle initial where there is one, and last name, with a blank between.
[[nodiscard]] QString FormatName(const Contact& contact);
/// The same of curContact. Reports 91 where there is none, and gives "".
[[nodiscard]] QString FormatName();

/// The contact under this key. A missing key raises 424, and stays behind in gContacts as an empty entry.
[[nodiscard]] const std::shared_ptr<Contact>& ContactAt(Long id);
