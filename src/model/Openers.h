#pragma once

#include <functional>

/// The windows that one feature opens for another. The composition fills in what is there; an entry that is empty
/// belongs to a window that this program does not have, and what would open it stands disabled.
struct Openers
{
    /// frmContact, modal, on gEditMode and curContact.
    std::function<void()> ContactEditor;
    /// frmNotes, modal, on gEditMode, curContact and curPropertyID.
    std::function<void()> Notes;
    /// frmList: shows the window, loading it where it is not.
    std::function<void()> ContactList;
    /// frmProperty, modal, on gEditMode.
    std::function<void()> PropertyEditor;
    /// frmPropertyList, modal.
    std::function<void()> PropertyList;
    /// frmAlerts, modal, on gAlertMode.
    std::function<void()> Alerts;
    std::function<void()> ManageAlerts;
    std::function<void()> SetNewAlert;
    /// frmCreateWordFile in its contact mode for the listed contacts.
    std::function<void()> WordFileOfListed;
    std::function<void()> WordFileOfSelected;
    std::function<void()> WordFileOfFoundContacts;
    std::function<void()> WordFileOfHilitedContacts;
    std::function<void()> WordFileOfFoundProperties;
    std::function<void()> WordFileOfHilitedProperties;
    /// The same in its property mode for the highlighted rows of the property list.
    std::function<void()> WordFileOfProperty;
    std::function<void()> ExportSelected;
    std::function<void()> SelectedToRolodex;
    std::function<void()> Import;
    std::function<void()> Backup;
    std::function<void()> Restore;
    std::function<void()> Feedback;
};

extern Openers gOpeners;
