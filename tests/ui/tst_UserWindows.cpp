#include "support/Columns.h"
#include "support/Windows.h"
#include "ui/widgets/Theme.h"
#include "ui/widgets/UserWindows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_UserWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_keys_of_a_box_data();
    void the_keys_of_a_box();
    void a_box_shows_plain_text_and_its_line_breaks();
    void a_long_text_stays_on_the_screen();
    void asking_for_a_line();
    void the_limit_of_a_line_holds();
    void an_hourglass_counts_and_makes_way_for_a_box();
    void the_status_bar_hears_messages_and_bare_counts();
    void the_scheme_decides_the_palette();
};

void tst_UserWindows::the_keys_of_a_box_data()
{
    AddColumns<int, QList<int>, int>({"buttons", "keys", "answer"});
    const auto row = [](const char* name, Buttons buttons, const QList<int>& keys, Answer answer) {
        QTest::newRow(name) << static_cast<int>(buttons) << keys << static_cast<int>(answer);
    };
    row("Enter is OK", Buttons::Ok, {Qt::Key_Enter}, Answer::Ok);
    row("Esc is OK where there is only that", Buttons::Ok, {Qt::Key_Escape}, Answer::Ok);
    row("Enter is Yes", Buttons::YesNo, {Qt::Key_Return}, Answer::Yes);
    row("Esc and the close box do nothing to Yes and No", Buttons::YesNo, {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Return},
        Answer::No);
    row("Esc is Cancel", Buttons::YesNoCancel, {Qt::Key_Escape}, Answer::Cancel);
    row("Tab goes to No", Buttons::YesNoCancel, {Qt::Key_Tab, Qt::Key_Space}, Answer::No);
}

void tst_UserWindows::the_keys_of_a_box()
{
    QFETCH(int, buttons);
    QFETCH(QList<int>, keys);
    UserWindows user;
    const WhenBoxOpens box([&](QMessageBox& window) {
        if (static_cast<Buttons>(buttons) == Buttons::YesNo)
            window.close();
        for (const int key : std::as_const(keys))
            if (window.isVisible())
                TypeKey(window, static_cast<Qt::Key>(key));
    });
    const Answer answer = user.MsgBox(u"Text"_s, static_cast<Buttons>(buttons), Icon::Question, u"Title"_s);
    QTEST(static_cast<int>(answer), "answer");
}

void tst_UserWindows::a_box_shows_plain_text_and_its_line_breaks()
{
    UserWindows user;
    QString text;
    QString title;
    Qt::TextFormat format = Qt::AutoText;
    const WhenBoxOpens box([&](QMessageBox& window) {
        text = window.text();
        title = window.windowTitle();
        format = window.textFormat();
    });
    user.MsgBox(u"<b>One</b>\r\ntwo"_s, Buttons::Ok, Icon::Critical, u"Orvantine"_s);
    QCOMPARE(text, u"<b>One</b>\ntwo"_s);
    QCOMPARE(title, u"Orvantine"_s);
    QCOMPARE(format, Qt::PlainText);
}

void tst_UserWindows::a_long_text_stays_on_the_screen()
{
    UserWindows user;
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    for (const auto& [text, mustScroll] :
         {std::pair(u"word "_s.repeated(200), false), std::pair(QString(2000, u'x'), true),
          std::pair(u"line\r\n"_s.repeated(500), true)}) {
        QRect place;
        bool scrolls = false;
        const WhenBoxOpens box([&](QMessageBox& window) {
            place = window.frameGeometry();
            scrolls = window.findChild<QPlainTextEdit*>() != nullptr;
        });
        user.MsgBox(text, Buttons::Ok, Icon::Information, u"Title"_s);
        QVERIFY2(screen.contains(place), qPrintable(u"%1x%2"_s.arg(place.width()).arg(place.height())));
        QCOMPARE(scrolls, mustScroll);
    }
}

void tst_UserWindows::asking_for_a_line()
{
    // By a button, by a key, by the close box, and by Enter on Cancel, which is still Ok.
    for (const auto& [button, key, reply] :
         {std::tuple(u"cmdButton_2"_s, 0, u"Buyers"_s), std::tuple(u"cmdButton_1"_s, 0, u""_s),
          std::tuple(u""_s, int(Qt::Key_Enter), u"Buyers"_s), std::tuple(u""_s, int(Qt::Key_Escape), u""_s),
          std::tuple(u""_s, 0, u""_s), std::tuple(u"focus"_s, int(Qt::Key_Return), u"Buyers"_s)}) {
        UserWindows user;
        QString title;
        const WhenFormOpens dialog(u"frmDialog"_s, [&](Form& form) {
            title = form.windowTitle();
            TypeText(form, u"Buyers"_s);
            if (button == u"focus"_s)
                Control<QWidget>(form, u"cmdButton_1"_s).setFocus();
            if (key != 0)
                TypeKey(form, static_cast<Qt::Key>(key));
            else if (button.isEmpty())
                form.close();
            else
                ClickOn(form, button);
        });
        QCOMPARE(user.AskFor(u"New Category Name"_s, 0), reply);
        QCOMPARE(title, u"New Category Name"_s);
    }
}

void tst_UserWindows::the_limit_of_a_line_holds()
{
    UserWindows user;
    const WhenFormOpens dialog(u"frmDialog"_s, [](Form& form) {
        // The Enter that opened the window may still be held down.
        HoldKey(form, Qt::Key_Return);
        TypeText(form, u"abcdef"_s);
        TypeKey(form, Qt::Key_Return);
    });
    QCOMPARE(user.AskFor(u"Caption"_s, 4), u"abcd"_s);
}

void tst_UserWindows::an_hourglass_counts_and_makes_way_for_a_box()
{
    UserWindows user;
    User::Install(&user);
    Qt::CursorShape duringBox = Qt::BlankCursor;
    {
        const HourGlass outer;
        {
            const HourGlass inner;
        }
        QVERIFY(QApplication::overrideCursor() != nullptr);
        const WhenBoxOpens box([&](QMessageBox&) { duringBox = QApplication::overrideCursor()->shape(); });
        user.MsgBox(u"Text"_s, Buttons::Ok, Icon::None, u"Title"_s);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    User::Install(nullptr);
    QCOMPARE(duringBox, Qt::ArrowCursor);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    user.HourGlass(false);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    user.HourGlass(true);
    user.HourGlass(true);
    user.NoHourGlass();
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_UserWindows::the_status_bar_hears_messages_and_bare_counts()
{
    UserWindows user;
    user.ShoWait(u"nobody listens"_s);
    QList<std::optional<QString>> heard;
    user.SetStatusBar([&heard](const std::optional<QString>& message) { heard.append(message); });
    user.ShoWait(u"Ready"_s);
    static_cast<User&>(user).ShoWait();
    QCOMPARE(heard, (QList<std::optional<QString>>{u"Ready"_s, std::nullopt}));
}

void tst_UserWindows::the_scheme_decides_the_palette()
{
    const auto contrast = [] {
        const QPalette palette = QApplication::palette();
        return std::abs(palette.color(QPalette::Text).lightness() - palette.color(QPalette::Base).lightness());
    };
    Theme::Apply(*qApp, Theme::Scheme::Dark);
    QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(0x6FA8E8));
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 128);
    QVERIFY(contrast() > 150);
    Theme::Apply(*qApp, Theme::Scheme::Light);
    QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(0x2F6DB5));
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 128);
    QVERIFY(contrast() > 150);
}

QTEST_MAIN(tst_UserWindows)
#include "tst_UserWindows.moc"
