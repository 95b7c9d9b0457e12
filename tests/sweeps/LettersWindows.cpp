#include "sweeps/Office.h"
#include "ui/frame/frmMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void OpenPage(Office& office, const Look& look)
{
    FreshDatabase::Execute(u"Insert into FormLetters (FormName,FormText) Values ('Hello','Dear !<FirstName>! ')"_s);
    office.Main().ShowTab(static_cast<int>(frmMain::Tab::Letters));
    QTest::qWait(0);
    Control<QWidget>(office.Main(), u"lstForms"_s).setFocus();
    look(office.Main());
}

void OpenWriting(Office& office, const Look& look)
{
    OpenPage(office, [&look](QWidget& main) {
        ClickOn(main, u"picForms_1"_s);
        look(main);
    });
}

void OpenLabels(Office& office, const Look& look)
{
    OpenPage(office, [&look](QWidget& main) {
        Office::InForm(
            u"frmLabelType"_s, [&main] { ClickOn(main, u"lblLabelType"_s); }, look);
    });
}

} // namespace

QList<OfficeWindow> LettersWindows()
{
    return {
        {u"letters"_s, u"lstForms"_s, OpenPage},
        {u"letter in edit"_s, u"Letter"_s, OpenWriting},
        {u"labels"_s, u"lstProducts"_s, OpenLabels},
    };
}
