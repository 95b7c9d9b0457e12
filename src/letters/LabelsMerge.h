#pragma once

#include <QString>

/// Merges a sheet of labels over the Selected contacts, on the label of the settings, in a new document that the person
/// sees. What is printed is left behind in \Data\MailLabelSource.txt. Traps its own errors.
void LabelsMerge();

/// Writes the names and addresses of the Selected contacts for the labels to a file, and gives its path; "" where that
/// failed, which has been reported then.
[[nodiscard]] QString CreateLabelSourceFile(const QString& path);
