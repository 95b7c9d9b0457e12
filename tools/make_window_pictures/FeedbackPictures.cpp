#include "make_window_pictures/Run.h"
#include "ui/frame/frmMain.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

void TakeFeedback(Run& run)
{
    InModal([&run] { Run::Trigger(run.Main(), u"mnuContact"_s); },
            [&run](QWidget& form) {
                auto* next = &Find<QPushButton>(form, u"cmdNext"_s);
                Find<QLineEdit>(form, u"txtName"_s).setText(u"Ann Lee"_s);
                Find<QLineEdit>(form, u"txtEmail"_s).setText(u"ann.lee@example.org"_s);
                run.Take(form, u"feedback"_s);
                next->click();
                next->click();
                Settle();
                run.Take(form, u"feedback-empty"_s);
                Find<QPlainTextEdit>(form, u"txtComments"_s)
                    .setPlainText(u"The Rolodex is what I had been looking for.\nCould it show the birthdays too?"_s);
                next->click();
                Settle();
                run.Take(form, u"feedback-review"_s);
            });
}
