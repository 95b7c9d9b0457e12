#include "ui/widgets/CommonDialog.h"

#include "core/RunTimeError.h"
#include "ui/widgets/NormalCursor.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

CommonDialog::Source& CurrentSource()
{
    static CommonDialog::Source source;
    return source;
}

QString StartFolder(const CommonDialog& dialog)
{
    return dialog.InitDir.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                    : dialog.InitDir;
}

QString AskPerson(const CommonDialog& dialog, QWidget* owner, bool saves)
{
    const NormalCursor cursor;
    QFileDialog window(nullptr, dialog.DialogTitle, StartFolder(dialog), dialog.Filter);
    window.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    window.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    window.setOption(QFileDialog::DontConfirmOverwrite);
    window.setWindowModality(Qt::ApplicationModal);
    if (saves && !dialog.FileName.isEmpty())
        window.selectFile(dialog.FileName);
    if (owner != nullptr) {
        static_cast<void>(window.winId());
        window.windowHandle()->setTransientParent(owner->window()->windowHandle());
    }
    return window.exec() == QDialog::Accepted ? window.selectedFiles().value(0) : QString();
}

} // namespace

void CommonDialog::ShowOpen(QWidget* owner)
{
    Show(owner, false);
}

void CommonDialog::ShowSave(QWidget* owner)
{
    Show(owner, true);
}

QString CommonDialog::FileTitle() const
{
    return QFileInfo(FileName).fileName();
}

void CommonDialog::SetSource(Source source)
{
    CurrentSource() = std::move(source);
}

void CommonDialog::Show(QWidget* owner, bool saves)
{
    const Source source = CurrentSource();
    const QString chosen = source ? source(*this, saves) : AskPerson(*this, owner, saves);
    if (chosen.isEmpty()) {
        if (CancelError)
            throw RunTimeError(CancelWasSelected, u"Cancel was selected."_s);
        return;
    }
    const QString path = QDir::cleanPath(QDir(StartFolder(*this)).absoluteFilePath(chosen));
    const bool isChosenAsItIs = !saves && QFileInfo::exists(path);
    const bool hasExtension = QFileInfo(path).fileName().contains(u'.');
    FileName = isChosenAsItIs || hasExtension || DefaultExt.isEmpty() ? path : path + u'.' + DefaultExt;
}
