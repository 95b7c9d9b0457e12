#include "ui/widgets/Form.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/MessageWindow.h"
#include "ui/widgets/ResizeScaler.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QStringList happened;

/// A window that writes down its life.
class Window : public Form
{
public:
    explicit Window(const QString& name) : Form(name), Field(new QLineEdit(this)) { resize(200, 100); }

    QLineEdit* Field;
    bool Refuses = false;
    bool UnloadsAll = false;
    bool SwallowsEnter = false;
    Window* TakesAlong = nullptr; ///< goes, object and all, when this one is unloaded

protected:
    void Form_Activate() override { happened.append(Name() + u" activate"_s); }
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override
    {
        happened.append(u"%1 query %2"_s.arg(Name()).arg(static_cast<int>(mode)));
        cancel = Refuses;
        if (UnloadsAll)
            UnloadAllForms({});
    }
    void Form_Unload(bool&) override
    {
        happened.append(Name() + u" unload"_s);
        delete TakesAlong;
        if (UnloadsAll)
            UnloadAllForms({});
    }
    void EscapePressed() override { happened.append(Name() + u" escape"_s); }
    bool KeyPreview(QKeyEvent* event) override
    {
        return SwallowsEnter && event->type() == QEvent::KeyPress && event->key() == Qt::Key_Return;
    }
};

} // namespace

class tst_Form : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { happened.clear(); }
    void cleanup();
    void a_window_is_loaded_from_its_making_until_its_unload();
    void the_first_show_activates_once_and_later();
    void the_focus_coming_back_from_another_window_activates();
    void a_message_box_does_not_activate();
    void a_modal_window_returns_when_it_is_unloaded_and_wakes_the_one_beneath();
    void the_close_box_asks_first();
    void unloading_all_skips_the_named_one();
    void the_main_window_takes_everything_along_once();
    void the_main_window_ends_modal_loops_above_it();
    void an_owner_takes_its_windows_along();
    void a_window_that_goes_may_take_its_neighbour_along();
    void keys_pass_the_window_first();
    void a_centred_window_stands_in_the_middle_and_fits();
    void controls_scale_with_the_window();
};

void tst_Form::cleanup()
{
    UnloadAllForms({});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(Forms::Loaded().isEmpty());
}

void tst_Form::a_window_is_loaded_from_its_making_until_its_unload()
{
    QVERIFY(!IsLoaded(u"frmA"_s));
    {
        const Window b(u"frmB"_s);
        Window a(u"frmA"_s);
        QCOMPARE(Forms::Loaded(), (QStringList{u"frmB"_s, u"frmA"_s}));
        QVERIFY(IsLoaded(u"frmA"_s));
        QVERIFY(!IsLoaded(u"frma"_s));
        QVERIFY(a.Unload());
        QVERIFY(!IsLoaded(u"frmA"_s));
    }
    QVERIFY(!IsLoaded(u"frmB"_s));
    QVERIFY2(!happened.contains(u"frmB unload"_s), "going out of scope is no unload");
}

void tst_Form::the_first_show_activates_once_and_later()
{
    auto* a = new Window(u"frmA"_s);
    a->Show();
    QVERIFY(happened.isEmpty());
    QTRY_COMPARE(happened, QStringList{u"frmA activate"_s});
    a->Show();
    QTest::qWait(20);
    QCOMPARE(happened, QStringList{u"frmA activate"_s});
}

void tst_Form::the_focus_coming_back_from_another_window_activates()
{
    auto* a = new Window(u"frmA"_s);
    auto* b = new Window(u"frmB"_s);
    a->Show();
    b->Show();
    QTRY_COMPARE(happened, (QStringList{u"frmA activate"_s, u"frmB activate"_s}));
    happened.clear();
    a->activateWindow();
    QTRY_COMPARE(happened, QStringList{u"frmA activate"_s});
    happened.clear();
    QWidget otherProgram;
    otherProgram.show();
    otherProgram.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&otherProgram));
    a->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(a));
    QTest::qWait(20);
    QVERIFY(happened.isEmpty());
}

void tst_Form::a_message_box_does_not_activate()
{
    auto* a = new Window(u"frmA"_s);
    a->Show();
    QTRY_COMPARE(happened.size(), 1);
    MessageWindow box(u"Text"_s, Buttons::Ok, Icon::Information, u"Title"_s);
    QTimer::singleShot(20, &box, &QMessageBox::accept);
    QCOMPARE(box.Ask(a), Answer::Ok);
    QTest::qWait(20);
    QCOMPARE(happened.size(), 1);
}

void tst_Form::a_modal_window_returns_when_it_is_unloaded_and_wakes_the_one_beneath()
{
    auto* a = new Window(u"frmA"_s);
    a->Show();
    QTRY_COMPARE(happened.size(), 1);
    happened.clear();
    Window b(u"frmB"_s);
    QTimer::singleShot(20, &b, [&b] { b.Unload(); });
    b.ShowModal(a);
    QVERIFY(b.IsUnloaded());
    QTRY_COMPARE(happened, (QStringList{u"frmB activate"_s, u"frmB query 1"_s, u"frmB unload"_s, u"frmA activate"_s}));
    b.ShowModal(a);
    QVERIFY2(!b.isVisible(), "an unloaded window is not shown again");
}

void tst_Form::the_close_box_asks_first()
{
    auto* a = new Window(u"frmA"_s);
    a->Show();
    a->Refuses = true;
    QTRY_COMPARE(happened.size(), 1);
    happened.clear();
    a->close();
    QVERIFY(a->isVisible());
    QVERIFY(IsLoaded(u"frmA"_s));
    a->Refuses = false;
    a->close();
    QCOMPARE(happened, (QStringList{u"frmA query 0"_s, u"frmA query 0"_s, u"frmA unload"_s}));
    QVERIFY(!a->isVisible());
}

void tst_Form::unloading_all_skips_the_named_one()
{
    for (const QString& name : {u"frmA"_s, u"frmMain"_s, u"frmC"_s})
        (new Window(name))->Show();
    UnloadAllForms(u"frmMain"_s);
    QCOMPARE(Forms::Loaded(), QStringList{u"frmMain"_s});
    UnloadAllForms(u"frmmain"_s);
    QVERIFY(Forms::Loaded().isEmpty());
}

void tst_Form::the_main_window_takes_everything_along_once()
{
    auto* main = new Window(u"frmMain"_s);
    main->UnloadsAll = true;
    main->Show();
    (new Window(u"frmA"_s))->Show();
    QTest::qWait(20);
    happened.clear();
    main->close();
    QTest::qWait(20);
    QCOMPARE(happened, (QStringList{u"frmMain query 0"_s, u"frmA query 1"_s, u"frmA unload"_s, u"frmMain unload"_s}));
}

void tst_Form::the_main_window_ends_modal_loops_above_it()
{
    const QPointer<Window> main = new Window(u"frmMain"_s);
    main->UnloadsAll = true;
    main->Show();
    QStringList ended;
    QTimer::singleShot(0, this, [&] {
        Window first(u"frmFirst"_s);
        QTimer::singleShot(0, this, [&] {
            Window second(u"frmSecond"_s);
            QTimer::singleShot(0, main, [&main] { main->Unload(); });
            second.ShowModal(&first);
            ended.append(second.Name());
        });
        first.ShowModal(main);
        ended.append(first.Name());
    });
    QTRY_COMPARE(ended, (QStringList{u"frmSecond"_s, u"frmFirst"_s}));
    QTRY_VERIFY(main.isNull());
    QVERIFY(Forms::Active() == nullptr);
}

void tst_Form::an_owner_takes_its_windows_along()
{
    auto* a = new Window(u"frmA"_s);
    a->Show();
    (new Window(u"frmB"_s))->Show(a);
    QTest::qWait(20);
    happened.clear();
    a->Unload();
    QCOMPARE(happened, (QStringList{u"frmA query 1"_s, u"frmA unload"_s, u"frmB query 5"_s, u"frmB unload"_s}));
}

void tst_Form::a_window_that_goes_may_take_its_neighbour_along()
{
    auto* a = new Window(u"frmA"_s);
    auto* b = new Window(u"frmB"_s);
    auto* c = new Window(u"frmC"_s);
    a->Show();
    b->Show(a);
    c->Show(a);
    QTest::qWait(20);
    b->TakesAlong = c;
    happened.clear();
    a->Unload();
    QVERIFY(!happened.contains(u"frmC query 5"_s));
}

void tst_Form::keys_pass_the_window_first()
{
    auto* a = new Window(u"frmA"_s);
    int entered = 0;
    connect(a->Field, &QLineEdit::returnPressed, this, [&entered] { ++entered; });
    a->Show();
    a->Field->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(a));
    QTest::keyClick(a->windowHandle(), Qt::Key_Return);
    a->SwallowsEnter = true;
    QTest::keyClick(a->windowHandle(), Qt::Key_Return);
    QCOMPARE(entered, 1);
    happened.clear();
    QTest::keyClick(a->windowHandle(), Qt::Key_Escape);
    QCOMPARE(happened, QStringList{u"frmA escape"_s});
}

void tst_Form::a_centred_window_stands_in_the_middle_and_fits()
{
    Window a(u"frmA"_s);
    const QRect screen = a.screen()->geometry();
    CenterForm(a);
    QCOMPARE(a.pos(), QPoint((screen.width() - 200) / 2, (screen.height() - 100) / 2));
    a.resize(10'000, 10'000);
    CenterForm(a);
    QCOMPARE(a.width(), a.screen()->availableSize().width());
    // There is room for the title that stands over it.
    QVERIFY(a.y() + a.height() < a.screen()->availableSize().height());
}

void tst_Form::controls_scale_with_the_window()
{
    QWidget form;
    form.resize(200, 100);
    const auto place = [&form](QWidget* control, const QString& name) {
        control->setParent(&form);
        control->setObjectName(name);
        control->setGeometry(10, 20, 40, 30);
        return control;
    };
    auto* label = place(new QLabel, u"Label1"_s);
    auto* combo = place(new QComboBox, u"cboState"_s);
    auto* list = place(new QLabel, u"GridList"_s);
    const qreal size = QFontInfo(label->font()).pointSizeF();
    ResizeScaler scaler(form, {list});
    scaler.FormResized();
    for (const QSize& now : {QSize(300, 150), QSize(400, 300)}) {
        form.resize(now);
        scaler.FormResized();
    }
    QCOMPARE(label->geometry(), QRect(20, 60, 80, 90));
    QCOMPARE(label->font().pointSizeF(), size * 2);
    QCOMPARE(combo->geometry(), QRect(20, 60, 80, 30));
    QCOMPARE(list->geometry(), QRect(10, 20, 40, 30));
}

QTEST_MAIN(tst_Form)
#include "tst_Form.moc"
