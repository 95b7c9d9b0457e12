#pragma once

#include "core/Types.h"
#include "ui/widgets/Grid.h"

#include <vector>

class Contact;
class PropDetail;

// What stands in the found list: copies of the records' texts as they were when they were found.

/// The columns of found contacts and of found properties, in their order.
[[nodiscard]] const std::vector<GridColumn>& FoundContactColumns();
[[nodiscard]] const std::vector<GridColumn>& FoundPropertyColumns();

/// The cell of a column (from 1) of found contacts.
[[nodiscard]] QString FoundContactText(const Contact& contact, int column);

/// The columns of found properties in the order in which a row is filled: what fails leaves those that follow empty.
/// "Listing Date" and "Exp Date" are not among them, which is meant.
[[nodiscard]] const std::vector<int>& FoundPropertyFilling();

/// The cells of found properties. Worked out for many properties in a row; what is past is measured by the moment of
/// making.
class FoundPropertyTexts
{
public:
    FoundPropertyTexts();

    /// The cell of a column (from 1). Raises 13 for a date that is none, 424 where the contact is gone.
    [[nodiscard]] QString Text(const PropDetail& property, int column);

private:
    /// "Yes" for a date that has come, "No" for one that has not, a blank for none.
    [[nodiscard]] QString HasCome(const QString& date);
    [[nodiscard]] QString DateText(const QString& date);
    /// The same dates come again and again, in one property and in many.
    [[nodiscard]] Date DateOf(const QString& text);

    Date m_now;
    QString m_lastText;
    Date m_lastDate;
};
