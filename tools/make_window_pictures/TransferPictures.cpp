#include "make_window_pictures/TransferPictures.h"

#include "make_window_pictures/Album.h"
#include "make_window_pictures/Stage.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

void TakeFeedback(Album& album, QWidget& mainWindow)
{
    InModal([&mainWindow] { mainWindow.findChild<QAction*>(u"mnuContact"_s)->trigger(); },
            [&album](QWidget& form) {
                auto* next = form.findChild<QPushButton*>(u"cmdNext"_s);
                form.findChild<QLineEdit*>(u"txtName"_s)->setText(u"Ann Lee"_s);
                form.findChild<QLineEdit*>(u"txtEmail"_s)->setText(u"ann.lee@example.org"_s);
                album.Take(form, u"feedback"_s);
                next->click();
                next->click();
                Settle();
                album.Take(form, u"feedback-empty"_s);
                form.findChild<QPlainTextEdit*>(u"txtComments"_s)
                    ->setPlainText(u"The Rolodex is what I had been looking for.\nCould it show the birthdays too?"_s);
                next->click();
                Settle();
                album.Take(form, u"feedback-review"_s);
            });
}
