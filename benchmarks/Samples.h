#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

/// The program folder of the sample agency with so many contacts, as ./bench made it. Nothing changes
/// its contacts.
[[nodiscard]] QString SampleFolder(int contacts);
/// The database file in a program folder.
[[nodiscard]] QString DatabaseIn(const QString& folder);

/// A copy of a sample to write to, on the same disk, for as long as this lives.
class SampleCopy
{
public:
    explicit SampleCopy(int contacts);
    [[nodiscard]] QString Folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};
