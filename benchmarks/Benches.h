#pragma once

// The figures. Each is run as "Figure/program/N" and "Figure/yardstick/N" for N contacts.

/// Everything read from the file, against the bare loop.
void RegisterLoad(int contacts);
/// Peak memory beyond the same program without contacts, in processes of their own.
void RegisterMemory(int contacts);
/// From the start of a process to a main window that answers, against the bare load and the start of an empty window.
void RegisterStart(int contacts);
/// One new contact: the Insert and the reading back of its number.
void RegisterNewContact(int contacts);
/// The contact list with all contacts in it; opened on a twentieth of all contacts; and a twentieth of its rows, spread
/// over all of it, deleted. Against plain walks and the bare deletion.
void RegisterLists(int contacts);
/// A search over all contacts and over all properties, without the listing, against the sqlite3 shell; the listing of
/// all that there is, against plain rows; and the memory of a cell of that list.
void RegisterSearch(int contacts);
/// Both panels filled with the alerts of all contacts, and one more alert added to a full one, against one pass that
/// formats the same cells.
void RegisterAlerts(int contacts);
/// A backup of everything, and its restore into the same program. Against bare loops that write, or parse and insert.
void RegisterTransfer(int contacts);
/// One new property: its Insert and the reading back of its number, from the editor; a letter of the Rolodex; all
/// contacts of a list selected. Against the bare statements and plain walks.
void RegisterProperties(int contacts);
/// One-page letters merged into a document, against the word processor that reads that document and writes it in its
/// own form; and the memory of a letter.
void RegisterLetters(int records);
/// A document of mailing labels, one for each record, against a label printer that makes the same sheets.
void RegisterLabels(int records);
