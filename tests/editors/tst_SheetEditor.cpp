#include "editors/OneLine.h"
#include "editors/SheetEditor.h"
#include "model/Lists.h"
#include "support/Columns.h"
#include "support/Windows.h"
#include "ui/widgets/Grid.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A sheet of three fields and a list whose rules write down when they are asked.
class Desk : public QWidget
{
public:
    QStringList Log;
    QString Refuses;
    SheetEditor* Sheet;

    explicit Desk(int fields = 3)
    {
        std::vector<SheetRow> rows;
        for (int i = 1; i <= fields; ++i)
            rows.push_back(Row(u"txt%1"_s.arg(i), i < fields ? u"txt%1"_s.arg(i + 1) : u"cboState"_s));
        rows.push_back(Row(u"cboState"_s, u"cboState"_s));
        rows.back().List = ListField::State;
        Sheet = new SheetEditor(std::move(rows), this);
        Sheet->resize(300, 150);
        resize(300, 200);
    }

    void Open()
    {
        show();
        QVERIFY(QTest::qWaitForWindowActive(this));
        Log.clear();
    }

    /// Presses the mouse where a cell stands, and lets it go.
    void Press(int row, int column) const
    {
        auto& grid = Control<Grid>(*this, u"Grid2"_s);
        const QPoint inside = grid.visualRect(grid.model()->index(row - 1, column - 1)).center();
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, grid.viewport()->mapTo(this, inside));
    }

    [[nodiscard]] QString Focus() const { return focusWidget() == nullptr ? QString() : focusWidget()->objectName(); }

private:
    SheetRow Row(const QString& control, const QString& next)
    {
        SheetRow row{.Label = control + u':', .Control = control, .Tag = control.toUpper(), .EnterTo = next};
        row.Accepts = [this, control](int key, const QString&) {
            Log << u"press "_s + control;
            return key != u'#';
        };
        row.KeyUp = [this, control](int, const FieldText& field) {
            Log << u"up "_s + control;
            return field;
        };
        row.EnterCommits = [this, control](SheetEditor& sheet, int n) {
            sheet.SetValue(n, sheet.ControlText(n));
            return Tell(u"enter "_s + control);
        };
        row.Validate = [this, control](SheetEditor&, int) { return Tell(u"validate "_s + control); };
        row.LostFocus = [this, control](SheetEditor&, int) { Tell(u"lost "_s + control); };
        row.GotFocus = [this, control](SheetEditor& sheet, int) {
            return Tell(u"got %1 from %2"_s.arg(control).arg(sheet.CurRow()));
        };
        if (control.startsWith(u"cbo"))
            row.KeyUp = {};
        return row;
    }
    bool Tell(const QString& what)
    {
        Log << what;
        return Refuses.isEmpty() || !what.startsWith(Refuses);
    }
};

} // namespace

class tst_SheetEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_person_moves_in_the_order_of_the_contract_data()
    {
        AddColumns<int, QString, QString, QStringList, int>({"from", "way", "refuses", "log", "to"});

        const QString none;
        const QStringList onward{u"validate txt1"_s, u"lost txt1"_s, u"got txt2 from 1"_s};
        QTest::newRow("Tab") << 1 << u"Tab"_s << none << (onward + QStringList{u"up txt2"_s}) << 2;
        QTest::newRow("Tab, refused") << 1 << u"Tab"_s << u"validate"_s << QStringList{u"validate txt1"_s, u"up txt1"_s}
                                      << 1;
        QTest::newRow("Tab, sent back") << 1 << u"Tab"_s << u"got"_s << (onward + QStringList{u"up txt1"_s}) << 1;
        QTest::newRow("Shift+Tab") << 2 << u"Backtab"_s << none
                                   << QStringList{u"validate txt2"_s, u"lost txt2"_s, u"got txt1 from 2"_s,
                                                  u"up txt1"_s}
                                   << 1;
        QTest::newRow("press on a value")
            << 1 << u"value 3"_s << none << QStringList{u"validate txt1"_s, u"lost txt1"_s, u"got txt3 from 1"_s} << 3;
        QTest::newRow("press on a label") << 1 << u"label 2"_s << none << onward << 2;
        QTest::newRow("press, refused") << 1 << u"value 2"_s << u"validate"_s << QStringList{u"validate txt1"_s} << 1;
        QTest::newRow("press on the row itself") << 2 << u"label 2"_s << none << QStringList() << 2;
        QTest::newRow("Enter") << 1 << u"Enter"_s << none
                               << QStringList{u"enter txt1"_s, u"lost txt1"_s, u"got txt2 from 2"_s, u"up txt2"_s} << 2;
        QTest::newRow("Enter, refused") << 1 << u"Enter"_s << u"enter"_s << QStringList{u"enter txt1"_s, u"up txt1"_s}
                                        << 1;
        QTest::newRow("Enter on the last row") << 4 << u"Enter"_s << none << QStringList{u"enter cboState"_s} << 4;
        QTest::newRow("Tab on the last row")
            << 4 << u"Tab"_s << none << QStringList{u"validate cboState"_s, u"lost cboState"_s} << 4;
        QTest::newRow("Shift+Tab on the first row")
            << 1 << u"Backtab"_s << none << QStringList{u"validate txt1"_s, u"lost txt1"_s, u"up txt1"_s} << 1;
        QTest::newRow("a key") << 1 << u"a"_s << none << QStringList{u"press txt1"_s, u"up txt1"_s} << 1;
    }

    void the_person_moves_in_the_order_of_the_contract()
    {
        QFETCH(int, from);
        QFETCH(QString, way);
        QFETCH(QString, refuses);
        QFETCH(QStringList, log);
        QFETCH(int, to);

        Desk desk;
        desk.Open();
        desk.Sheet->SetNextFocus(from);
        desk.Refuses = refuses;
        if (way == u"Tab")
            TypeKey(desk, Qt::Key_Tab);
        else if (way == u"Backtab")
            TypeKey(desk, Qt::Key_Backtab);
        else if (way == u"Enter")
            TypeKey(desk, Qt::Key_Return);
        else if (way == u"a")
            TypeText(desk, way);
        else
            desk.Press(way.right(1).toInt(), way.startsWith(u"label") ? 1 : 2);

        QCOMPARE(desk.Log, log);
        QCOMPARE(desk.Sheet->CurRow(), to);
        QCOMPARE(desk.Focus(), desk.Sheet->Control(to)->objectName());
        for (int row = 1; row <= desk.Sheet->Rows(); ++row)
            QCOMPARE(desk.Sheet->Control(row)->isVisible(), row == to);
    }

    void a_button_is_asked_for_leave()
    {
        Desk desk;
        desk.Open();
        QVERIFY(desk.Sheet->Leave());
        QCOMPARE(desk.Log, (QStringList{u"validate txt1"_s, u"lost txt1"_s}));
        desk.Log.clear();
        desk.Refuses = u"validate"_s;
        QVERIFY(!desk.Sheet->Leave());
        QCOMPARE(desk.Log, QStringList{u"validate txt1"_s});
    }

    void another_window_is_no_leaving()
    {
        Desk desk;
        desk.Open();
        TypeText(desk, u"ab"_s);
        desk.Log.clear();
        {
            QWidget other;
            other.show();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        }
        desk.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk));
        QCOMPARE(desk.Log, QStringList());
        QCOMPARE(desk.Focus(), u"txt1"_s);
        TypeText(desk, u"c"_s);
        QCOMPARE(desk.Sheet->ControlText(1), u"abc"_s);
    }

    void a_list_opens_by_key_and_its_popup_is_no_leaving()
    {
        Desk desk;
        desk.Open();
        desk.Sheet->SetNextFocus(4);
        auto& list = Control<QComboBox>(desk, u"cboState"_s);
        TypeText(desk, u"f"_s);
        QCOMPARE(list.currentText(), u"FL"_s);
        TypeKey(desk, Qt::Key_F4);
        QTRY_VERIFY(list.view()->isVisible());
        QTest::keyClick(list.view(), Qt::Key_Down);
        QTest::keyClick(list.view(), Qt::Key_Return);
        QTRY_VERIFY(!list.view()->isVisible());
        QCOMPARE(list.currentText(), u"FM"_s);
        QVERIFY(!desk.Log.contains(u"lost cboState"_s));
        QCOMPARE(desk.Focus(), u"cboState"_s);
    }

    void the_caret_comes_to_the_end_and_nothing_is_selected()
    {
        Desk desk;
        desk.Sheet->SetValue(2, u"several words"_s);
        desk.Open();
        TypeKey(desk, Qt::Key_Tab);
        const auto& field = Control<QLineEdit>(desk, u"txt2"_s);
        QCOMPARE(field.cursorPosition(), 13);
        QVERIFY(!field.hasSelectedText());
    }

    void the_control_stays_on_its_row_in_a_small_window()
    {
        Desk desk(30);
        desk.Open();
        auto& grid = Control<Grid>(desk, u"Grid2"_s);
        const auto cell = [&grid](int row) { return grid.visualRect(grid.model()->index(row - 1, 1)); };
        for (int row = 1; row <= 20; ++row)
            TypeKey(desk, Qt::Key_Tab);
        const QWidget* control = desk.Sheet->Control(21);
        QVERIFY(grid.viewport()->rect().contains(control->geometry()));
        QCOMPARE(control->geometry(), cell(21));

        grid.verticalScrollBar()->setValue(0);
        QCOMPARE(control->geometry(), cell(21));
        QVERIFY(!grid.viewport()->rect().intersects(control->geometry()));
        TypeText(desk, u"x"_s);
        QVERIFY(grid.viewport()->rect().contains(control->geometry()));
        QCOMPARE(control->geometry(), cell(21));

        desk.Sheet->resize(500, 400);
        QTRY_COMPARE(control->geometry(), cell(21));
        desk.Sheet->resize(500, 200);
        QTRY_VERIFY(grid.viewport()->rect().contains(control->geometry()));
        QCOMPARE(control->geometry(), cell(21));
    }

    void keys_that_a_field_does_not_use_leave_the_grid_alone()
    {
        Desk desk;
        desk.Open();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_End})
            TypeKey(desk, key);
        QCOMPARE(Control<Grid>(desk, u"Grid2"_s).SelectedRow(), 0);
        QCOMPARE(desk.Sheet->CurRow(), 1);
    }

    void a_paste_keeps_the_accepted_characters_and_is_masked_once_data()
    {
        AddColumns<QString, QString, QString>({"before", "pasted", "after"});
        QTest::newRow("all accepted") << u"a"_s << u"bc"_s << u"abc"_s;
        QTest::newRow("some refused") << u"a"_s << u"b#c#"_s << u"abc"_s;
        QTest::newRow("lines become one") << QString() << u"one\r\ntwo\nthree\r\n"_s << u"one two three"_s;
        QTest::newRow("NUL and other control characters go")
            << QString() << QString(u"a"_s + QChar(0) + u'b' + QChar(7) + u'c') << u"abc"_s;
    }

    void a_paste_keeps_the_accepted_characters_and_is_masked_once()
    {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        Desk desk;
        desk.Open();
        TypeText(desk, before);
        desk.Log.clear();
        QApplication::clipboard()->setText(pasted);
        TypeKey(desk, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Sheet->ControlText(1), after);
        QCOMPARE(desk.Log.count(u"up txt1"_s), 1);
    }

    void an_insertion_is_found_wherever_it_happened()
    {
        QCOMPARE(FindInsertion(u"aab", u"aaab").Text, u"a"_s);
        QCOMPARE(FindInsertion(u"abc", u"aXYc").Text, u"XY"_s);
        QCOMPARE(FindInsertion(u"abc", u"aXYc").Position, 1);
        QCOMPARE(FindInsertion(u"abc", u"ac").Text, QString());
        QCOMPARE(FindInsertion(u"", u"new").Text, u"new"_s);
    }

    void a_stored_text_of_any_kind_survives_being_looked_at()
    {
        const QString odd = QString(u"a\nb"_s + QChar(0) + QChar(0xD800) + QString(70000, u'x'));
        Desk desk;
        desk.Sheet->SetValue(1, odd);
        desk.Open();
        QCOMPARE(desk.Sheet->ControlText(1), odd);
        TypeText(desk, u"y"_s);
        QCOMPARE(desk.Sheet->ControlText(1), odd + u'y');
    }

    void after_clear_the_sheet_begins_anew()
    {
        Desk desk;
        desk.Open();
        TypeText(desk, u"abc"_s);
        TypeKey(desk, Qt::Key_Return);
        int asked = -1;
        desk.Sheet->SetStartRow([&asked](int row) {
            asked = row;
            return 3;
        });
        desk.Sheet->Clear();
        QCOMPARE(desk.Sheet->Value(1), QString());
        QCOMPARE(desk.Sheet->CurRow(), 0);
        desk.Sheet->txtFirst_GotFocus();
        QCOMPARE(asked, 0);
        QCOMPARE(desk.Focus(), u"txt3"_s);
        QVERIFY(!desk.Sheet->Control(2)->isVisible());
    }
};

QTEST_MAIN(tst_SheetEditor)
#include "tst_SheetEditor.moc"
