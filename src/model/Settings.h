#pragma once

#include "core/Types.h"

#include <QString>

/// The person's choices, kept in the one row of the table Settings.
class Settings
{
public:
    QString PropPicture;
    QString Picture;
    QString ClientName;
    Long Clock = 0;
    QString LabelNumber;
    Integer LabelProduct = 0;
};

/// The two list windows that have a background picture.
enum class PictureOf
{
    ContactList,
    PropertyList
};

/// Reads the row into gSettings; writes the first one where there is none. A picture that has gone is reported and
/// forgotten.
void LoadSettings();

/// Writes label and clock choices.
void UpdateSettings();

/// Makes one of the delivered pictures (a file name) the background of a window. Windows that are open keep theirs.
void SetBackImage(PictureOf window, const QString& image);

/// Takes a window's background picture away.
void ClearBackImage(PictureOf window);

/// Makes a picture file that the person chose the background of the contact list.
void SetContactListPicture(const QString& file);

/// Writes the title that the person chose, as it stands.
void SetClientName(const QString& name);

/// The program's own title.
[[nodiscard]] QString OwnTitle();
