#pragma once

#include "BareStore.h"

#include <QString>

/// The yardstick of backup and restore: plain loops over the engine's own interface and the parser of Qt.
class BareTransfer : public BareStore
{
public:
    using BareStore::BareStore;

    /// Writes all rows of the six tables into one file, each as an element with its values as escaped attributes.
    void Write(const std::string& file) const;
    /// Reads a transfer file section by section, and copies each value; gives how many rows there are.
    [[nodiscard]] static long Parse(const QString& file);
    /// Runs statements, each prepared anew, with a commit after every thousand that write.
    void Run(const std::vector<std::string>& statements) const;
};
