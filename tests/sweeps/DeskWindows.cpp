#include "organise/CategoryTreeView.h"
#include "sweeps/Office.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A window that an entry of the contact list's menu opens.
OfficeWindow OfListMenu(const QString& name, const QString& focus, const QString& form, const QString& entry,
                        bool keepsTab = false)
{
    return {name, focus,
            [=](Office& office, const Look& look) {
                office.OpenList();
                Office::InForm(
                    form, [&] { Office::Trigger(Office::List(), entry); }, look);
            },
            keepsTab};
}

/// Has `look` see a box, and takes it away by its gentlest button.
std::function<void(QMessageBox&)> Seeing(const Look& look)
{
    return [&look](QMessageBox& box) {
        look(box);
        box.button(box.button(QMessageBox::No) != nullptr ? QMessageBox::No : QMessageBox::Ok)->click();
    };
}

void OpenMainSelected(Office& office, const Look& look)
{
    office.OpenList().selectAll();
    Office::Trigger(Office::List(), u"mnuSelect"_s);
    Office::List().Unload();
    look(office.Main());
}

void OpenRolodex(Office& office, const Look& look)
{
    office.OpenList().selectAll();
    Office::Trigger(Office::List(), u"mnuSelect"_s);
    Office::List().Unload();
    Office::Trigger(office.Main(), u"mnuSelectedToRolodex"_s);
    Control<QWidget>(office.Main(), u"GridRolodex"_s).setFocus();
    look(office.Main());
}

void OpenMoveOfCategory(Office& office, const Look& look)
{
    office.Click(u"S1"_s);
    Q_EMIT office.Main().MainMenus().Menu(u"mnuCategory"_s).aboutToShow();
    Office::InForm(
        u"frmMove"_s, [&] { Office::Trigger(office.Main(), u"mnuSubMove"_s); }, look);
}

void OpenQuestion(Office& office, const Look& look)
{
    office.OpenList();
    const WhenBoxOpens box(Seeing(look));
    Office::Trigger(Office::List(), u"mnuDelete"_s);
}

void OpenQuestionOfNotes(Office& office, const Look& look)
{
    office.OpenList();
    Office::InForm(
        u"frmNotes"_s, [] { Office::Trigger(Office::List(), u"mnuNotes"_s); },
        [&look](QWidget& form) {
            TypeText(form, u"x"_s);
            const WhenBoxOpens box(Seeing(look));
            TypeKey(form, Qt::Key_Escape);
        });
}

} // namespace

QList<OfficeWindow> DeskWindows()
{
    return {
        {u"splash"_s, {}, [](Office& office, const Look& look) { office.StartInVain(false, look); }},
        {u"error"_s, u"OK"_s, [](Office& office, const Look& look) { office.StartInVain(true, look); }},
        {u"main window"_s, u"trvCategories"_s, [](Office& office, const Look& look) { look(office.Main()); }},
        {u"main window with selected contacts"_s, {}, OpenMainSelected},
        {u"Rolodex"_s, u"GridRolodex"_s, OpenRolodex},
        {u"line of text"_s, u"txtInput"_s,
         [](Office& office, const Look& look) {
             Office::InForm(
                 u"frmDialog"_s, [&] { Office::Trigger(office.Main(), u"mnuCatCreate"_s); }, look);
         }},
        {u"move category"_s, u"TreeView1"_s, OpenMoveOfCategory},
        {u"contact list"_s, u"GridList"_s,
         [](Office& office, const Look& look) {
             office.OpenList();
             look(Office::List());
         }},
        OfListMenu(u"new contact"_s, u"txtFirstName"_s, u"frmContact"_s, u"mnuNew"_s, true),
        OfListMenu(u"contact"_s, u"txtFirstName"_s, u"frmContact"_s, u"mnuModify"_s, true),
        OfListMenu(u"notes"_s, u"txtNotes"_s, u"frmNotes"_s, u"mnuNotes"_s),
        OfListMenu(u"move contact"_s, u"TreeView1"_s, u"frmMove"_s, u"mnuMove"_s),
        {u"question"_s, u"Yes"_s, OpenQuestion},
        {u"question of notes"_s, u"Yes"_s, OpenQuestionOfNotes},
    };
}
