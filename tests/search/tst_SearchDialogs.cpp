#include "core/Clock.h"
#include "search/frmCurrency.h"
#include "search/frmDate.h"
#include "search/frmSetValue.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// The windows that ask for a criterion, worked by keys and mouse.
class tst_SearchDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    }
    void cleanupTestCase() { Clock::SetSource({}); }

    void AValueIsGivenAsTyped_data();
    void AValueIsGivenAsTyped();
    void OneInputIsSeen();
    void ListsOfValues();
    void ACancelledValueIsNone_data();
    void ACancelledValueIsNone();
    void DatesAsTexts_data();
    void DatesAsTexts();
    void ABadDateKeepsTheWindow_data();
    void ABadDateKeepsTheWindow();
    void TheCalendarServesTheDateWithTheFocus();
    void AFieldThatIsWorkedInKeepsItsCaret();
    void ACancelledCalendarEmptiesTheDate();
    void TheCalendarsAnswerIsNotTheWindows();
    void ASecondDateThatIsHiddenAndBadIsShown();
    void AHeldEnterAnswersNothing_data();
    void AHeldEnterAnswersNothing();
    void AmountsAsTexts_data();
    void AmountsAsTexts();
    void AmountsAreComparedAsTexts();
    void TheSecondEntryComesWithTheRangeAlone();

private:
    static QLineEdit& Edit(const QWidget& form, const char* name)
    {
        return Control<QLineEdit>(form, QString::fromLatin1(name));
    }
    static void ChooseCondition(const QWidget& form, const QString& condition)
    {
        Control<QComboBox>(form, u"cboCondition"_s).setCurrentText(condition);
    }
    static void Answer(const QWidget& form, const QString& condition, const QString& first, const QString& second)
    {
        ChooseCondition(form, condition);
        TypeText(form, first);
        if (!second.isEmpty()) {
            TypeKey(form, Qt::Key_Tab);
            TypeText(form, second);
        }
        TypeKey(form, Qt::Key_Return);
    }
    template <typename Window>
    static void Work(const char* name, const std::function<void(Form& form)>& script)
    {
        gReturnValue = u"of old"_s;
        const WhenFormOpens opened(QString::fromLatin1(name), script);
        Window().ShowModal(nullptr);
    }
};

void tst_SearchDialogs::AValueIsGivenAsTyped_data()
{
    QTest::addColumn<ValueInput>("input");
    QTest::addColumn<QString>("seed");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("answer");
    QTest::newRow("text") << ValueInput::txtLongString << u"🏠 "_s << u"O'Hara"_s << u"🏠 O'Hara"_s;
    QTest::newRow("text behind its first letter") << ValueInput::txtLongString << u"L"_s << u"ee"_s << u"Lee"_s;
    QTest::newRow("an initial takes anything") << ValueInput::txtInitial << u"?"_s << u"ab"_s << u"?ab"_s;
    QTest::newRow("a number") << ValueInput::txtShortInt << QString() << u"1a9-.1"_s << u"19.1"_s;
    QTest::newRow("its first key is not looked at") << ValueInput::txtShortInt << u"T"_s << u"1"_s << u"T1"_s;
    QTest::newRow("a telephone") << ValueInput::txtPhone << u"2"_s << u"15-5550100"_s << u"(215) 555-0100"_s;
    QTest::newRow("an eleventh digit") << ValueInput::txtPhone << QString() << u"21555501001"_s << u"21555501001"_s;
    QTest::newRow("a blank is a value") << ValueInput::txtLongString << QString() << u" "_s << u" "_s;
    QTest::newRow("very long") << ValueInput::txtLongString << QString(10000, u'x') << u"y"_s
                               << QString(10000, u'x') + u'y';
    QTest::newRow("a list takes no first key") << ValueInput::cboState << u"T"_s << QString() << QString();
}

void tst_SearchDialogs::AValueIsGivenAsTyped()
{
    QFETCH(ValueInput, input);
    QFETCH(QString, seed);
    QFETCH(QString, keys);
    frmSetValue form(u"Mailing State"_s, input, seed);
    const WhenFormOpens opened(u"frmSetValue"_s, [&](Form& shown) {
        QCOMPARE(shown.windowTitle(), u"Mailing State"_s);
        TypeText(shown, keys);
        TypeKey(shown, Qt::Key_Return);
    });
    form.ShowModal(nullptr);
    QTEST(gReturnValue, "answer");
}

void tst_SearchDialogs::OneInputIsSeen()
{
    frmSetValue form(u"Roof Type"_s, ValueInput::cboRoof, {});
    const WhenFormOpens opened(u"frmSetValue"_s, [](Form& shown) {
        QStringList seen;
        for (const QWidget* control : shown.findChildren<QWidget*>(QRegularExpression(u"^(txt|cbo)"_s)))
            if (control->isVisible())
                seen << control->objectName();
        QCOMPARE(seen, QStringList{u"cboRoof"_s});
        QVERIFY(Control<QComboBox>(shown, u"cboRoof"_s).hasFocus());
        TypeText(shown, u"sl"_s);
        TypeKey(shown, Qt::Key_Return);
    });
    form.ShowModal(nullptr);
    QCOMPARE(gReturnValue, u"Slate"_s);
}

void tst_SearchDialogs::ListsOfValues()
{
    const frmSetValue form(u"Property Type"_s, ValueInput::cboPropType, {});
    const auto ends = [&form](const char* list) {
        const auto& box = Control<QComboBox>(form, QString::fromLatin1(list));
        return box.currentIndex() < 0 ? box.itemText(0) + u".."_s + box.itemText(box.count() - 1) : u"chosen"_s;
    };
    const std::pair<const char*, const char*> lists[]{{"cboPropType", "Condominium..Villa"},
                                                      {"cboYesNo", "Yes..No"},
                                                      {"cboRentalBasis", "Daily..Weekly"},
                                                      {"cboPool", "Above Ground..In Ground"},
                                                      {"cboState", "AL..WY"},
                                                      {"cboConstruction", "Asbestos..Stucco"},
                                                      {"cboFloor", "Brick/Stone..Wood"},
                                                      {"cboRoof", "Built Up..Tile"},
                                                      {"cboParking", "1 Car Carport..Covered Parking"}};
    for (const auto& [list, wanted] : lists)
        QCOMPARE(ends(list), QString::fromLatin1(wanted));
}

void tst_SearchDialogs::ACancelledValueIsNone_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("Esc") << 1;
    QTest::newRow("close box") << 2;
}

void tst_SearchDialogs::ACancelledValueIsNone()
{
    QFETCH(int, way);
    gReturnValue = u"of old"_s;
    frmSetValue form(u"City"_s, ValueInput::txtLongString, u"x"_s);
    const WhenFormOpens opened(u"frmSetValue"_s, [&](Form& shown) {
        if (way == 0)
            ClickOn(shown, u"cmdButton_1"_s);
        else if (way == 1)
            TypeKey(shown, Qt::Key_Escape);
        else
            shown.close();
    });
    form.ShowModal(nullptr);
    QCOMPARE(gReturnValue, QString());
}

void tst_SearchDialogs::DatesAsTexts_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("answer");
    QTest::newRow("equal") << u"Equal To"_s << u"1/5/2026"_s << QString() << u"= 01/05/2026"_s;
    QTest::newRow("letters are not taken") << u"Before"_s << u"0x1052026"_s << QString() << u"Before 01/05/2026"_s;
    QTest::newRow("without a year") << u"After"_s << u"0105"_s << QString() << u"After 01/05/2026"_s;
    QTest::newRow("from") << u"From"_s << u"01052026"_s << u"02052026"_s << u"From 01/05/2026 To 02/05/2026"_s;
    QTest::newRow("one day") << u"From"_s << u"01052026"_s << u"01052026"_s << u"From 01/05/2026 To 01/05/2026"_s;
    QTest::newRow("an empty date") << u"Equal To"_s << QString() << QString() << u"= "_s;
    QTest::newRow("an open end") << u"From"_s << u"01052026"_s << QString() << u"From 01/05/2026 To "_s;
}

void tst_SearchDialogs::DatesAsTexts()
{
    QFETCH(QString, condition);
    QFETCH(QString, first);
    QFETCH(QString, second);
    const ScriptedUser person;
    Work<frmDate>("frmDate", [&](Form& form) {
        QCOMPARE(form.windowTitle(), u" Search Criteria"_s);
        QVERIFY(Edit(form, "txtDate1").hasFocus());
        Answer(form, condition, first, second);
    });
    QTEST(gReturnValue, "answer");
}

void tst_SearchDialogs::ABadDateKeepsTheWindow_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("title");
    QTest::newRow("first, Ok") << u"13/13/2026"_s << u"01/05/2026"_s << 2 << u"Invalid Date"_s;
    QTest::newRow("first, Cancel") << u"13/13/2026"_s << QString() << 1 << u"Invalid Date"_s;
    QTest::newRow("second, Cancel") << u"01/05/2026"_s << u"02/30/2026"_s << 1 << u"Invalid Date"_s;
    QTest::newRow("the wrong way round") << u"02/05/2026"_s << u"01/05/2026"_s << 2 << u"Invalid Date Range"_s;
}

void tst_SearchDialogs::ABadDateKeepsTheWindow()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, button);
    QFETCH(QString, title);
    ScriptedUser person;
    Work<frmDate>("frmDate", [&](Form& form) {
        ChooseCondition(form, u"From"_s);
        Edit(form, "txtDate1").setText(first);
        Edit(form, "txtDate2").setText(second);
        person.Expect(title, title == "Invalid Date"_L1
                                 ? u"Please check that the date is valid."_s
                                 : u"Please check if the From Date is later than the To Date."_s);
        ClickOn(form, u"cmdButton_"_s + QString::number(button));
        QVERIFY(form.isVisible());
        QCOMPARE(person.LastBox().Picture, Icon::Information);
        Edit(form, "txtDate1").setText(u"01/01/2026"_s);
        Edit(form, "txtDate2").setText(u"01/05/2026"_s);
        ClickOn(form, u"cmdButton_1"_s);
        QVERIFY(!form.isVisible());
    });
    QCOMPARE(gReturnValue, QString());
}

void tst_SearchDialogs::TheCalendarServesTheDateWithTheFocus()
{
    Work<frmDate>("frmDate", [](Form& form) {
        ChooseCondition(form, u"From"_s);
        TypeText(form, u"01052026"_s);
        TypeKey(form, Qt::Key_Tab);
        auto& picture = Control<QToolButton>(form, u"picCalendar"_s);
        QTest::qWait(0);
        QVERIFY(std::abs(picture.geometry().center().y() - Edit(form, "txtDate2").geometry().center().y()) < 4);
        // Without a date it starts on today.
        const WhenFormOpens calendar(u"frmCalendar"_s, [](Form& shown) { TypeKey(shown, Qt::Key_Return); });
        picture.click();
        QCOMPARE(Edit(form, "txtDate2").text(), u"11/22/2026"_s);
        QVERIFY(Edit(form, "txtDate2").hasFocus());
        TypeKey(form, Qt::Key_Return);
    });
    QCOMPARE(gReturnValue, u"From 01/05/2026 To 11/22/2026"_s);
}

void tst_SearchDialogs::AFieldThatIsWorkedInKeepsItsCaret()
{
    Work<frmDate>("frmDate", [](Form& form) {
        auto& entry = Edit(form, "txtDate1");
        TypeText(form, u"01/05"_s);
        for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            QFocusEvent back(QEvent::FocusIn, reason);
            QCoreApplication::sendEvent(&entry, &back);
            QTest::qWait(0);
            QVERIFY(!entry.hasSelectedText());
        }
        QFocusEvent come(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&entry, &come);
        QTest::qWait(0);
        QCOMPARE(entry.selectedText(), u"01/05"_s);
        TypeKey(form, Qt::Key_Escape);
    });
}

void tst_SearchDialogs::ACancelledCalendarEmptiesTheDate()
{
    Work<frmDate>("frmDate", [](Form& form) {
        TypeText(form, u"01052026"_s);
        const WhenFormOpens calendar(u"frmCalendar"_s, [](Form& shown) { TypeKey(shown, Qt::Key_Escape); });
        Control<QToolButton>(form, u"picCalendar"_s).click();
        QCOMPARE(Edit(form, "txtDate1").text(), QString());
    });
}

void tst_SearchDialogs::TheCalendarsAnswerIsNotTheWindows()
{
    Work<frmDate>("frmDate", [](Form& form) {
        const WhenFormOpens calendar(u"frmCalendar"_s, [](Form& shown) { TypeKey(shown, Qt::Key_Return); });
        Control<QToolButton>(form, u"picCalendar"_s).click();
        QCOMPARE(Edit(form, "txtDate1").text(), u"11/22/2026"_s);
        form.close();
    });
    QCOMPARE(gReturnValue, QString());
}

void tst_SearchDialogs::ASecondDateThatIsHiddenAndBadIsShown()
{
    ScriptedUser person;
    Work<frmDate>("frmDate", [&](Form& form) {
        ChooseCondition(form, u"From"_s);
        Edit(form, "txtDate2").setText(u"13/13/2026"_s);
        ChooseCondition(form, u"Before"_s);
        QVERIFY(!Edit(form, "txtDate2").isVisible());
        person.Expect(u"Invalid Date"_s, u"Please check that the date is valid."_s);
        TypeKey(form, Qt::Key_Return);
        QVERIFY(form.isVisible());
        QVERIFY(Edit(form, "txtDate2").isVisible());
        QVERIFY(Edit(form, "txtDate2").hasFocus());
        Edit(form, "txtDate2").clear();
    });
}

void tst_SearchDialogs::AHeldEnterAnswersNothing_data()
{
    QTest::addColumn<QString>("window");
    QTest::newRow("a value") << u"frmSetValue"_s;
    QTest::newRow("a date") << u"frmDate"_s;
    QTest::newRow("an amount") << u"frmCurrency"_s;
}

void tst_SearchDialogs::AHeldEnterAnswersNothing()
{
    QFETCH(QString, window);
    const WhenFormOpens opened(window, [](Form& form) {
        HoldKey(form, Qt::Key_Return);
        QVERIFY(form.isVisible());
        TypeKey(form, Qt::Key_Return);
        QVERIFY(!form.isVisible());
    });
    if (window == "frmDate"_L1)
        frmDate().ShowModal(nullptr);
    else if (window == "frmCurrency"_L1)
        frmCurrency().ShowModal(nullptr);
    else
        frmSetValue(u"City"_s, ValueInput::txtLongString, {}).ShowModal(nullptr);
}

void tst_SearchDialogs::AmountsAsTexts_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("answer");
    QTest::newRow("equal") << u"Equal To"_s << u"250000"_s << QString() << u"= $250,000.00"_s;
    QTest::newRow("less") << u"Less Than"_s << u".5"_s << QString() << u"Less Than $0.50"_s;
    QTest::newRow("other keys are not taken") << u"More Than"_s << u"$1a,2-5"_s << QString() << u"More Than $125.00"_s;
    QTest::newRow("between") << u"Between"_s << u"10"_s << u"9"_s << u"Between $10.00 To $9.00"_s;
    QTest::newRow("an open end") << u"Between"_s << u"10"_s << QString() << u"Between $10.00 To "_s;
    QTest::newRow("no amount is no criterion") << u"More Than"_s << QString() << QString() << QString();
    QTest::newRow("nor is a second one alone") << u"Between"_s << QString() << u"9"_s << QString();
}

void tst_SearchDialogs::AmountsAsTexts()
{
    QFETCH(QString, condition);
    QFETCH(QString, first);
    QFETCH(QString, second);
    const ScriptedUser person;
    Work<frmCurrency>("frmCurrency", [&](Form& form) {
        QCOMPARE(form.windowTitle(), u" Search Criteria"_s);
        Answer(form, condition, first, second);
    });
    QTEST(gReturnValue, "answer");
}

void tst_SearchDialogs::AmountsAreComparedAsTexts()
{
    ScriptedUser person;
    Work<frmCurrency>("frmCurrency", [&](Form& form) {
        ChooseCondition(form, u"Between"_s);
        Edit(form, "txtAmount1").setText(u"9"_s);
        Edit(form, "txtAmount2").setText(u"10"_s);
        person.Expect(u"Invalid Amount Range"_s, u"Please check if the From Amount is larger than the To Amount"_s);
        ClickOn(form, u"cmdButton_2"_s);
        QVERIFY(form.isVisible());
        TypeKey(form, Qt::Key_Escape);
    });
    QCOMPARE(gReturnValue, QString());
}

void tst_SearchDialogs::TheSecondEntryComesWithTheRangeAlone()
{
    Work<frmCurrency>("frmCurrency", [](Form& form) {
        const auto& second = Edit(form, "txtAmount2");
        const auto& between = Control<QLabel>(form, u"Label1"_s);
        QCOMPARE(between.text(), u"And"_s);
        for (const QString& condition : {u"Less Than"_s, u"Between"_s, u"Equal To"_s}) {
            ChooseCondition(form, condition);
            QCOMPARE(second.isVisible(), condition == "Between"_L1);
            QCOMPARE(between.isVisible(), condition == "Between"_L1);
            QVERIFY(Edit(form, "txtAmount1").hasFocus());
        }
        // What is pasted keeps its digits and points.
        QGuiApplication::clipboard()->setText(u"$ 1,250.5"_s);
        TypeKey(form, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Edit(form, "txtAmount1").text(), u"1250.5"_s);
        // Also by the mouse, behind a key that found nothing to take away.
        Edit(form, "txtAmount1").clear();
        TypeKey(form, Qt::Key_Backspace);
        Edit(form, "txtAmount1").paste();
        QCOMPARE(Edit(form, "txtAmount1").text(), u"1250.5"_s);
    });
}

QTEST_MAIN(tst_SearchDialogs)
#include "tst_SearchDialogs.moc"
