#pragma once

/// Which contacts DeleteContacts takes.
enum class DeleteMode
{
    FoundHighlighted, ///< the highlighted rows of the found list
    Hilited,          ///< the highlighted rows of the contact list
    Selected,         ///< the Selected set
    Found,            ///< all rows of the found list
    Current           ///< curContact
};

/// Deletes contacts with their properties and alerts, from memory, from the file and from every view, after one
/// question. All deleting of contacts by the person goes through here.
void DeleteContacts(DeleteMode mode);
