#pragma once

#include <QByteArrayView>
#include <QFile>
#include <QString>

// Files, with their faults as the program's errors: 53 not found, 58 already there, 61 disk full, 70 permission denied,
// 75 any other fault, 76 no such folder.

/// Opens a file. One that is made by this is for its owner's eyes only where `secret` is set.
void OpenFile(QFile& file, QIODevice::OpenMode mode, bool secret = false);
/// Writes all of the bytes.
void WriteBytes(QIODevice& device, QByteArrayView bytes);
/// Hands over what was written and closes the file.
void CloseWritten(QFile& file);
/// Waits until a file is safe on the disk; the last moment at which a full disk is noticed.
void SyncFile(const QString& name);
/// Raises 70 for a file that its owner must not write, too.
void DeleteFile(const QString& name);
/// Makes `from` the next bytes of `to`, to its end.
void CopyBytes(QIODevice& from, QIODevice& to);
/// Raises 75 where reading has failed: it may look like the end.
void RequireRead(const QIODevice& device);
