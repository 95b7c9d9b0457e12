#include "core/Files.h"

#include "core/RunTimeError.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

[[noreturn]] void RaiseFault(const QFileDevice* file)
{
    // The toolkit forgets why a write came to its end early, and has no error for a person's or a file's own limit.
    if (errno == ENOSPC || errno == EDQUOT || errno == EFBIG)
        throw RunTimeError(ErrorNumber::DiskFull);
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
    if (mode.testFlag(QIODevice::NewOnly) && (info.exists() || info.isSymLink()))
        throw RunTimeError(ErrorNumber::FileAlreadyExists);
    RaiseFault(&file);
}

/// Waits until a file or a folder is on the disk. Not every file system can say so; those take what they got.
void Sync(int handle)
{
    if (fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS)
        return;
    throw RunTimeError(errno == ENOSPC || errno == EDQUOT ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess);
}

} // namespace

void OpenFile(QFile& file, QIODevice::OpenMode mode, bool secret)
{
    errno = 0;
    const bool opened = secret ? file.open(mode, QFileDevice::ReadOwner | QFileDevice::WriteOwner) : file.open(mode);
    if (!opened)
        RaiseNotOpened(file, mode);
}

void WriteBytes(QIODevice& device, QByteArrayView bytes)
{
    errno = 0;
    if (device.write(bytes.data(), bytes.size()) != bytes.size())
        RaiseFault(qobject_cast<QFileDevice*>(&device));
}

void CloseWritten(QFile& file)
{
    errno = 0;
    if (!file.flush())
        RaiseFault(&file);
    file.close();
}

void SyncFile(const QString& name)
{
    QFile file(name);
    OpenFile(file, QIODevice::ReadWrite);
    Sync(file.handle());
    // The name stands in the folder, which a person may be allowed to write but not to read.
    const int folder = open(QFile::encodeName(QFileInfo(name).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    const auto closed = qScopeGuard([folder] { close(folder); });
    Sync(folder);
}

void DeleteFile(const QString& name)
{
    const QFileInfo info(name);
    if (!info.isFile() && !info.isSymLink())
        throw RunTimeError(ErrorNumber::FileNotFound);
    // The system asks the folder only; who protected a file meant it.
    const bool isProtected = info.isFile() && !info.permission(QFileDevice::WriteOwner);
    if (isProtected || !QFile::remove(name))
        throw RunTimeError(ErrorNumber::PermissionDenied);
}

void CopyBytes(QIODevice& from, QIODevice& to)
{
    constexpr qint64 block = 1 << 20;
    for (QByteArray bytes = from.read(block); !bytes.isEmpty(); bytes = from.read(block))
        WriteBytes(to, bytes);
    RequireRead(from);
}

void RequireRead(const QIODevice& device)
{
    const auto* file = qobject_cast<const QFileDevice*>(&device);
    if (file != nullptr && file->error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::PathFileAccess);
}
