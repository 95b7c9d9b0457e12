#include "editors/PropertyFile.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/RunTimeError.h"
#include "editors/PropertyColumns.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

const PropertyFile PhotoFile{.Path = &PropDetail::Picture,
                             .Column = "Picture"_L1,
                             .Key = "Camera"_L1,
                             .IconColumn = IconColumn::Camera,
                             .Word = "photo"_L1,
                             .Menu = "Photo"_L1,
                             .SelectEntry = "mnuPhotoSelect"_L1,
                             .SelectCaption = "Select Photo"_L1,
                             .ViewEntry = "mnuPhotoView"_L1,
                             .ViewCaption = "View Photo"_L1,
                             .ClearEntry = "mnuPhotoClear"_L1,
                             .ClearCaption = "Clear Photo"_L1};

const PropertyFile VideoFile{.Path = &PropDetail::Video,
                             .Column = "Video"_L1,
                             .Key = "Video"_L1,
                             .IconColumn = IconColumn::Video,
                             .Word = "video"_L1,
                             .Menu = "Video"_L1,
                             .SelectEntry = "mnuVideoSelect"_L1,
                             .SelectCaption = "Select Video"_L1,
                             .ViewEntry = "mnuVideoPlay"_L1,
                             .ViewCaption = "Play Video"_L1,
                             .ClearEntry = "mnuVideoClear"_L1,
                             .ClearCaption = "Remove Video"_L1};

const PropertyFile* FileOfColumn(const QString& key)
{
    for (const PropertyFile* file : {&PhotoFile, &VideoFile}) {
        if (file->Key == key)
            return file;
    }
    return nullptr;
}

void StoreFile(const PropertyFile& file, Long propertyID, const QString& path)
{
    Recordset row;
    row.CursorLocation = CursorLocation::UseClient;
    row.LockType = LockType::Pessimistic;
    row.Open(u"Select * from PropDetail where ID="_s + CStr(propertyID), gConn);
    row.Fields(file.Column).Set(path);
    row.Update();
    row.Close();
}

void DeleteFileFromDisk(const QString& path)
{
    const QFileInfo info(path);
    if (!info.absoluteDir().exists())
        throw RunTimeError(ErrorNumber::PathNotFound);
    if (!info.isFile())
        throw RunTimeError(ErrorNumber::FileNotFound);
    if (!QFile::remove(path))
        throw RunTimeError(ErrorNumber::PermissionDenied);
}
