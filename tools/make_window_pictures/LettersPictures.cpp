#include "letters/word/OpenDocument.h"
#include "make_window_pictures/Run.h"
#include "ui/frame/frmMain.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void Press(const QWidget& window, const QString& button)
{
    Find<QAbstractButton>(window, button).click();
    Settle();
}

void Choose(const QWidget& window, const QString& list, const QString& line)
{
    auto& lines = Find<QListWidget>(window, list);
    lines.setCurrentItem(lines.findItems(line, Qt::MatchExactly).value(0));
}

void WriteLetter(QWidget& main)
{
    Press(main, u"picForms_1"_s);
    auto& letter = Find<QPlainTextEdit>(main, u"Letter"_s);
    letter.insertPlainText(u"Dear "_s);
    Choose(main, u"lstContactFields"_s, u"First Name"_s);
    Press(main, u"picInsertContactInfo"_s);
    letter.insertPlainText(u",\n\nthe house at "_s);
    Choose(main, u"lstPropFields"_s, u"Address1"_s);
    Press(main, u"picInsertPropInfo"_s);
    letter.insertPlainText(u"is <b>yours</b>!"_s);
}

void LabelWindow(Run& run)
{
    InModal([&run] { Press(run.Main(), u"lblLabelType"_s); },
            [&run](QWidget& form) {
                run.Take(form, u"labels-empty"_s);
                Choose(form, u"lstProducts"_s, u"Avery Letter Size"_s);
                Choose(form, u"lstNumbers"_s, u"5160"_s);
                run.Take(form, u"labels"_s);
                Press(form, u"cmdbutton_2"_s);
            });
}

/// Keeps the document that a button makes beside the pictures, to be rendered by the word processor.
void TakeDocument(Run& run, const QString& button, const QString& name)
{
    QStandardPaths::setTestModeEnabled(true); // not the person's own cache
    const QString kept = run.Pictures().Folder().filePath(name + u".docx"_s);
    QFile::remove(kept);
    Word::SetDocumentOpener([&kept](const QString& path) { return QFile::copy(path, kept); });
    Press(run.Main(), button);
    Word::SetDocumentOpener({});
}

} // namespace

void TakeLetters(Run& run)
{
    frmMain& main = run.Main();
    main.activateWindow();
    main.ShowTab(static_cast<int>(frmMain::Tab::Letters));
    Settle();
    Choose(main, u"lstForms"_s, u"Listing Expires Soon"_s);
    LabelWindow(run);
    run.Take(main, u"letters"_s);
    WriteLetter(main);
    QTest::mouseMove(&Find<QWidget>(main, u"picInsertPropInfo"_s));
    run.Take(main, u"letters-writing"_s);
    Find<QWidget>(main, u"picForms_3"_s).setFocus(Qt::TabFocusReason);
    run.Take(main, u"letters-focus"_s);
    Press(main, u"picForms_4"_s);
    Choose(main, u"lstForms"_s, u"Welcome"_s);
    TakeDocument(run, u"cmdbutton_7"_s, u"letters-page"_s);
    TakeDocument(run, u"cmdbutton_8"_s, u"labels-sheet"_s);
    main.ShowTab(static_cast<int>(frmMain::Tab::Contacts));
}
