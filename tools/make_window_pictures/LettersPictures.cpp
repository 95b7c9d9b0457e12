#include "make_window_pictures/LettersPictures.h"

#include "make_window_pictures/Album.h"
#include "make_window_pictures/Stage.h"
#include "ui/frame/frmMain.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void Press(const QWidget& window, const QString& button)
{
    window.findChild<QAbstractButton*>(button)->click();
    Settle();
}

void Choose(const QWidget& window, const QString& list, const QString& line)
{
    auto* lines = window.findChild<QListWidget*>(list);
    lines->setCurrentItem(lines->findItems(line, Qt::MatchExactly).value(0));
    lines->scrollToItem(lines->currentItem());
}

void Write(frmMain& main)
{
    Press(main, u"picForms_1"_s);
    auto* letter = main.findChild<QPlainTextEdit*>(u"Letter"_s);
    letter->insertPlainText(u"Dear "_s);
    Choose(main, u"lstContactFields"_s, u"First Name"_s);
    Press(main, u"picInsertContactInfo"_s);
    letter->insertPlainText(u",\n\nthe house at "_s);
    Choose(main, u"lstPropFields"_s, u"Address1"_s);
    Press(main, u"picInsertPropInfo"_s);
    letter->insertPlainText(u"is <b>yours</b>!"_s);
}

} // namespace

void TakeLetters(Album& album, frmMain& main)
{
    main.ShowTab(static_cast<int>(frmMain::Tab::Letters));
    Settle();
    Choose(main, u"lstForms"_s, u"Listing Expires Soon"_s);
    album.Take(main, u"letters"_s);
    InModal([&main] { Press(main, u"lblLabelType"_s); },
            [&album](QWidget& form) {
                album.Take(form, u"labels-empty"_s);
                Choose(form, u"lstProducts"_s, u"Avery Letter Size"_s);
                Choose(form, u"lstNumbers"_s, u"5160"_s);
                album.Take(form, u"labels"_s);
                Press(form, u"cmdbutton_2"_s);
            });
    Write(main);
    QTest::mouseMove(main.findChild<QWidget*>(u"picInsertPropInfo"_s));
    album.Take(main, u"letters-writing"_s);
    main.findChild<QWidget*>(u"picForms_3"_s)->setFocus(Qt::TabFocusReason);
    album.Take(main, u"letters-focus"_s);
    Press(main, u"picForms_4"_s);
    main.ShowTab(static_cast<int>(frmMain::Tab::Contacts));
}
