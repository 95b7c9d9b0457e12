#pragma once

/// Opens frmAlerts on curContact and gAlertMode, and returns once it is closed.
void ShowAlerts();

/// Lets the person choose a contact that has alerts, opens frmAlerts on it, and begins again until the person cancels.
void ManageAlerts();

/// Makes a new alert by three questions: the contact, the date, the note. True when that made one.
bool SetNewAlert_Click();
