#include "transfer/TransferFile.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "model/Main.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int fileAlreadyOpen = 55;

bool IsSameFile(const QString& one, const QString& other)
{
    // Of files that are not there yet, the folders tell.
    const QFileInfo first(one);
    const QFileInfo second(other);
    if (first.exists() && second.exists())
        return first == second;
    return first.fileName() == second.fileName() && QFileInfo(first.path()) == QFileInfo(second.path());
}

} // namespace

QString TemporaryFile(const QString& name)
{
    return AppFile(u"\\Data\\"_s + name);
}

void RefuseOwnFile(const QString& chosen, const QStringList& temporaryNames)
{
    if (IsSameFile(chosen, AppFile(u"\\Data\\Contacts.mdb"_s)))
        throw RunTimeError(ErrorNumber::PermissionDenied);
    for (const QString& name : temporaryNames) {
        if (IsSameFile(chosen, TemporaryFile(name)))
            throw RunTimeError(fileAlreadyOpen);
    }
}

bool IsDatabaseBackup(QIODevice& file)
{
    constexpr QByteArrayView word = "FormLetters";
    constexpr qint64 blockSize = 1 << 20;
    QByteArray seen;
    bool isEmpty = true;
    for (QByteArray block = file.read(blockSize); !block.isEmpty(); block = file.read(blockSize)) {
        isEmpty = false;
        // The word may lie across two blocks.
        seen = seen.right(word.size() - 1) + block;
        if (seen.contains(word))
            return true;
    }
    RequireRead(file);
    if (isEmpty)
        throw RunTimeError(ErrorNumber::InputPastEnd);
    return false;
}
