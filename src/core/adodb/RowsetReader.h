#pragma once

#include <memory>

class QIODevice;
class RowPack;

/// Reads an XML rowset (RowsetForm.h) whole, as rows of texts. Raises EngineFailure, with what was wrong and where, for
/// what is no XML, what declares no columns, and a value that is none of its column's type.
///
/// What other writers of the form produce is taken: any prefixes, quotes, indentation and order of attributes, raw line
/// breaks in values, a mark or a declaration or blank lines in front, attributes that nothing declares (they are passed
/// over), columns under another name (rs:name), and changes that wait (rs:insert, rs:update, rs:delete): the rows are
/// those after them. A document with a type definition is refused, so nothing in it can be made to grow.
[[nodiscard]] std::unique_ptr<RowPack> ReadRowset(QIODevice& device);
