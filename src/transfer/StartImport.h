#pragma once

#include <QString>
#include <optional>

/// The files of the sections of a transfer file; without letters none are read.
struct SectionFiles
{
    QString Categories;
    QString SubCategories;
    QString Contacts;
    QString Properties;
    QString Alerts;
    std::optional<QString> FormLetters;
};

/// Takes the sections row by row into the data at hand, through the same objects and routines that the editing windows
/// use. Every row gets an ID of its own, and the references between them are kept. What is there already under the same
/// name is used, not doubled. A fault ends the run where it is, after its report; what was taken stays.
void StartImport(const SectionFiles& files);
