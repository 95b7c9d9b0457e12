#include "make_window_pictures/Run.h"
#include "organise/CategoryTreeView.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButton.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void MainWindow(Run& run)
{
    run.Take(run.Main(), u"main-start"_s);
    run.Click(u"S2"_s);
    run.Take(run.Main(), u"main"_s);
}

void MainMenus(Run& run)
{
    for (const auto name :
         {"Settings"_L1, "BackGroundImage"_L1, "Clock"_L1, "Title"_L1, "Alerts"_L1, "Maintenance"_L1, "Help"_L1})
        run.TakeMenu("mnu"_L1 + name, "menu-"_L1 + QString(name).toLower());
    run.TakeMenu(u"mnuCategory"_s, u"menu-category-sub"_s);
    run.Click(u"C1"_s);
    run.TakeMenu(u"mnuCategory"_s, u"menu-category-root"_s);
}

void TreeWork(Run& run)
{
    run.Click(u"S2"_s);
    Run::Trigger(run.Main(), u"mnuCatRename"_s);
    run.Take(run.Main(), u"main-rename"_s);
    QTest::keyClick(run.Tree().findChild<QLineEdit*>(), Qt::Key_Escape);
    Settle();
}

void ContactList(Run& run)
{
    // The delivered picture is the last one, and stays. A list that is open keeps the picture it was opened with.
    for (const auto background : {"mnuNoBackgroundPic"_L1, "mnuBeach"_L1, "mnuBlue"_L1, "mnuRed"_L1, "mnuOrange"_L1,
                                  "mnuGreen"_L1, "mnuHouses"_L1}) {
        if (auto* open = Forms::Find(u"frmList"_s))
            open->Unload();
        Run::Trigger(run.Main(), QString(background));
        run.OpenList();
        run.Take(Run::ListWindow(), u"list-"_s + QString(background).mid(3).toLower());
    }
    QWidget& list = Run::ListWindow();
    Run::ClickCell(Run::List(), 3, 4);
    run.Take(list, u"list"_s);
    for (int i = 0; i < 4; ++i)
        Key(list, Qt::Key_Down, Qt::ShiftModifier);
    run.Take(list, u"list-several"_s);
    Run::Trigger(list, u"mnuSelect"_s);
    run.Take(list, u"list-selected"_s);
    run.Take(run.Main(), u"main-selected"_s);
    run.TakeMenu(u"mnuSelectedRecords"_s, u"menu-selected"_s);
}

void ListMenus(Run& run)
{
    run.TakeCellMenu(Run::ListWindow(), Run::List(), 4, 6, u"list-menu-several"_s);
    Run::ClickCell(Run::List(), 2, 4);
    run.TakeCellMenu(Run::ListWindow(), Run::List(), 2, 4, u"list-menu"_s);
    Run::ClickCell(Run::List(), 2, 3);
    run.TakeCellMenu(Run::ListWindow(), Run::List(), 2, 3, u"list-menu-properties"_s);
}

void EditorOfNew(Run& run)
{
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuNew"_s); },
            [&run](QWidget& form) {
                run.Take(form, u"contact-new"_s);
                Find<HoverButton>(form, u"cmdButton_2"_s).setFocus(Qt::TabFocusReason);
                Find<HoverButton>(form, u"cmdButton_3"_s).SetLit(true);
                run.Take(form, u"contact-buttons"_s);
                Key(form, Qt::Key_Escape);
            });
}

void EditorOfOld(Run& run)
{
    Run::ClickCell(Run::List(), 1, 4);
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuModify"_s); },
            [&run](QWidget& form) {
                run.Take(form, u"contact"_s);
                Key(form, Qt::Key_Tab);
                Key(form, Qt::Key_Tab);
                Type(form, u"-Longfellow of the Lower Lakes"_s);
                run.Take(form, u"contact-typing"_s);
                auto* combo = form.findChild<QComboBox*>();
                while (QApplication::focusWidget() != combo)
                    Key(form, Qt::Key_Tab);
                run.Take(form, u"contact-combo"_s);
                combo->showPopup();
                run.Pictures().TakeWithPopup(form, *combo->view()->window(), u"contact-combo-open"_s);
                combo->hidePopup();
                Key(form, Qt::Key_Escape);
            });
}

void NotesWindow(Run& run)
{
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuNotes"_s); },
            [&run](QWidget& form) {
                Find<QAbstractButton>(form, u"picStamp"_s).click();
                Type(form,
                     u"Called about the house on Elm Street; wants to see it on Saturday morning, with both children. "
                     u"The garden matters more than the garage."_s);
                run.Take(form, u"notes"_s);
                Key(form, Qt::Key_Tab);
                run.Take(form, u"notes-stamp"_s);
                InModal([&form] { Key(form, Qt::Key_Escape); },
                        [&run](QWidget& box) { run.Take(box, u"box-cancel"_s); });
            });
}

void Choosers(Run& run)
{
    InModal([] { Run::Trigger(Run::ListWindow(), u"mnuMove"_s); },
            [&run](QWidget& form) {
                run.Take(form, u"move-contact"_s);
                Key(form, Qt::Key_Down);
                Key(form, Qt::Key_Right);
                Key(form, Qt::Key_Down);
                run.Take(form, u"move-contact-chosen"_s);
                Key(form, Qt::Key_Tab);
                run.Take(form, u"move-contact-button"_s);
            });
    Q_EMIT run.Main().MainMenus().Menu(u"mnuCategory"_s).aboutToShow();
    InModal([&run] { Run::Trigger(run.Main(), u"mnuSubMove"_s); },
            [&run](QWidget& form) { run.Take(form, u"move-category"_s); });
}

void Boxes(Run& run)
{
    Run::ClickCell(Run::List(), 2, 4);
    QWidget& list = Run::ListWindow();
    InModal([&list] { Run::Trigger(list, u"mnuDelete"_s); },
            [&run](QWidget& box) { run.Take(box, u"box-question"_s); });
    InModal([&list] { Run::Trigger(list, u"mnuMove"_s); },
            [&run](QWidget& form) {
                InModal([&form] { Find<HoverButton>(form, u"cmdButton_2"_s).click(); },
                        [&run](QWidget& box) { run.Take(box, u"box-information"_s); });
            });
    InModal(
        [] {
            ::MsgBox(u"Insert into Contacts (FirstName) Values ("_s + QString(4000, u'x') + u')', Buttons::Ok,
                     Icon::Critical, u"frmContact SaveContact Error #-2147467259"_s);
        },
        [&run](QWidget& box) { run.Take(box, u"box-long"_s); });
}

void WholeDesk(Run& run)
{
    QWidget& list = Run::ListWindow();
    Run::Trigger(run.Main(), u"mnuTitleOrvantine"_s);
    run.Main().resize(1000, 620);
    list.resize(860, 430);
    Run::ClickCell(Run::List(), 3, 4);
    InModal([&list] { Run::Trigger(list, u"mnuModify"_s); },
            [&](QWidget& form) {
                run.Pictures().TakeDesk({{&run.Main(), {24, 20}}, {&list, {190, 130}}, {&form, {800, 90}}}, {1280, 720},
                                        u"main-window"_s);
                Key(form, Qt::Key_Escape);
            });
}

} // namespace

void TakeDesk(Run& run)
{
    MainWindow(run);
    MainMenus(run);
    TreeWork(run);
    ContactList(run);
    ListMenus(run);
    EditorOfNew(run);
    EditorOfOld(run);
    NotesWindow(run);
    Choosers(run);
    Boxes(run);
    WholeDesk(run);
}
