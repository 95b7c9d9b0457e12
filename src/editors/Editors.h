#pragma once

/// Opens frmContact and returns once it is closed. gEditMode 1 makes a new contact under the tree's subcategory, 0
/// changes curContact.
void ShowContactEditor();

/// Opens frmNotes and returns once it is closed: the notes of curContact, or in the property modes of gEditMode those
/// of its property curPropertyID.
void ShowNotes();

/// Opens frmProperty and returns once it is closed. gEditMode 6 makes a new property of curContact, 7 changes its
/// property curPropertyID.
void ShowPropertyEditor();

/// Opens frmPropertyList on the properties of curContact and returns once it is closed. It begins on curPropertyID
/// where the contact has it.
void ShowPropertyList();
