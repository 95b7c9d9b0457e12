#include "core/RunTimeError.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    int Number;
    QLatin1StringView Words;
};

constexpr std::array entries{
    Entry{5, "Invalid procedure call or argument"_L1},
    Entry{6, "Overflow"_L1},
    Entry{7, "Out of memory"_L1},
    Entry{9, "Subscript out of range"_L1},
    Entry{11, "Division by zero"_L1},
    Entry{13, "Type mismatch"_L1},
    Entry{52, "Bad file name or number"_L1},
    Entry{53, "File not found"_L1},
    Entry{55, "File already open"_L1},
    Entry{58, "File already exists"_L1},
    Entry{61, "Disk full"_L1},
    Entry{62, "Input past end of file"_L1},
    Entry{70, "Permission denied"_L1},
    Entry{71, "Disk not ready"_L1},
    Entry{75, "Path/File access error"_L1},
    Entry{76, "Path not found"_L1},
    Entry{91, "Object variable or With block variable not set"_L1},
    Entry{94, "Invalid use of Null"_L1},
    Entry{380, "Invalid property value"_L1},
    Entry{381, "Invalid property array index"_L1},
    Entry{383, "'Text' property is read-only"_L1},
    Entry{400, "Form already displayed; can't show modally"_L1},
    Entry{401, "Can't show non-modal form when modal form is displayed"_L1},
    Entry{424, "Object required"_L1},
    Entry{429, "ActiveX component can't create object"_L1},
    Entry{438, "Object doesn't support this property or method"_L1},
    Entry{457, "This key is already associated with an element of this collection"_L1},
    Entry{3001,
          "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."_L1},
    Entry{3021,
          "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current "
          "record."_L1},
    Entry{3219, "Operation is not allowed in this context."_L1},
    Entry{3251, "Current Recordset does not support updating. This may be a limitation of the provider, or of the "
                "selected locktype."_L1},
    Entry{3265, "Item cannot be found in the collection corresponding to the requested name or ordinal."_L1},
    Entry{3421, "Application uses a value of the wrong type for the current operation."_L1},
    Entry{3704, "Operation is not allowed when the object is closed."_L1},
    Entry{3705, "Operation is not allowed when the object is open."_L1},
    Entry{3709, "The connection cannot be used to perform this operation. It is either closed or invalid in this "
                "context."_L1},
    Entry{32755, "Cancel was selected."_L1},
    Entry{35600, "Index out of bounds"_L1},
    Entry{35601, "Element not found"_L1},
    Entry{35602, "Key is not unique in collection"_L1},
};

} // namespace

RunTimeError::RunTimeError(int number) : RunTimeError(number, StandardDescription(number)) {}

RunTimeError::RunTimeError(int number, QString description)
    : m_number(number), m_description(std::move(description)), m_utf8(m_description.toUtf8())
{}

QString RunTimeError::StandardDescription(int number)
{
    const auto found = std::ranges::find(entries, number, &Entry::Number);
    return found != entries.end() ? QString(found->Words) : u"Application-defined or object-defined error"_s;
}
