#include "sweeps/Office.h"
#include "ui/frame/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

/// Opens the feedback window on its first page.
void OpenFeedback(Office& office, const Look& look)
{
    Office::InForm(
        u"frmCallHome"_s, [&office] { Office::Trigger(office.Main(), u"mnuContact"_s); }, look);
}

void OpenComments(Office& office, const Look& look)
{
    OpenFeedback(office, [&look](QWidget& form) {
        ClickOn(form, u"cmdNext"_s);
        look(form);
    });
}

void OpenReview(Office& office, const Look& look)
{
    OpenComments(office, [&look](QWidget& form) {
        TypeText(form, u"I like it."_s);
        ClickOn(form, u"cmdNext"_s);
        look(form);
    });
}

} // namespace

QList<OfficeWindow> FeedbackWindows()
{
    return {{u"feedback"_s, u"txtName"_s, OpenFeedback},
            {u"feedback comments"_s, u"txtComments"_s, OpenComments},
            {u"feedback review"_s, u"cmdNext"_s, OpenReview}};
}
