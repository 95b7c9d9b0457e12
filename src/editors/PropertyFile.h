#pragma once

#include "model/PropDetail.h"

#include <QLatin1StringView>

/// The photo and the video of a property are the same thing on different fields.
struct PropertyFile
{
    QString PropDetail::*Path;
    /// Its column in the table.
    QLatin1StringView Column;
    /// Its column of icons in the list.
    QLatin1StringView Key;
    int IconColumn;
    /// As the sentences name it.
    QLatin1StringView Word;

    QLatin1StringView Menu;
    QLatin1StringView SelectEntry;
    QLatin1StringView SelectCaption;
    QLatin1StringView ViewEntry;
    QLatin1StringView ViewCaption;
    QLatin1StringView ClearEntry;
    QLatin1StringView ClearCaption;
};

extern const PropertyFile PhotoFile;
extern const PropertyFile VideoFile;

/// The file that a column of the list stands for; null for any other column.
[[nodiscard]] const PropertyFile* FileOfColumn(const QString& key);

/// Writes a path into the row of a property, "" for none.
void StoreFile(const PropertyFile& file, Long propertyID, const QString& path);

/// Deletes a file from the disk. Raises 76 where its folder, 53 where the file itself is not there, 70 where it may not
/// be deleted.
void DeleteFileFromDisk(const QString& path);
