#pragma once

#include <QString>
#include <functional>

class QWidget;

/// Asks for the name of a file. FileName is left as it was when the person cancels, so clear it before; with
/// CancelError set, a cancel raises 32755 instead.
class CommonDialog
{
public:
    static constexpr int CancelWasSelected = 32755;

    QString DialogTitle;
    /// As Qt writes filters: "Orvantine files (*.ocm);;All files (*)".
    QString Filter;
    /// Appended, without its dot here, when the person typed no extension.
    QString DefaultExt;
    /// Where to start; the person's documents when empty.
    QString InitDir;
    bool CancelError = false;
    /// The full path that was chosen; on the way in, the name that is proposed by ShowSave.
    QString FileName;

    /// An existing file.
    void ShowOpen(QWidget* owner);
    /// A file that may or may not exist; asks nothing about writing over it.
    void ShowSave(QWidget* owner);
    /// The bare name of the file that was chosen.
    [[nodiscard]] QString FileTitle() const;

    /// Stands in for the person: gets the dialog and whether it saves, gives what is typed, "" for cancel. For tests;
    /// an empty function goes back to the window.
    using Source = std::function<QString(const CommonDialog& dialog, bool saves)>;
    static void SetSource(Source source);

private:
    void Show(QWidget* owner, bool saves);
};
