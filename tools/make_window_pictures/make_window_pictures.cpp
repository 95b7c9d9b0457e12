// Draws each window of the running program, filled from the real store.
//
//   make_window_pictures --database FILE --images FOLDER --into FOLDER [--scheme light|dark] [--smallest]
//
// --database is a sample that make_sample has made for 2026-05-12 (it is copied, never written to), --images has the
// background pictures. The clock stands still and the caret does not blink, so that the same program gives the same
// pictures.

#include "app/Composition.h"
#include "app/frmSplash.h"
#include "core/adodb/Connection.h"
#include "core/Clock.h"
#include "make_window_pictures/Album.h"
#include "make_window_pictures/SearchPictures.h"
#include "make_window_pictures/Stage.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButton.h"
#include "ui/widgets/Pictures.h"
#include "ui/widgets/Theme.h"
#include "ui/widgets/UserWindows.h"

#include <cstdio>
#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTest>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

template <typename T>
T& Find(const QWidget& window, const QString& name)
{
    T* found = window.findChild<T*>(name);
    if (found == nullptr)
        throw std::runtime_error(qPrintable(window.objectName() + u" has no "_s + name));
    return *found;
}

QWidget& Window(const QString& name)
{
    QWidget* form = Forms::Find(name);
    if (form == nullptr)
        throw std::runtime_error(qPrintable(name + u" is not open"_s));
    return *form;
}

void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

void Type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown, QString(letter), {});
}

/// A program folder with a copy of this database.
void FillFolder(const QDir& folder, const QString& database, const QString& images)
{
    folder.mkpath(u"Data"_s);
    folder.mkpath(u"Resource/Images"_s);
    bool copied = QFile::copy(database, folder.filePath(u"Data/Contacts.mdb"_s));
    for (const QString& image : QDir(images).entryList(QDir::Files))
        copied = copied && QFile::copy(images + u'/' + image, folder.filePath(u"Resource/Images/"_s + image));
    if (!copied)
        throw std::runtime_error("the database or the background pictures cannot be copied");
}

/// The program in one of its runs, and the pictures to be taken of it.
class Run
{
public:
    Run(Album& album, const QString& folder) : m_album(album), m_splash(m_user)
    {
        gConn.Close();
        gAppPath = folder;
        User::Install(&m_user);
        auto& bar = Find<QProgressBar>(m_splash, u"PBar"_s);
        QObject::connect(&bar, &QProgressBar::valueChanged, &m_splash, [this](int percent) {
            if (percent >= 60 && !std::exchange(m_splashTaken, true))
                m_album.Take(m_splash, u"splash"_s);
        });
    }

    ~Run()
    {
        if (m_splash.Program() != nullptr)
            Main().Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        User::Install(nullptr);
        gConn.Close();
    }

    void Empty();
    void Full();
    void WithoutFile();

private:
    void Start();
    [[nodiscard]] frmMain& Main() const { return m_splash.Program()->Main(); }
    [[nodiscard]] CategoryTreeView& Tree() const { return Find<CategoryTreeView>(Main(), u"trvCategories"_s); }
    [[nodiscard]] static Grid& List() { return Find<Grid>(Window(u"frmList"_s), u"GridList"_s); }
    /// Clicks a cell of the list as the person does: only that makes the row's contact the current one.
    static void ClickCell(int row, int column);
    static void Trigger(QWidget& window, const QString& entry) { Find<QAction>(window, entry).trigger(); }

    void Click(const QString& key);
    void TakeMenu(const QString& menu, const QString& name);
    void TakeListMenu(int row, int column, const QString& name);

    void MainWindow();
    void MainMenus();
    void TreeWork();
    void ContactList();
    void ListMenus();
    void Desk();
    void EditorOfNew();
    void EditorOfOld();
    void Notes();
    void Choosers();
    void Boxes();

    Album& m_album;
    UserWindows m_user;
    frmSplash m_splash;
    bool m_splashTaken = false;
};

void Run::Start()
{
    m_splash.Show();
    for (int i = 0; i < 500 && (m_splash.Program() == nullptr || !Main().isVisible()); ++i)
        Settle();
    Settle();
}

void Run::WithoutFile()
{
    InModal([this] { Start(); }, [this](QWidget& box) { m_album.Take(box, u"box-critical"_s); });
}

void Run::Empty()
{
    m_splashTaken = true;
    Start();
    m_album.Take(Main(), u"main-empty"_s);
    TakeMenu(u"mnuCategory"_s, u"menu-category-empty"_s);
    InModal([this] { Trigger(Main(), u"mnuCatCreate"_s); },
            [this](QWidget& form) {
                m_album.Take(form, u"ask-empty"_s);
                Type(form, u"Buyers"_s);
                m_album.Take(form, u"ask"_s);
                Key(form, Qt::Key_Tab);
                m_album.Take(form, u"ask-button"_s);
            });
}

void Run::Full()
{
    Start();
    MainWindow();
    MainMenus();
    TreeWork();
    ContactList();
    ListMenus();
    EditorOfNew();
    EditorOfOld();
    Notes();
    Choosers();
    Boxes();
    TakeSearch(m_album, Main());
    Desk();
}

void Run::Click(const QString& key)
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

void Run::MainWindow()
{
    m_album.Take(Main(), u"main-start"_s);
    Click(u"S2"_s);
    m_album.Take(Main(), u"main"_s);
}

void Run::MainMenus()
{
    for (const auto name :
         {"Settings"_L1, "BackGroundImage"_L1, "Clock"_L1, "Title"_L1, "Alerts"_L1, "Maintenance"_L1, "Help"_L1})
        TakeMenu("mnu"_L1 + name, "menu-"_L1 + QString(name).toLower());
    TakeMenu(u"mnuCategory"_s, u"menu-category-sub"_s);
    Click(u"C1"_s);
    TakeMenu(u"mnuCategory"_s, u"menu-category-root"_s);
}

void Run::TreeWork()
{
    Click(u"S2"_s);
    Trigger(Main(), u"mnuCatRename"_s);
    m_album.Take(Main(), u"main-rename"_s);
    QTest::keyClick(Tree().findChild<QLineEdit*>(), Qt::Key_Escape);
    Settle();
}

void Run::ClickCell(int row, int column)
{
    const QPoint place = List().visualRect(List().model()->index(row - 1, column - 1)).center();
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
    Settle();
}

void Run::ContactList()
{
    // The delivered picture is the last one, and stays. A list that is open keeps the picture it was opened with.
    for (const auto background : {"mnuNoBackgroundPic"_L1, "mnuBeach"_L1, "mnuBlue"_L1, "mnuRed"_L1, "mnuOrange"_L1,
                                  "mnuGreen"_L1, "mnuHouses"_L1}) {
        if (auto* open = Forms::Find(u"frmList"_s))
            open->Unload();
        Trigger(Main(), QString(background));
        m_splash.Program()->Tree().trvCategories_DblClick();
        Settle();
        m_album.Take(Window(u"frmList"_s), u"list-"_s + QString(background).mid(3).toLower());
    }
    QWidget& list = Window(u"frmList"_s);
    ClickCell(3, 4);
    m_album.Take(list, u"list"_s);
    for (int i = 0; i < 4; ++i)
        Key(list, Qt::Key_Down, Qt::ShiftModifier);
    m_album.Take(list, u"list-several"_s);
    Trigger(list, u"mnuSelect"_s);
    m_album.Take(list, u"list-selected"_s);
    m_album.Take(Main(), u"main-selected"_s);
    TakeMenu(u"mnuSelectedRecords"_s, u"menu-selected"_s);
}

void Run::TakeListMenu(int row, int column, const QString& name)
{
    const QPoint place = List().visualRect(List().model()->index(row - 1, column - 1)).center();
    QTest::mouseClick(List().viewport(), Qt::RightButton, {}, place);
    Settle();
    QWidget* menu = QApplication::activePopupWidget();
    if (menu == nullptr)
        throw std::runtime_error("the menu of the list did not open");
    m_album.TakeWithPopup(Window(u"frmList"_s), *menu, name);
    menu->close();
}

void Run::ListMenus()
{
    TakeListMenu(4, 6, u"list-menu-several"_s);
    ClickCell(2, 4);
    TakeListMenu(2, 4, u"list-menu"_s);
    ClickCell(2, 3);
    TakeListMenu(2, 3, u"list-menu-properties"_s);
}

void Run::EditorOfNew()
{
    InModal([] { Trigger(Window(u"frmList"_s), u"mnuNew"_s); },
            [this](QWidget& form) {
                m_album.Take(form, u"contact-new"_s);
                Find<HoverButton>(form, u"cmdButton_2"_s).setFocus(Qt::TabFocusReason);
                Find<HoverButton>(form, u"cmdButton_3"_s).SetLit(true);
                m_album.Take(form, u"contact-buttons"_s);
                Key(form, Qt::Key_Escape);
            });
}

void Run::EditorOfOld()
{
    ClickCell(1, 4);
    InModal([] { Trigger(Window(u"frmList"_s), u"mnuModify"_s); },
            [this](QWidget& form) {
                m_album.Take(form, u"contact"_s);
                Key(form, Qt::Key_Tab);
                Key(form, Qt::Key_Tab);
                Type(form, u"-Longfellow of the Lower Lakes"_s);
                m_album.Take(form, u"contact-typing"_s);
                auto* combo = form.findChild<QComboBox*>();
                while (QApplication::focusWidget() != combo)
                    Key(form, Qt::Key_Tab);
                m_album.Take(form, u"contact-combo"_s);
                combo->showPopup();
                m_album.TakeWithPopup(form, *combo->view()->window(), u"contact-combo-open"_s);
                combo->hidePopup();
                Key(form, Qt::Key_Escape);
            });
}

void Run::Notes()
{
    InModal([] { Trigger(Window(u"frmList"_s), u"mnuNotes"_s); },
            [this](QWidget& form) {
                Find<QAbstractButton>(form, u"picStamp"_s).click();
                Type(form,
                     u"Called about the house on Elm Street; wants to see it on Saturday morning, with both children. "
                     u"The garden matters more than the garage."_s);
                m_album.Take(form, u"notes"_s);
                Key(form, Qt::Key_Tab);
                m_album.Take(form, u"notes-stamp"_s);
                InModal([&form] { Key(form, Qt::Key_Escape); },
                        [this](QWidget& box) { m_album.Take(box, u"box-cancel"_s); });
            });
}

void Run::Choosers()
{
    InModal([] { Trigger(Window(u"frmList"_s), u"mnuMove"_s); },
            [this](QWidget& form) {
                m_album.Take(form, u"move-contact"_s);
                Key(form, Qt::Key_Down);
                Key(form, Qt::Key_Right);
                Key(form, Qt::Key_Down);
                m_album.Take(form, u"move-contact-chosen"_s);
                Key(form, Qt::Key_Tab);
                m_album.Take(form, u"move-contact-button"_s);
            });
    Q_EMIT Main().MainMenus().Menu(u"mnuCategory"_s).aboutToShow();
    InModal([this] { Trigger(Main(), u"mnuSubMove"_s); },
            [this](QWidget& form) { m_album.Take(form, u"move-category"_s); });
}

void Run::Boxes()
{
    ClickCell(2, 4);
    QWidget& list = Window(u"frmList"_s);
    InModal([&list] { Trigger(list, u"mnuDelete"_s); }, [this](QWidget& box) { m_album.Take(box, u"box-question"_s); });
    InModal([&list] { Trigger(list, u"mnuMove"_s); },
            [this](QWidget& form) {
                InModal([&form] { Find<HoverButton>(form, u"cmdButton_2"_s).click(); },
                        [this](QWidget& box) { m_album.Take(box, u"box-information"_s); });
            });
    InModal(
        [] {
            ::MsgBox(u"Insert into Contacts (FirstName) Values ("_s + QString(4000, u'x') + u')', Buttons::Ok,
                     Icon::Critical, u"frmContact SaveContact Error #-2147467259"_s);
        },
        [this](QWidget& box) { m_album.Take(box, u"box-long"_s); });
}

void Run::Desk()
{
    QWidget& list = Window(u"frmList"_s);
    Trigger(Main(), u"mnuTitleOrvantine"_s);
    Main().resize(1000, 620);
    list.resize(860, 430);
    ClickCell(3, 4);
    InModal([&list] { Trigger(list, u"mnuModify"_s); },
            [&](QWidget& form) {
                m_album.TakeDesk({{&Main(), {24, 20}}, {&list, {190, 130}}, {&form, {800, 90}}}, {1280, 720},
                                 u"main-window"_s);
                Key(form, Qt::Key_Escape);
            });
}

void TakeAll(const QCommandLineParser& options)
{
    const QDir into(options.value(u"into"_s));
    if (!into.mkpath(u"."_s))
        throw std::runtime_error("the folder for the pictures cannot be made");
    Album album(into, options.value(u"scheme"_s), options.isSet(u"smallest"_s));
    const QString images = options.value(u"images"_s);
    {
        const QTemporaryDir folder;
        FillFolder(folder.path(), options.value(u"database"_s), images);
        Run(album, folder.path()).Full();
    }
    gContacts.RemoveAll();
    gCategories.RemoveAll();
    gAlerts.RemoveAll();
    gAlertsCurrent = 0;
    gAlertsFuture = 0;
    gSelected.RemoveAll();
    {
        const QTemporaryDir folder;
        FillFolder(folder.path(), options.value(u"empty"_s), images);
        Run(album, folder.path()).Empty();
    }
    const QTemporaryDir folder;
    Run(album, folder.path()).WithoutFile();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws each window of the running program."_s);
    parser.addHelpOption();
    parser.addOptions({{u"database"_s, u"A sample."_s, u"FILE"_s},
                       {u"empty"_s, u"The delivered database."_s, u"FILE"_s},
                       {u"images"_s, u"The background pictures."_s, u"FOLDER"_s},
                       {u"into"_s, u"Where the pictures go."_s, u"FOLDER"_s, u"."_s},
                       {u"scheme"_s, u"light or dark."_s, u"NAME"_s, u"light"_s},
                       {u"smallest"_s, u"Each window in the smallest size that it allows."_s}});
    parser.process(application);
    QApplication::setCursorFlashTime(0);
    QApplication::setWindowIcon(Pictures::Icon(u"orvantine"_s));
    Theme::Apply(application, parser.value(u"scheme"_s) == "dark"_L1 ? Theme::Scheme::Dark : Theme::Scheme::Light);
    Clock::SetSource([] { return QDateTime(QDate(2026, 5, 12), QTime(9, 41, 7)); });
    try {
        TakeAll(parser);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_window_pictures: %s\n", error.what());
        return 1;
    }
    return 0;
}
