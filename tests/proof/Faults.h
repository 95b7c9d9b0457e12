#pragma once

#include "files/Database.h"
#include "support/FreshDatabase.h"

#include <functional>
#include <memory>

// The store can't be written, or not now.

/// An end that sets right again what was done.
using Undo = std::shared_ptr<void>;

struct Fault
{
    /// It must be there before the program opens its file.
    bool FromTheStart;
    std::function<QList<Undo>(const FreshDatabase&)> Begin;
};

/// Makes a column "fault" of the test's data, and a row for each.
void AddFaults();

/// No file of this process grows beyond the size that the database has now, and `room` bytes more.
[[nodiscard]] Undo FullDisk(const FreshDatabase& fresh, qint64 room = 0);

/// Another program has the file open and is in the middle of a transaction.
[[nodiscard]] std::shared_ptr<Database> LockedBy(const FreshDatabase& fresh, const QByteArray& transaction);
