#include "support/Columns.h"
#include "sweeps/Office.h"
#include "sweeps/Sweeps.h"
#include "ui/frame/frmMain.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

/// What holds for every window of the program.
class tst_Windows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void TheFocusIsWhereThePersonBegins_data();
    void TheFocusIsWhereThePersonBegins();
    void TabComesToEveryControl_data();
    void TabComesToEveryControl();
    void ASheetIsWalkedByTab_data();
    void ASheetIsWalkedByTab();
    void AScreenReaderHasANameForEveryControl_data();
    void AScreenReaderHasANameForEveryControl();
    void NothingIsCut_data();
    void NothingIsCut();
    void TheSmallestWindowFitsALaptop_data();
    void TheSmallestWindowFitsALaptop();
    void MainMenusFollowTheState_data();
    void MainMenusFollowTheState();
    void ListMenuFollowsTheRows_data();
    void ListMenuFollowsTheRows();

private:
    QFont m_font;
};

namespace {

void AddRowForEachWindow()
{
    QTest::addColumn<QString>("window");
    for (const OfficeWindow& window : Office::Windows())
        QTest::newRow(qUtf8Printable(window.Name)) << window.Name;
}

/// The entries of a menu that can be chosen now, those of its submenus among them.
QStringList Enabled(QMenu& menu)
{
    Q_EMIT menu.aboutToShow();
    QStringList names;
    for (const QAction* entry : menu.actions()) {
        if (entry->menu() != nullptr)
            names << Enabled(*entry->menu());
        else if (entry->isVisible() && entry->isEnabled())
            names << entry->objectName();
    }
    return names;
}

QStringList ShownMenus(const QWidget& window)
{
    QStringList names;
    for (const QAction* entry : window.findChild<QMenuBar*>()->actions()) {
        if (entry->isVisible())
            names << (entry->menu() != nullptr ? entry->menu()->objectName() : entry->objectName());
    }
    return names;
}

} // namespace

void tst_Windows::initTestCase()
{
    Theme::Apply(*qApp, Theme::Scheme::Light);
    m_font = QApplication::font();
}

void tst_Windows::cleanup()
{
    QApplication::setFont(m_font);
}

void tst_Windows::TheFocusIsWhereThePersonBegins_data()
{
    QTest::addColumn<QString>("control");
    for (const OfficeWindow& window : Office::Windows()) {
        if (!window.Focus.isEmpty())
            QTest::newRow(qUtf8Printable(window.Name)) << window.Focus;
    }
}

void tst_Windows::TheFocusIsWhereThePersonBegins()
{
    QFETCH(const QString, control);
    Office().Open(QString::fromLatin1(QTest::currentDataTag()), [&](QWidget& window) {
        QTRY_VERIFY(QApplication::focusWidget() != nullptr);
        QCOMPARE(QApplication::focusWidget()->window(), &window);
        QCOMPARE(NameOf(QApplication::focusWidget()), control);
    });
}

void tst_Windows::TabComesToEveryControl_data()
{
    QTest::addColumn<QString>("window");
    for (const OfficeWindow& window : Office::Windows()) {
        if (!window.KeepsTab)
            QTest::newRow(qUtf8Printable(window.Name)) << window.Name;
    }
}

void tst_Windows::TabComesToEveryControl()
{
    QFETCH(const QString, window);
    Office().Open(window, [](QWidget& shown) { QCOMPARE(NotReachedByTab(shown).join(u"; "_s), QString()); });
}

void tst_Windows::ASheetIsWalkedByTab_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("last");
    QTest::newRow("contact") << 19 << u"txtFax"_s;
    QTest::newRow("new property") << 33 << u"txtSoldPrice"_s;
}

void tst_Windows::ASheetIsWalkedByTab()
{
    QFETCH(const int, rows);
    QFETCH(const QString, last);
    Office().Open(QString::fromLatin1(QTest::currentDataTag()), [&](QWidget& window) {
        QStringList walked;
        while (!walked.contains(NameOf(QApplication::focusWidget()))) {
            walked << NameOf(QApplication::focusWidget());
            TypeKey(window, Qt::Key_Tab);
        }
        QCOMPARE(walked.size(), rows);
        QCOMPARE(walked.last(), last);
        // Tab stays on the sheet, so each button must have a key that it tells.
        for (const QAbstractButton* button :
             window.findChildren<QAbstractButton*>(QRegularExpression(u"^cmdButton|^pic"_s)))
            QVERIFY2(button->toolTip().contains("Alt+"_L1), qUtf8Printable(button->objectName()));
    });
}

void tst_Windows::AScreenReaderHasANameForEveryControl_data()
{
    AddRowForEachWindow();
}

void tst_Windows::AScreenReaderHasANameForEveryControl()
{
    QFETCH(const QString, window);
    Office().Open(window, [](QWidget& shown) { QCOMPARE(WithoutName(shown).join(u"; "_s), QString()); });
}

void tst_Windows::NothingIsCut_data()
{
    AddColumns<QString, bool, double>({"window", "smallest", "letters"});
    for (const OfficeWindow& window : Office::Windows()) {
        const QByteArray name = window.Name.toUtf8();
        QTest::addRow("%s", name.constData()) << window.Name << false << 1.0;
        QTest::addRow("%s, smallest", name.constData()) << window.Name << true << 1.0;
        QTest::addRow("%s, large letters", name.constData()) << window.Name << false << 1.5;
    }
}

void tst_Windows::NothingIsCut()
{
    QFETCH(const QString, window);
    QFETCH(const bool, smallest);
    QFETCH(const double, letters);
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * letters);
    QApplication::setFont(font);
    Office().Open(window, [smallest](QWidget& shown) {
        if (smallest)
            shown.resize(1, 1);
        QTest::qWait(0);
        QCOMPARE(CutTexts(shown).join(u"; "_s), QString());
    });
}

void tst_Windows::TheSmallestWindowFitsALaptop_data()
{
    AddRowForEachWindow();
}

void tst_Windows::TheSmallestWindowFitsALaptop()
{
    QFETCH(const QString, window);
    Office().Open(window, [](QWidget& shown) {
        constexpr int titleBar = 30;
        shown.resize(1, 1);
        QVERIFY2(shown.width() <= 1024 && shown.height() <= 640 - titleBar,
                 qPrintable(u"%1 x %2"_s.arg(shown.width()).arg(shown.height())));
    });
}

void tst_Windows::MainMenusFollowTheState_data()
{
    AddColumns<bool, QString, QStringList>({"empty", "node", "category"});
    const QStringList root{u"mnuCatCreate"_s, u"mnuSubCreate"_s, u"mnuCatRename"_s, u"mnuCatDelete"_s};
    QTest::newRow("an empty program") << true << QString() << QStringList{u"mnuCatCreate"_s};
    QTest::newRow("nothing clicked yet") << false << QString() << QStringList{u"mnuCatCreate"_s};
    QTest::newRow("a category") << false << u"C1"_s << root;
    QTest::newRow("an empty subcategory")
        << false << u"S2"_s << root + QStringList{u"mnuSubMove"_s, u"mnuNewContact"_s};
    QTest::newRow("a subcategory with contacts")
        << false << u"S1"_s << root + QStringList{u"mnuSubMove"_s, u"mnuViewContacts"_s, u"mnuNewContact"_s};
}

void tst_Windows::MainMenusFollowTheState()
{
    QFETCH(const bool, empty);
    QFETCH(const QString, node);
    QFETCH(const QStringList, category);
    Office office(empty ? Office::File::Empty : Office::File::Small);
    const QStringList menus{u"mnuSettings"_s,    u"mnuCategory"_s, u"mnuAlerts"_s,
                            u"mnuMaintenance"_s, u"mnuHelp"_s,     u"mnuExit"_s};
    QCOMPARE(ShownMenus(office.Main()), menus);
    if (!node.isEmpty())
        office.Click(node);
    QCOMPARE(Enabled(office.Main().MainMenus().Menu(u"mnuCategory"_s)), category);

    // What does not hang on the tree.
    const QStringList settings = Enabled(office.Main().MainMenus().Menu(u"mnuSettings"_s));
    QCOMPARE(settings.size(), 21);
    QCOMPARE(settings.mid(16), (QStringList{u"mnuClockFormat"_s, u"mnuClockSeconds"_s, u"mnuTimer"_s,
                                            u"mnuTitleOrvantine"_s, u"mnuTitleOther"_s}));
    const auto always = [&office](const QString& menu, const QStringList& entries) {
        QCOMPARE(Enabled(office.Main().MainMenus().Menu(menu)), entries);
    };
    always(u"mnuAlerts"_s, {u"mnuManageAlerts"_s, u"mnuSetNewAlert"_s});
    always(u"mnuMaintenance"_s, {u"mnuMaintenanceImport"_s, u"mnuBackup"_s, u"mnuRestore"_s});
    always(u"mnuHelp"_s, {u"mnuContact"_s, u"mnuOrvantine"_s});
}

void tst_Windows::ListMenuFollowsTheRows_data()
{
    AddColumns<int, int, bool, QStringList>({"from", "to", "selected", "entries"});
    const auto one = [](const QString& select, const QStringList& properties) {
        return QStringList{u"mnuNew"_s,          u"mnuModify"_s,   select,       u"mnuDelete"_s, u"mnuMove"_s,
                           u"mnuManageAlerts"_s, u"mnuNewAlert"_s, u"mnuWord"_s, u"mnuNotes"_s} +
               properties + QStringList{u"mnuNewProperty"_s, u"mnuClose"_s};
    };
    QTest::newRow("one contact") << 2 << 2 << false << one(u"mnuSelect"_s, {});
    QTest::newRow("one selected contact") << 2 << 2 << true << one(u"mnuUnselect"_s, {});
    QTest::newRow("one with a property") << 1 << 1 << false << one(u"mnuSelect"_s, {u"mnuProperties"_s});
    const QStringList many{u"mnuNew"_s,  u"mnuSelect"_s, u"mnuUnselect"_s,    u"mnuDelete"_s,
                           u"mnuMove"_s, u"mnuWord"_s,   u"mnuNewProperty"_s, u"mnuClose"_s};
    QTest::newRow("several contacts") << 1 << 3 << false << many;
    QTest::newRow("several selected contacts") << 1 << 3 << true << many;
}

void tst_Windows::ListMenuFollowsTheRows()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    QFETCH(const bool, selected);
    QFETCH(const QStringList, entries);
    Office office;
    const Grid& list = office.OpenList();
    const auto click = [&list](int row, Qt::KeyboardModifiers modifiers) {
        const QPoint place = list.visualRect(list.model()->index(row - 1, 3)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place);
    };
    click(from, {});
    click(to, Qt::ShiftModifier);
    auto& menu = Control<QMenu>(office.List(), u"mnuContacts"_s);
    if (selected) {
        Q_EMIT menu.aboutToShow();
        Control<QAction>(office.List(), u"mnuSelect"_s).trigger();
    }
    QCOMPARE(Enabled(menu), entries);

    QCOMPARE(ShownMenus(office.Main()).contains("mnuSelectedRecords"_L1), selected);
    if (selected)
        QCOMPARE(Enabled(office.Main().MainMenus().Menu(u"mnuSelectedRecords"_s)),
                 (QStringList{u"mnuUnselectAll"_s, u"mnuDeleteSelectedContacts"_s, u"mnuMailandLabels"_s,
                              u"mnuSelectedToRolodex"_s, u"mnuCreateWord"_s, u"mnuExportSelectedContacts"_s}));
}

QTEST_MAIN(tst_Windows)
#include "tst_Windows.moc"
