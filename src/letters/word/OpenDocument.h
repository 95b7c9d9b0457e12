#pragma once

#include <QString>
#include <functional>

namespace Word {

class Document;

/// Writes a document into this run's folder of the person's cache, under a name as word processors give them to new
/// documents ("Document1", "Form Letters1", "Labels1"; counted up in the run of the program), and gives the file's
/// path. Folder and file are for their owner alone. Raises 75 where that cannot be done.
[[nodiscard]] QString WriteToCache(const Document& document);

/// Has the person's own program open a .docx. Raises 429, naming the file, where there is none.
void OpenForPerson(const QString& path);

/// Removes what earlier runs left in the cache more than a week ago. For the start of the program.
void RemoveOldDocuments();

/// Stands in for the person's program: gets the path of a file, gives whether it could be opened. For tests; an empty
/// function goes back to the default program.
using DocumentOpener = std::function<bool(const QString& path)>;
void SetDocumentOpener(DocumentOpener opener);

} // namespace Word
