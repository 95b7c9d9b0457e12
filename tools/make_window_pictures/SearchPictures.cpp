#include "make_window_pictures/Run.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButton.h"

#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Types on a row of the criteria, and works the window that opens.
void OnRow(frmMain& main, int row, const QString& typed, const std::function<void(QWidget& form)>& look)
{
    auto& grid = Find<Grid>(main, u"GridSearch"_s);
    grid.SetSelectedRow(row);
    grid.EnsureVisible(row, 1);
    grid.setFocus();
    InModal([&] { Type(main, typed); }, look);
}

void TakePopup(Album& album, frmMain& main, const char* menu, const QString& name)
{
    auto& grid = Find<Grid>(main, u"GridFound"_s);
    const QPoint place = grid.visualRect(grid.model()->index(1, grid.columnAt(1))).center();
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, place);
    QMenu& popup = main.MainMenus().Menu(QString::fromLatin1(menu));
    album.TakeWithPopup(main, popup, name);
    popup.close();
}

} // namespace

void TakeSearch(Run& run)
{
    Album& album = run.Pictures();
    frmMain& main = run.Main();
    main.ShowTab(1);
    album.Take(main, u"search-start"_s);
    OnRow(main, 3, u"m"_s, [&](QWidget& form) {
        Type(form, u"iller"_s);
        album.Take(form, u"search-value"_s);
        Key(form, Qt::Key_Return);
    });
    Find<QRadioButton>(main, u"optAndOr_0"_s).click();
    auto& search = Find<HoverButton>(main, u"cmdbutton_2"_s);
    search.click();
    Find<Grid>(main, u"GridFound"_s).setFocus();
    album.Take(main, u"search-contacts"_s);
    TakePopup(album, main, "mnuHilitedContacts", u"search-menu-contact"_s);
    Find<Grid>(main, u"GridSearch"_s).SetCellText(3, 2, u"zzz"_s);
    search.click();
    album.Take(main, u"search-none"_s);

    Find<QRadioButton>(main, u"optSearch_1"_s).click();
    OnRow(main, 12, u"x"_s, [&](QWidget& form) {
        Find<QComboBox>(form, u"cboPropType"_s).setCurrentIndex(3);
        album.Take(form, u"search-list"_s);
        Key(form, Qt::Key_Return);
    });
    OnRow(main, 32, u"2"_s, [&](QWidget& form) {
        album.Take(form, u"search-amount-one"_s);
        Find<QComboBox>(form, u"cboCondition"_s).setCurrentIndex(3);
        album.Take(form, u"search-amount"_s);
        Find<QComboBox>(form, u"cboCondition"_s).setCurrentIndex(2);
        Type(form, u"250"_s);
        Key(form, Qt::Key_Return);
    });
    OnRow(main, 29, u"1"_s, [&](QWidget& form) {
        Find<QComboBox>(form, u"cboCondition"_s).setCurrentIndex(3);
        Type(form, u"01012026"_s);
        Key(form, Qt::Key_Tab);
        Type(form, u"04302026"_s);
        album.Take(form, u"search-date"_s);
        Key(form, Qt::Key_Return);
    });
    search.click();
    Find<Grid>(main, u"GridFound"_s).setFocus();
    Key(main, Qt::Key_Down);
    album.Take(main, u"search-properties"_s);
    TakePopup(album, main, "mnuHilitedProperties", u"search-menu-property"_s);
    run.TakeMenu(u"mnuFoundProperties"_s, u"menu-found-properties"_s);
    main.ShowTab(0);
}
