#pragma once

#include <QString>
#include <memory>

class Alert;

/// Makes an alert for curContact, writes it to its table and adds it to gAlerts. `alertDate` is any text that names a
/// date. Raises 13 where it names none, 91 without a contact.
std::shared_ptr<Alert> AddToAlertCollection(const QString& alertDate, const QString& alertNote);

/// The same, and shows the new alert in its panel; it becomes the current alert. The contact's NumberOfAlerts stays as
/// it was, which is meant: frmAlerts counts when it closes, and where it does not come up, the next start does.
void AddNewAlert(const QString& alertDate, const QString& alertNote);
