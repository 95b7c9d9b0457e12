#include "ui/widgets/OpenFile.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

std::function<bool(const QString&)>& CurrentOpener()
{
    static std::function<bool(const QString&)> opener;
    return opener;
}

} // namespace

bool OpenFile(const QString& path)
{
    if (const auto opener = CurrentOpener())
        return opener(path);
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void SetFileOpener(std::function<bool(const QString& path)> opener)
{
    CurrentOpener() = std::move(opener);
}
