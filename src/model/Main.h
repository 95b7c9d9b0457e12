#pragma once

#include "core/Dictionary.h"
#include "core/Types.h"
#include "core/User.h"
#include "model/Alerts.h"
#include "model/SelectedSet.h"
#include "model/Settings.h"

#include <QString>
#include <memory>
#include <vector>

class Category;
class Contact;

// The shared state of the program. The records live here; everything else finds them by their IDs.

/// Every category, keyed by Categories.ID. Subcategories hang in their parent's Subs.
extern Dictionary<Long, std::shared_ptr<Category>> gCategories;
/// Every contact with its properties, keyed by Contacts.ID.
extern Dictionary<Long, std::shared_ptr<Contact>> gContacts;
/// Every alert of every contact, by position from 1.
extern Alerts gAlerts;
/// The contacts whose Selected flag is set, in the order of selecting.
extern SelectedSet gSelected;
/// The IDs of the rows highlighted in a grid, rebuilt on each use, and the same IDs joined by ",".
extern std::vector<Long> gHilited;
extern QString gHilitedList;
/// The one row of settings.
extern Settings gSettings;

/// What the contact and property screens are doing.
namespace EditMode {
inline constexpr Long ModifyContact = 0;
inline constexpr Long NewContact = 1;
inline constexpr Long ShowContact = 2;
inline constexpr Long Neutral = 3;
inline constexpr Long NewProperty = 6;
inline constexpr Long ModifyProperty = 7;
} // namespace EditMode
extern Long gEditMode;

/// How frmAlerts and frmAlertContacts were called, and then what the person does in frmAlerts.
namespace AlertMode {
inline constexpr Long SetNew = 1; ///< SetNewAlert_Click: any contact
inline constexpr Long Manage = 2; ///< ManageAlerts: a contact that has alerts
inline constexpr Long New = 3;    ///< a new alert for curContact
inline constexpr Long Modify = 4;
} // namespace AlertMode
extern Long gAlertMode;

/// The header of the column that was clicked last in a list window; the editors start on the control whose tag equals
/// it.
extern QString gFocusField;

extern std::shared_ptr<Contact> curContact;
extern Long curCategoryID;
/// Position from 1 of the current subcategory in the current category's Subs; stale while a category is selected.
extern qsizetype curSubIndex;
/// ContactCount of the tree node that was clicked last.
extern Long curContactCount;
/// Position of the current alert in gAlerts, from 1.
extern qsizetype curAlertIndex;
extern Long curPropertyID;
extern Long savedPropertyID;

/// Counts of the alerts of today and the past, and of the future ones.
extern Long gAlertsCurrent;
extern Long gAlertsFuture;

/// The folder of the program, without a separator at its end. The main program sets it first of all.
extern QString gAppPath;

/// A path under the program's folder, written with backslashes ("\Data\Contacts.mdb"), in the system's own form.
[[nodiscard]] QString AppFile(const QString& path);
