#include "letters/word/OpenDocument.h"

#include "core/Clock.h"
#include "letters/word/Document.h"
#include "letters/word/Errors.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <array>

using namespace Qt::StringLiterals;

namespace Word {

namespace {

constexpr auto mimeType = "application/vnd.openxmlformats-officedocument.wordprocessingml.document"_L1;
constexpr int daysKept = 7;
constexpr auto ownerFolder = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr auto ownerFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString CacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/Documents"_s;
}

QString NameOf(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::FormLetters:
        return u"Form Letters"_s;
    case DocumentKind::Labels:
        return u"Labels"_s;
    case DocumentKind::Document:
        break;
    }
    return u"Document"_s;
}

/// The folder of this run; one that went away meanwhile comes back.
QString RunFolder()
{
    static const QString name =
        Clock::Now().toString(u"yyyy-MM-dd HH-mm-ss "_s) + QString::number(QCoreApplication::applicationPid());
    const QString path = CacheFolder() + u'/' + name;
    const bool made = QDir().mkpath(path) && QFile::setPermissions(CacheFolder(), ownerFolder) &&
                      QFile::setPermissions(path, ownerFolder);
    if (!made)
        throw RunTimeError(ErrorNumber::PathFileAccess,
                           u"I could not make the folder for new documents:\r\n"_s + QDir::toNativeSeparators(path));
    return path;
}

/// Whether a desktop that can be asked knows a program for .docx. One that cannot be asked is given the file to try.
bool DesktopKnowsAProgram()
{
    const QString tool = QStandardPaths::findExecutable(u"xdg-mime"_s);
    if (tool.isEmpty())
        return true;
    QProcess query;
    query.start(tool, {u"query"_s, u"default"_s, mimeType});
    if (!query.waitForFinished(5000))
        return true;
    return !query.readAllStandardOutput().trimmed().isEmpty();
}

bool OpenWithDefaultProgram(const QString& path)
{
    return DesktopKnowsAProgram() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

DocumentOpener& CurrentOpener()
{
    static DocumentOpener opener;
    return opener;
}

} // namespace

QString WriteToCache(const Document& document)
{
    static std::array<int, 3> counts{};
    const QString folder = RunFolder();
    const QString name = NameOf(document.Kind());
    int& count = counts[static_cast<std::size_t>(document.Kind())];
    const QString path = folder + u'/' + name + QString::number(++count) + u".docx"_s;
    document.SaveAs(path);
    QFile::setPermissions(path, ownerFile);
    return path;
}

void OpenForPerson(const QString& path)
{
    const DocumentOpener& opener = CurrentOpener();
    if (opener ? opener(path) : OpenWithDefaultProgram(path))
        return;
    throw RunTimeError(Error::CannotCreateObject,
                       u"I found no program that opens word processor documents. The document is "
                       "ready; you can find it at\r\n"_s +
                           QDir::toNativeSeparators(path));
}

void RemoveOldDocuments()
{
    const QDateTime oldest = Clock::Now().addDays(-daysKept);
    QDirIterator folders(CacheFolder(), QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    while (folders.hasNext()) {
        folders.next();
        if (folders.fileInfo().lastModified() < oldest)
            QDir(folders.filePath()).removeRecursively();
    }
}

void SetDocumentOpener(DocumentOpener opener)
{
    CurrentOpener() = std::move(opener);
}

} // namespace Word
