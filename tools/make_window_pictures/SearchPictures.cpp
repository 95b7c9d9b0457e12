#include "make_window_pictures/SearchPictures.h"

#include "make_window_pictures/Album.h"
#include "make_window_pictures/Stage.h"
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

template <typename T>
T& Find(const QWidget& window, const char* name)
{
    return *window.findChild<T*>(QString::fromLatin1(name));
}

void Type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown, QString(letter), {});
}

/// Types on a row of the criteria, and works the window that opens.
void OnRow(frmMain& main, int row, const QString& typed, const std::function<void(QWidget& form)>& look)
{
    auto& grid = Find<Grid>(main, "GridSearch");
    grid.SetSelectedRow(row);
    grid.EnsureVisible(row, 1);
    grid.setFocus();
    InModal([&] { Type(main, typed); }, look);
}

void TakePopup(Album& album, frmMain& main, const char* menu, const QString& name)
{
    auto& grid = Find<Grid>(main, "GridFound");
    const QPoint place = grid.visualRect(grid.model()->index(1, grid.columnAt(1))).center();
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, place);
    QMenu& popup = main.MainMenus().Menu(QString::fromLatin1(menu));
    album.TakeWithPopup(main, popup, name);
    popup.close();
}

} // namespace

void TakeSearch(Album& album, frmMain& main)
{
    main.ShowTab(1);
    album.Take(main, u"search-start"_s);
    OnRow(main, 3, u"m"_s, [&](QWidget& form) {
        Type(form, u"iller"_s);
        album.Take(form, u"search-value"_s);
        QTest::keyClick(form.windowHandle(), Qt::Key_Return);
    });
    Find<QRadioButton>(main, "optAndOr_0").click();
    auto& search = Find<HoverButton>(main, "cmdbutton_2");
    search.click();
    Find<Grid>(main, "GridFound").setFocus();
    album.Take(main, u"search-contacts"_s);
    TakePopup(album, main, "mnuHilitedContacts", u"search-menu-contact"_s);
    Find<Grid>(main, "GridSearch").SetCellText(3, 2, u"zzz"_s);
    search.click();
    album.Take(main, u"search-none"_s);

    Find<QRadioButton>(main, "optSearch_1").click();
    OnRow(main, 12, u"x"_s, [&](QWidget& form) {
        Find<QComboBox>(form, "cboPropType").setCurrentIndex(3);
        album.Take(form, u"search-list"_s);
        QTest::keyClick(form.windowHandle(), Qt::Key_Return);
    });
    OnRow(main, 32, u"2"_s, [&](QWidget& form) {
        album.Take(form, u"search-amount-one"_s);
        Find<QComboBox>(form, "cboCondition").setCurrentIndex(3);
        album.Take(form, u"search-amount"_s);
        Find<QComboBox>(form, "cboCondition").setCurrentIndex(2);
        Type(form, u"250"_s);
        QTest::keyClick(form.windowHandle(), Qt::Key_Return);
    });
    OnRow(main, 29, u"1"_s, [&](QWidget& form) {
        Find<QComboBox>(form, "cboCondition").setCurrentIndex(3);
        Type(form, u"01012026"_s);
        QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
        Type(form, u"04302026"_s);
        album.Take(form, u"search-date"_s);
        QTest::keyClick(form.windowHandle(), Qt::Key_Return);
    });
    search.click();
    Find<Grid>(main, "GridFound").setFocus();
    QTest::keyClick(main.windowHandle(), Qt::Key_Down);
    album.Take(main, u"search-properties"_s);
    TakePopup(album, main, "mnuHilitedProperties", u"search-menu-property"_s);
    QMenu& found = main.MainMenus().Menu(u"mnuFoundProperties"_s);
    found.popup(main.mapToGlobal(QPoint(40, 24)));
    album.TakeWithPopup(main, found, u"menu-found-properties"_s);
    found.close();
    main.ShowTab(0);
}
