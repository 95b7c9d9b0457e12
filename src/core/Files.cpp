#include "core/Files.h"

#include "core/RunTimeError.h"

#include <cerrno>
#include <QFileInfo>
#include <unistd.h>

namespace {

[[noreturn]] void RaiseFault(const QFileDevice* file)
{
    switch (file != nullptr ? file->error() : QFileDevice::WriteError) {
    case QFileDevice::ResourceError:
        throw RunTimeError(ErrorNumber::DiskFull);
    case QFileDevice::PermissionsError:
        throw RunTimeError(ErrorNumber::PermissionDenied);
    default:
        throw RunTimeError(ErrorNumber::PathFileAccess);
    }
}

[[noreturn]] void RaiseNotOpened(const QFile& file, QIODevice::OpenMode mode)
{
    const QFileInfo info(file.fileName());
    if (!QFileInfo(info.path()).isDir())
        throw RunTimeError(ErrorNumber::PathNotFound);
    if (!info.exists() && !mode.testFlag(QIODevice::WriteOnly))
        throw RunTimeError(ErrorNumber::FileNotFound);
    if (info.isDir())
        throw RunTimeError(ErrorNumber::PathFileAccess);
    RaiseFault(&file);
}

} // namespace

void OpenFile(QFile& file, QIODevice::OpenMode mode, bool secret)
{
    const bool opened = secret ? file.open(mode, QFileDevice::ReadOwner | QFileDevice::WriteOwner) : file.open(mode);
    if (!opened)
        RaiseNotOpened(file, mode);
}

void WriteBytes(QIODevice& device, QByteArrayView bytes)
{
    if (device.write(bytes.data(), bytes.size()) != bytes.size())
        RaiseFault(qobject_cast<QFileDevice*>(&device));
}

void CloseWritten(QFile& file)
{
    if (!file.flush())
        RaiseFault(&file);
    file.close();
}

void SyncFile(const QString& name)
{
    QFile file(name);
    OpenFile(file, QIODevice::ReadWrite);
    if (fsync(file.handle()) != 0)
        throw RunTimeError(errno == ENOSPC ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess);
}

void DeleteFile(const QString& name)
{
    if (!QFileInfo(name).isFile())
        throw RunTimeError(ErrorNumber::FileNotFound);
    if (!QFile::remove(name))
        throw RunTimeError(ErrorNumber::PermissionDenied);
}

void CopyBytes(QIODevice& from, QIODevice& to)
{
    constexpr qint64 block = 1 << 20;
    for (QByteArray bytes = from.read(block); !bytes.isEmpty(); bytes = from.read(block))
        WriteBytes(to, bytes);
}
