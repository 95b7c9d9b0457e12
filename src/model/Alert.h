#pragma once

#include "core/Types.h"

#include <QString>

/// A dated note on a contact.
class Alert
{
public:
    /// "A" and the table's ID: this is what identifies an alert.
    QString Key;
    /// Alerts.ID, only of an alert that was saved in this run; a loaded alert leaves it 0.
    Long ID = 0;
    Long ContactID = 0;
    Date AlertDate;
    QString AlertNote;

    /// Writes this alert as a new row and gives its ID. Of two alerts of one contact on one date it is the first one's,
    /// which is meant.
    [[nodiscard]] Long AddToDB() const;

    /// Writes date and note to the row of the current alert (curAlertIndex), whichever object it is called on.
    void UpdateDB() const;

    /// The table's ID from the key.
    [[nodiscard]] Long KeyID() const;
};
