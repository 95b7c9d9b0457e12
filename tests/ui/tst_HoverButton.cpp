#include "support/Columns.h"
#include "ui/widgets/HoverButton.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Pictures.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_HoverButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void names_of_pictures_data();
    void names_of_pictures();
    void an_unknown_picture_is_empty_and_warned_of();
    void a_picture_is_sharp_on_every_screen();
    void buttons_are_found_by_their_name_without_case();
    void one_button_is_lit_at_a_time();
    void every_way_to_press();
    void the_light_is_out_before_the_click_works();
    void a_press_takes_the_focus_unless_told_not_to();

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit* m_field = nullptr;
    HoverButtonArray* m_buttons = nullptr;
};

void tst_HoverButton::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(m_window.get());
    m_field = new QLineEdit(m_window.get());
    layout->addWidget(m_field);
    m_buttons = new HoverButtonArray(*m_window, *layout,
                                     {{1, u"Cancel"_s, u"Cancel"_s}, {2, u"SaveNAdd"_s, u"Save and Add"_s}});
    m_window->show();
    m_window->activateWindow();
    m_field->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_HoverButton::cleanup()
{
    m_window.reset();
}

void tst_HoverButton::names_of_pictures_data()
{
    AddColumns<QString, QString, bool>({"name", "same", "alike"});
    QTest::newRow("without case") << u"saveandexit"_s << u"SaveAndExit"_s << true;
    QTest::newRow("the High form is lit") << u"SaveHigh"_s << u"Save"_s << false;
    QTest::newRow("the Low form differs from the High") << u"SaveLow"_s << u"SaveHigh"_s << false;
    QTest::newRow("forms without case") << u"SAVELOW"_s << u"SaveLow"_s << true;
    QTest::newRow("a drawing of its own goes before") << u"BellBright"_s << u"BellHigh"_s << false;
    QTest::newRow("two names that differ by case alone") << u"House"_s << u"house"_s << false;
}

void tst_HoverButton::names_of_pictures()
{
    QFETCH(QString, name);
    QFETCH(QString, same);
    const QImage first = Pictures::Pixmap(name, QSize(24, 24)).toImage();
    const QImage second = Pictures::Pixmap(same, QSize(24, 24)).toImage();
    QVERIFY(!first.isNull() && !second.isNull());
    QTEST(first == second, "alike");
}

void tst_HoverButton::an_unknown_picture_is_empty_and_warned_of()
{
    QTest::ignoreMessage(QtWarningMsg, "No picture is called \"Nothing\".");
    QVERIFY(Pictures::Icon(u"Nothing"_s).isNull());
    QVERIFY(!Pictures::Has(u"High"_s));
}

void tst_HoverButton::a_picture_is_sharp_on_every_screen()
{
    const QPixmap fine = Pictures::Pixmap(u"Ok"_s, QSize(28, 28), 2);
    QCOMPARE(fine.size(), QSize(56, 56));
    QCOMPARE(fine.deviceIndependentSize(), QSizeF(28, 28));
    QCOMPARE(Pictures::Icon(u"Ok"_s).pixmap(QSize(16, 16), 2).size(), QSize(32, 32));
}

void tst_HoverButton::buttons_are_found_by_their_name_without_case()
{
    QWidget window;
    auto* button = new HoverButton(&window);
    button->setObjectName(u"cmdbutton_4"_s);
    QTest::ignoreMessage(QtWarningMsg, " has no button cmdButton_5.");
    const HoverButtonArray buttons(window, {{4, u"Exit"_s, u"Exit"_s}, {5, u"Ok"_s, u"Ok"_s}});
    QCOMPARE(buttons.Button(4), button);
    QCOMPARE(button->accessibleName(), u"Exit"_s);
    QVERIFY(buttons.Button(5) == nullptr);
}

void tst_HoverButton::one_button_is_lit_at_a_time()
{
    QTest::mouseMove(m_buttons->Button(1));
    QTRY_COMPARE(m_buttons->LitIndex(), 1);
    QTest::mouseMove(m_buttons->Button(2));
    QTRY_COMPARE(m_buttons->LitIndex(), 2);
    QVERIFY(!m_buttons->Button(1)->IsLit());
    m_buttons->RemoveHighlights();
    QCOMPARE(m_buttons->LitIndex(), 0);
    QVERIFY(!m_buttons->Button(2)->IsLit());
}

void tst_HoverButton::every_way_to_press()
{
    const QSignalSpy clicks(m_buttons, &HoverButtonArray::Click);
    QTest::mouseClick(m_buttons->Button(2), Qt::LeftButton);
    m_field->setFocus();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
    QVERIFY(m_buttons->Button(2)->hasFocus());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Enter, Qt::Key_Return})
        QTest::keyClick(m_window->windowHandle(), key);
    QCOMPARE(clicks, (QList<QVariantList>{{2}, {2}, {2}, {2}}));
}

void tst_HoverButton::the_light_is_out_before_the_click_works()
{
    int lit = -1;
    connect(m_buttons, &HoverButtonArray::Click, this, [&] { lit = m_buttons->LitIndex(); });
    QTest::mouseMove(m_buttons->Button(1));
    QTRY_COMPARE(m_buttons->LitIndex(), 1);
    QTest::mouseClick(m_buttons->Button(1), Qt::LeftButton);
    QCOMPARE(lit, 0);
}

void tst_HoverButton::a_press_takes_the_focus_unless_told_not_to()
{
    m_buttons->SetTakesFocus(false);
    QTest::mouseClick(m_buttons->Button(1), Qt::LeftButton);
    QVERIFY(m_field->hasFocus());
    m_buttons->SetTakesFocus(true);
    QTest::mouseClick(m_buttons->Button(1), Qt::LeftButton);
    QVERIFY(m_buttons->Button(1)->hasFocus());
}

QTEST_MAIN(tst_HoverButton)
#include "tst_HoverButton.moc"
