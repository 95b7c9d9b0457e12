#pragma once

#include <functional>

/// Reads all contacts with their properties, then all alerts. A contact whose category or subcategory is gone is
/// deleted from the table without a word; its object stays for this run. An alert whose contact is missing ends the
/// load with the report. `progress` is told each new percentage, from 1; `doEvents` runs after each row.
void LoadContacts(const std::function<void(int percent)>& progress, const std::function<void()>& doEvents = {});
