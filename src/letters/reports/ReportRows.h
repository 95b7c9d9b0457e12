#pragma once

#include <QString>
#include <functional>
#include <vector>

class Contact;
class PropDetail;

/// One row of a report: the caption that is ticked and printed, and what is printed behind it; without `Value`
/// nothing is.
template <typename Record>
struct ReportRow
{
    QString Detail;
    std::function<QString(const Record& record)> Value;
};

/// What can be told of a contact, and of a property, in the order of the rows.
[[nodiscard]] const std::vector<ReportRow<Contact>>& ContactReport();
[[nodiscard]] const std::vector<ReportRow<PropDetail>>& PropertyReport();
