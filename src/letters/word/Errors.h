#pragma once

#include "core/RunTimeError.h"

/// The numbers that the word processor's objects raise beside the common ones, and their words.
namespace Word::Error {
inline constexpr int CannotCreateObject = 429;
inline constexpr int NoDocument = 4248;
/// Something that this document, or a document in this state, does not have.
inline constexpr int NotAvailable = 4605;
/// A range whose end lies before its start or behind the text.
inline constexpr int ValueOutOfRange = 4608;
/// A merge without a record.
inline constexpr int NoRecords = 5631;
/// A label that is in no list.
inline constexpr int NoSuchLabel = 5843;
/// A member that a collection does not have.
inline constexpr int NoSuchMember = 5941;

[[nodiscard]] inline RunTimeError MemberMissing()
{
    return RunTimeError(NoSuchMember, QStringLiteral("The requested member of the collection does not exist."));
}
} // namespace Word::Error
