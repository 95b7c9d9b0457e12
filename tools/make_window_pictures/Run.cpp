#include "make_window_pictures/Run.h"

#include "app/Composition.h"
#include "core/adodb/Connection.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QProgressBar>
#include <QTest>
#include <stdexcept>

using namespace Qt::StringLiterals;

Run::Run(Album& album, const QString& folder) : m_album(album), m_splash(m_user)
{
    gConn.Close();
    gAppPath = folder;
    User::Install(&m_user);
    auto& bar = Find<QProgressBar>(m_splash, u"PBar"_s);
    QObject::connect(&bar, &QProgressBar::valueChanged, &m_splash, [this](int percent) {
        if (percent >= 60 && !std::exchange(m_splashTaken, true))
            Take(m_splash, u"splash"_s);
    });
}

Run::~Run()
{
    if (m_splash.Program() != nullptr)
        Main().Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    User::Install(nullptr);
    gConn.Close();
}

void Run::Start()
{
    m_splash.Show();
    for (int i = 0; i < 500 && (m_splash.Program() == nullptr || !Main().isVisible()); ++i)
        Settle();
    Settle();
}

frmMain& Run::Main() const
{
    return m_splash.Program()->Main();
}

CategoryTreeView& Run::Tree() const
{
    return Find<CategoryTreeView>(Main(), u"trvCategories"_s);
}

QWidget& Run::ListWindow()
{
    return Window(u"frmList"_s);
}

Grid& Run::List()
{
    return Find<Grid>(ListWindow(), u"GridList"_s);
}

void Run::OpenList() const
{
    m_splash.Program()->Tree().trvCategories_DblClick();
    Settle();
}

void Run::Click(const QString& key) const
{
    Tree().expandAll();
    QTreeWidgetItem* node = Tree().FindKey(key);
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualItemRect(node).center());
    Settle();
}

void Run::TakeMenu(const QString& menu, const QString& name)
{
    QMenu& shown = Main().MainMenus().Menu(menu);
    shown.popup(Main().mapToGlobal(QPoint(40, 24)));
    m_album.TakeWithPopup(Main(), shown, name);
    shown.close();
}

void Run::ClickCell(Grid& grid, int row, int column)
{
    const QPoint place = grid.visualRect(grid.model()->index(row - 1, column - 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    Settle();
}

void Run::Trigger(QWidget& window, const QString& entry)
{
    Find<QAction>(window, entry).trigger();
}

void Run::TakeCellMenu(QWidget& window, Grid& grid, int row, int column, const QString& name)
{
    const QPoint place = grid.visualRect(grid.model()->index(row - 1, column - 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, place);
    Settle();
    QWidget* menu = QApplication::activePopupWidget();
    if (menu == nullptr)
        throw std::runtime_error("the menu of the grid did not open");
    m_album.TakeWithPopup(window, *menu, name);
    menu->close();
}

void Run::TakeModal(const std::function<void()>& open, const QString& name)
{
    InModal(open, [&](QWidget& shown) { Take(shown, name); });
}
