#pragma once

class Alert;

/// Asks whether this alert of curContact should go.
[[nodiscard]] bool ConfirmedDelete(const Alert& alert);

/// Deletes the current alert from its table, from its panel and from gAlerts; gives whether it counted as future there.
/// The two dates compare as the texts "mm/dd/yyyy", which is meant: an alert of next January counts as past in
/// December. Raises what the table raises; the alert then stays.
bool DeleteCurrentAlert();

/// Brings the contact list, where it is loaded, up to date with curContact's alerts, in its selected row.
void ShowAlertIcon();
/// One alert less for curContact; the contact list shows it, with the focus on "FirstName".
void CountDeletedAlert();

/// Asks, and deletes the current alert with all that shows it.
void ConfirmDelThisAlert();
