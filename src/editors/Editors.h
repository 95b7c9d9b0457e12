#pragma once

/// Opens frmContact and returns once it is closed. gEditMode 1 makes a new contact under the tree's subcategory, 0
/// changes curContact.
void ShowContactEditor();

/// Opens frmNotes and returns once it is closed: the notes of curContact, or in the property modes of gEditMode those
/// of its property curPropertyID.
void ShowNotes();
