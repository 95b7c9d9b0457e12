#include "core/ErrorOf.h"
#include "core/FieldRules.h"
#include "support/Columns.h"
#include "ui/widgets/Grid.h"

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// A list as the windows use it, worked with keys and mouse.
class tst_Grid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void the_model_keeps_its_promises();
    void rows_that_share_item_data_are_found_from_the_top();
    void cells_outside_the_grid_raise_9();
    void sorting();
    void sorting_is_stable_in_both_directions();
    void the_current_row_highlights_looks_and_hidden_rows_follow_a_sort();
    void header_clicks_flip_the_direction_kept_on_column_1();
    void a_column_with_dates_sorts_by_date_whatever_its_type();
    void only_the_person_raises_SelectionChange();
    void code_that_answers_the_person_raises_nothing_more();
    void hidden_rows_are_never_touched();
    void hiding_the_current_row_moves_on();
    void a_right_press_data();
    void a_right_press();
    void the_menu_key_is_a_right_press_on_the_current_row();
    void removing_the_current_row();
    void removing_what_is_highlighted_from_the_end_stops_there();
    void many_rows_go_at_once();
    void the_current_row_counts_when_nothing_is_highlighted();
    void coming_into_the_list_chooses_no_row();
    void keys_are_told_before_they_move();
    void arrows_move_the_current_column();
    void a_column_fits_its_widest_text_until_a_clear();
    void a_long_fill_with_redraw_off_tells_the_views_once();
    void a_large_list_is_filled_marked_and_thinned();

private:
    void Fill(const QStringList& texts);
    [[nodiscard]] QStringList Texts(int column = 1) const;
    [[nodiscard]] QList<int> Highlighted() const;
    [[nodiscard]] QPoint At(int row, int column = 1) const;
    void Click(int row, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton);

    std::unique_ptr<Grid> m_grid;
};

void tst_Grid::init()
{
    m_grid = std::make_unique<Grid>();
    m_grid->AddColumn({.Key = u"Name"_s, .Header = u"Name"_s});
    m_grid->AddColumn({.Key = u"More"_s, .Header = u"More"_s});
    m_grid->resize(400, 400);
    m_grid->show();
    m_grid->activateWindow();
    m_grid->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_grid.get()));
}

void tst_Grid::cleanup()
{
    m_grid.reset();
}

void tst_Grid::Fill(const QStringList& texts)
{
    for (const QString& text : texts) {
        const int row = m_grid->AddRow(100 + m_grid->Rows());
        m_grid->SetCellText(row, 1, text);
    }
}

QStringList tst_Grid::Texts(int column) const
{
    QStringList texts;
    for (int row = 1; row <= m_grid->Rows(); ++row)
        texts.append(m_grid->CellText(row, column));
    return texts;
}

QList<int> tst_Grid::Highlighted() const
{
    const std::vector<int> rows = m_grid->HighlightedRows();
    return {rows.begin(), rows.end()};
}

QPoint tst_Grid::At(int row, int column) const
{
    return m_grid->visualRect(m_grid->model()->index(row - 1, column - 1)).center();
}

void tst_Grid::Click(int row, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    QTest::mouseClick(m_grid->viewport(), button, modifiers, At(row));
}

void tst_Grid::the_model_keeps_its_promises()
{
    const QAbstractItemModelTester tester(m_grid->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    Fill({u"b"_s, u"c"_s, u"a"_s});
    m_grid->AddRow(1, 2);
    m_grid->SetCellIcon(1, 1, u"Bell"_s);
    m_grid->Sort(1, SortType::Text, 1);
    m_grid->SetRedraw(false);
    Fill({u"e"_s, u"d"_s});
    m_grid->RemoveRow(m_grid->Rows());
    Fill({u"f"_s});
    m_grid->SetRedraw(true);
    QCOMPARE(m_grid->model()->rowCount(), m_grid->Rows());
    m_grid->RemoveRows({1, 3, 5});
    QCOMPARE(Texts(), (QStringList{u"a"_s, u"c"_s, u"f"_s}));
    m_grid->AddColumn({.Key = u"Third"_s});
    m_grid->Clear();
    Fill({u"x"_s});
    QVERIFY(m_grid->CellIcon(1, 1).isEmpty());
    m_grid->ClearWithColumns();
    QCOMPARE(m_grid->Columns(), 0);
}

void tst_Grid::rows_that_share_item_data_are_found_from_the_top()
{
    for (const Long id : {7, 8, 7, 9})
        m_grid->AddRow(id);
    QCOMPARE(m_grid->FindRow(7), 1);
    m_grid->RemoveRow(1);
    QCOMPARE(m_grid->FindRow(7), 2);
    m_grid->SetRowItemData(1, 7);
    QCOMPARE(m_grid->FindRow(7), 1);
    QCOMPARE(m_grid->FindRow(8), 0);
    // However often it is asked, the rows are those of now.
    const auto askOften = [this] {
        for (int i = 0; i < 40; ++i)
            static_cast<void>(m_grid->FindRow(7));
    };
    askOften();
    QCOMPARE(m_grid->FindRow(7), 1);
    m_grid->AddRow(9, 1);
    QCOMPARE(m_grid->FindRow(7), 2);
    askOften();
    m_grid->SetRowItemData(1, 7);
    QCOMPARE(m_grid->FindRow(7), 1);
    askOften();
    m_grid->RemoveRow(1);
    QCOMPARE(m_grid->FindRow(9), 3);
    QCOMPARE(m_grid->FindRow(7), 1);
}

void tst_Grid::cells_outside_the_grid_raise_9()
{
    Fill({u"a"_s});
    const std::vector<std::function<void()>> outside{[this] { m_grid->SetCellText(2, 1, {}); },
                                                     [this] { m_grid->SetCellText(1, 3, {}); },
                                                     [this] { m_grid->SetCellText(1, u"NoSuchKey", {}); },
                                                     [this] { static_cast<void>(m_grid->RowItemData(0)); },
                                                     [this] { m_grid->RemoveRow(2); },
                                                     [this] { m_grid->SetSelectedRow(2); }};
    for (const auto& call : outside)
        QCOMPARE(ErrorOf(call), 9);
}

void tst_Grid::sorting()
{
    const auto sorted = [this](SortType type, int direction, const QString& texts) {
        m_grid->Clear();
        Fill(texts.split(u'|'));
        m_grid->Sort(1, type, direction);
        return Texts().join(u'|');
    };
    QCOMPARE(sorted(SortType::Text, 1, u"b|C|A|"_s), u"|A|b|C"_s);
    QCOMPARE(sorted(SortType::Number, 1, u"10|9|x|-1"_s), u"x|-1|9|10"_s);
    QCOMPARE(sorted(SortType::Number, 2, u"$9.50|$1,200.00|"_s), u"$1,200.00|$9.50|"_s);
    QCOMPARE(sorted(SortType::Date, 2, u"12/31/1999|none|01/02/2026"_s), u"01/02/2026|12/31/1999|none"_s);
}

void tst_Grid::sorting_is_stable_in_both_directions()
{
    Fill({u"b"_s, u"A"_s, u"a"_s, u"B"_s});
    m_grid->Sort(1, SortType::Text, 1);
    QCOMPARE(Texts(), (QStringList{u"A"_s, u"a"_s, u"b"_s, u"B"_s}));
    m_grid->Sort(1, SortType::Text, 2);
    QCOMPARE(Texts(), (QStringList{u"b"_s, u"B"_s, u"A"_s, u"a"_s}));
}

void tst_Grid::the_current_row_highlights_looks_and_hidden_rows_follow_a_sort()
{
    Fill({u"d"_s, u"c"_s, u"b"_s, u"a"_s});
    m_grid->SetRowVisible(3, false);
    m_grid->SelectCell(1, 2);
    m_grid->SetRowSelected(2, true);
    m_grid->SetCellColor(1, 1, Qt::red);
    m_grid->Sort(1, SortType::Text, 1);
    QCOMPARE(m_grid->SelectedRow(), 4);
    QCOMPARE(m_grid->SelectedCol(), 2);
    QCOMPARE(Highlighted(), (QList<int>{3, 4}));
    QVERIFY(!m_grid->RowVisible(2));
    QVERIFY(m_grid->RowVisible(3));
    QCOMPARE(m_grid->CellColor(4, 1), QColor(Qt::red));
    QCOMPARE(m_grid->RowItemData(4), 100);
}

void tst_Grid::header_clicks_flip_the_direction_kept_on_column_1()
{
    Fill({u"b"_s, u"c"_s, u"a"_s});
    m_grid->AddRow();
    m_grid->SetRowVisible(4, false);
    connect(m_grid.get(), &Grid::ColumnClick, m_grid.get(), [this](int column) { SortGrid(*m_grid, column); });
    const auto clickHeader = [this](int column) {
        QHeaderView* header = m_grid->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column - 1) + 20, 8));
    };
    clickHeader(1);
    QCOMPARE(Texts().first(), u"c"_s);
    QCOMPARE(m_grid->SelectedRow(), 1);
    clickHeader(2);
    QCOMPARE(m_grid->SortOrder(1), 1);
    QCOMPARE(m_grid->SortOrder(2), 0);
    clickHeader(1);
    QCOMPARE(Texts().first(), u"c"_s);
    m_grid->SelectCell(1, 1);
    QTest::keyClick(m_grid.get(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(Texts(), (QStringList{u""_s, u"a"_s, u"b"_s, u"c"_s}));
    // The first row is hidden now, so the first that can be seen is chosen.
    QCOMPARE(m_grid->SelectedRow(), 2);
}

void tst_Grid::a_column_with_dates_sorts_by_date_whatever_its_type()
{
    Fill({u""_s, u"02/01/2025"_s, u"10/01/2024"_s});
    SortGrid(*m_grid, 1);
    QCOMPARE(Texts(), (QStringList{u"02/01/2025"_s, u"10/01/2024"_s, u""_s}));
    m_grid->Clear();
    SortGrid(*m_grid, 1);
    QCOMPARE(m_grid->SortOrder(1), 1);
}

void tst_Grid::only_the_person_raises_SelectionChange()
{
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QSignalSpy spy(m_grid.get(), &Grid::SelectionChange);
    m_grid->SetSelectedRow(1);
    m_grid->SelectCell(2, 2);
    m_grid->SetRowSelected(3, true);
    m_grid->Sort(1, SortType::Text, 2);
    m_grid->RemoveRow(m_grid->SelectedRow());
    m_grid->ClearHighlight();
    m_grid->AddRow(5, 1);
    QCOMPARE(spy.count(), 0);
    Click(1);
    QCOMPARE(spy.count(), 1);
    QTest::keyClick(m_grid.get(), Qt::Key_Down);
    QCOMPARE(spy.count(), 2);
    Click(2);
    QVERIFY2(spy.count() == 2, "a click where nothing changes is no change");
    Click(3, Qt::ShiftModifier);
    QCOMPARE(spy.count(), 3);
    QTest::keyClick(m_grid.get(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(spy.count(), 4);
}

void tst_Grid::code_that_answers_the_person_raises_nothing_more()
{
    Fill({u"a"_s, u"b"_s, u"c"_s});
    QSignalSpy spy(m_grid.get(), &Grid::SelectionChange);
    connect(m_grid.get(), &Grid::KeyDown, m_grid.get(), [this](int code) {
        if (code == Key::Delete)
            m_grid->RemoveRow(m_grid->SelectedRow());
    });
    m_grid->SetSelectedRow(1);
    QTest::keyClick(m_grid.get(), Qt::Key_Delete);
    QCOMPARE(Texts(), (QStringList{u"b"_s, u"c"_s}));
    QCOMPARE(spy.count(), 0);
}

void tst_Grid::hidden_rows_are_never_touched()
{
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    m_grid->SetRowVisible(2, false);
    m_grid->SetRowVisible(5, false);
    Click(1);
    Click(4, Qt::ShiftModifier);
    QCOMPARE(Highlighted(), (QList<int>{1, 3, 4}));
    Click(1);
    QTest::keyClick(m_grid.get(), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(Highlighted(), (QList<int>{1, 3}));
    QTest::keyClick(m_grid.get(), Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(m_grid->SelectedRow(), 4);
    QTest::keyClick(m_grid.get(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(Highlighted(), (QList<int>{1, 3, 4}));
    m_grid->SetSelectedRow(5);
    m_grid->SetRowSelected(2, true);
    QTest::keyClicks(m_grid.get(), u"e"_s);
    QCOMPARE(m_grid->SelectedRow(), 4);
    QVERIFY(!m_grid->CellSelected(2, 1));
}

void tst_Grid::hiding_the_current_row_moves_on()
{
    Fill({u"a"_s, u"b"_s, u"c"_s});
    m_grid->SetSelectedRow(2);
    m_grid->SetRowVisible(2, false);
    QCOMPARE(m_grid->SelectedRow(), 3);
    QCOMPARE(Highlighted(), (QList<int>{3}));
}

void tst_Grid::a_right_press_data()
{
    AddColumns<QList<int>, int, QList<int>, int>({"highlighted", "press", "after", "changes"});
    QTest::newRow("leaves two rows alone, also outside of them") << QList<int>{1, 2} << 4 << QList<int>{1, 2} << 0;
    QTest::newRow("leaves two rows alone, inside") << QList<int>{1, 2} << 2 << QList<int>{1, 2} << 0;
    QTest::newRow("moves off one row") << QList<int>{1} << 3 << QList<int>{3} << 1;
    QTest::newRow("stays on the row") << QList<int>{1} << 1 << QList<int>{1} << 0;
    QTest::newRow("finds its row from none") << QList<int>{} << 2 << QList<int>{2} << 1;
}

void tst_Grid::a_right_press()
{
    QFETCH(QList<int>, highlighted);
    QFETCH(int, press);
    QFETCH(QList<int>, after);
    QFETCH(int, changes);
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    if (!highlighted.isEmpty())
        m_grid->SetSelectedRow(highlighted.first());
    for (const int row : highlighted)
        m_grid->SetRowSelected(row, true);
    const QSignalSpy spy(m_grid.get(), &Grid::SelectionChange);
    QList<int> atMouseUp;
    connect(m_grid.get(), &Grid::MouseUp, m_grid.get(), [&](Qt::MouseButton button) {
        if (button == Qt::RightButton)
            atMouseUp = Highlighted();
    });
    Click(press, {}, Qt::RightButton);
    QCOMPARE(atMouseUp, after);
    QCOMPARE(spy.count(), changes);
    QCOMPARE(m_grid->SelectedRow(), after.contains(press) && after.size() == 1 ? press : highlighted.first());
}

void tst_Grid::the_menu_key_is_a_right_press_on_the_current_row()
{
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QList<QPoint> asked;
    connect(m_grid.get(), &Grid::MenuKey, m_grid.get(), [&asked](QPoint position) { asked << position; });
    const auto ask = [this] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(m_grid.get(), &event);
    };
    ask();
    QCOMPARE(Highlighted(), QList<int>());
    m_grid->SelectCell(3, 2);
    m_grid->ClearHighlight();
    m_grid->SetRowSelected(1, true);
    ask();
    QCOMPARE(Highlighted(), QList<int>{3});
    QCOMPARE(m_grid->SelectedCol(), 2);
    m_grid->SetRowSelected(1, true);
    QTest::keyClick(m_grid.get(), Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(Highlighted(), (QList<int>{1, 3}));
    const QPoint corner = m_grid->viewport()->mapToGlobal(QPoint());
    const QPoint below = m_grid->viewport()->mapToGlobal(m_grid->visualRect(m_grid->model()->index(2, 0)).bottomLeft());
    QCOMPARE(asked, (QList<QPoint>{corner, below, below}));
}

void tst_Grid::removing_the_current_row()
{
    // The next row follows, after the last one the row before it; hidden rows are passed over.
    for (const auto& [current, hidden, heir] :
         {std::tuple(2, 0, u"c"_s), std::tuple(4, 0, u"c"_s), std::tuple(2, 3, u"d"_s), std::tuple(3, 4, u"b"_s)}) {
        for (const bool together : {false, true}) {
            m_grid->Clear();
            Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
            if (hidden != 0)
                m_grid->SetRowVisible(hidden, false);
            m_grid->SetSelectedRow(current);
            const QSignalSpy spy(m_grid.get(), &Grid::SelectionChange);
            if (together)
                m_grid->RemoveRows({current});
            else
                m_grid->RemoveRow(current);
            QCOMPARE(m_grid->CellText(m_grid->SelectedRow(), 1), heir);
            QTRY_COMPARE(Highlighted(), (QList<int>{m_grid->SelectedRow()}));
            QCOMPARE(spy.count(), 0);
        }
    }
}

void tst_Grid::removing_what_is_highlighted_from_the_end_stops_there()
{
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    m_grid->SetSelectedRow(4);
    m_grid->SetRowSelected(2, true);
    for (int row = m_grid->Rows(); row >= 1; --row)
        if (AnySelectedCol(row, *m_grid))
            m_grid->RemoveRow(row);
    QCOMPARE(Texts(), (QStringList{u"a"_s, u"c"_s}));
    QTRY_COMPARE(Highlighted(), (QList<int>{2}));
}

void tst_Grid::many_rows_go_at_once()
{
    Fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s});
    m_grid->SetRowVisible(6, false);
    m_grid->SetCellIcon(5, 1, u"Bell"_s);
    m_grid->SetSelectedRow(2);
    m_grid->RemoveRows({1, 2, 4, 2});
    QCOMPARE(Texts(), (QStringList{u"c"_s, u"e"_s, u"f"_s}));
    QCOMPARE(m_grid->SelectedRow(), 1);
    QCOMPARE(Highlighted(), (QList<int>{1}));
    QCOMPARE(m_grid->CellIcon(2, 1), u"Bell"_s);
    QVERIFY(m_grid->CellIcon(1, 1).isEmpty());
    QVERIFY(!m_grid->RowVisible(3));
    m_grid->RemoveRows({1, 2, 3});
    QCOMPARE(m_grid->SelectedRow(), 0);
}

void tst_Grid::the_current_row_counts_when_nothing_is_highlighted()
{
    Fill({u"a"_s, u"b"_s});
    QVERIFY(!AnySelectedCol(1, *m_grid));
    m_grid->SetSelectedRow(1);
    m_grid->ClearHighlight();
    QVERIFY(AnySelectedCol(1, *m_grid));
    QCOMPARE(m_grid->SelectionCount(), 0);
    m_grid->SetRowSelected(2, true);
    QVERIFY(!AnySelectedCol(1, *m_grid));
    QVERIFY(AnySelectedCol(2, *m_grid));
}

void tst_Grid::coming_into_the_list_chooses_no_row()
{
    Fill({u"a"_s, u"b"_s});
    m_grid->clearFocus();
    m_grid->setFocus(Qt::TabFocusReason);
    QCOMPARE(m_grid->SelectedRow(), 0);
    QTest::keyClick(m_grid.get(), Qt::Key_Down);
    QCOMPARE(m_grid->SelectedRow(), 1);
    QCOMPARE(Highlighted(), (QList<int>{1}));
}

void tst_Grid::keys_are_told_before_they_move()
{
    Fill({u"a"_s, u"b"_s, u"c"_s});
    m_grid->SetSelectedRow(1);
    QList<int> told;
    QList<int> typed;
    int rowThen = 0;
    connect(m_grid.get(), &Grid::KeyDown, m_grid.get(), [&](int code) {
        told.append(code);
        rowThen = m_grid->SelectedRow();
    });
    connect(m_grid.get(), &Grid::KeyPress, m_grid.get(), [&](int ascii) { typed.append(ascii); });
    for (const Qt::Key key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Period, Qt::Key_Down})
        QTest::keyClick(m_grid.get(), key);
    QCOMPARE(rowThen, 1);
    QCOMPARE(m_grid->SelectedRow(), 2);
    QTest::keyClicks(m_grid.get(), u"c"_s);
    // Under Alt nothing is typed, and an Enter that is still held down opens nothing.
    QKeyEvent underAlt(QEvent::KeyPress, Qt::Key_Q, Qt::AltModifier, u"q"_s);
    QCoreApplication::sendEvent(m_grid.get(), &underAlt);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QCoreApplication::sendEvent(m_grid.get(), &held);
    QCOMPARE(told, (QList<int>{13, 13, 27, 46, 0, 40, 'C', 'Q'}));
    QCOMPARE(typed, (QList<int>{13, 13, 27, '.', 'c'}));
    QVERIFY2(m_grid->SelectedRow() == 2, "a listener to typing keeps the list from searching");
}

void tst_Grid::arrows_move_the_current_column()
{
    Fill({u"a"_s, u"b"_s});
    m_grid->SetColumnVisible(1, false);
    m_grid->SetSelectedRow(1);
    QVERIFY2(m_grid->SelectedCol() == 2, "a row is chosen in a column that can be seen");
    m_grid->SetColumnVisible(1, true);
    Click(1);
    QTest::keyClick(m_grid.get(), Qt::Key_Right);
    QCOMPARE(m_grid->SelectedCol(), 2);
    QTest::keyClick(m_grid.get(), Qt::Key_Down);
    QCOMPARE(m_grid->SelectedCol(), 2);
    QCOMPARE(Highlighted(), (QList<int>{2}));
}

void tst_Grid::a_column_fits_its_widest_text_until_a_clear()
{
    const QString wide(40, u'W');
    Fill({u"short"_s});
    m_grid->AutoWidthColumn(1);
    const int narrow = m_grid->columnWidth(0);
    Fill({wide});
    m_grid->AutoWidthColumn(1);
    const int full = m_grid->columnWidth(0);
    QVERIFY(full >= m_grid->fontMetrics().horizontalAdvance(wide));
    QVERIFY(full < m_grid->fontMetrics().horizontalAdvance(wide) + 40);
    m_grid->SetCellText(1, 1, wide + wide);
    m_grid->AutoWidthColumn(1);
    QVERIFY2(m_grid->columnWidth(0) > full, "a text that was changed after it had been measured counts too");
    m_grid->Clear();
    Fill({u"short"_s});
    m_grid->AutoWidthColumn(1);
    QCOMPARE(m_grid->columnWidth(0), narrow);
}

void tst_Grid::a_long_fill_with_redraw_off_tells_the_views_once()
{
    const QSignalSpy inserted(m_grid->model(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(m_grid->model(), &QAbstractItemModel::dataChanged);
    m_grid->SetRedraw(false);
    Fill({u"a"_s, u"b"_s, u"c"_s});
    QCOMPARE(m_grid->Rows(), 3);
    QCOMPARE(inserted.count() + changed.count(), 0);
    m_grid->SetRedraw(true);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_grid->model()->rowCount(), 3);
}

void tst_Grid::a_large_list_is_filled_marked_and_thinned()
{
    constexpr int Many = 100'000;
    m_grid->SetRedraw(false);
    for (int row = 1; row <= Many; ++row) {
        m_grid->AddRow(row);
        m_grid->SetCellText(row, 1, QString::number(row * 7919 % Many));
        m_grid->AutoWidthColumn(1);
    }
    m_grid->SetRedraw(true);
    m_grid->Sort(1, SortType::Number, 1);
    QCOMPARE(m_grid->CellText(Many, 1), QString::number(Many - 1));
    m_grid->selectAll();
    int marked = 0;
    for (int row = 1; row <= m_grid->Rows(); ++row)
        marked += AnySelectedCol(row, *m_grid) ? 1 : 0;
    QCOMPARE(marked, Many);
    std::vector<int> everySecond;
    for (int row = 2; row <= Many; row += 2)
        everySecond.push_back(row);
    m_grid->RemoveRows(everySecond);
    for (int row = m_grid->Rows(); row > Many / 2 - 2000; row -= 2)
        m_grid->RemoveRow(row);
    QCOMPARE(m_grid->Rows(), Many / 2 - 1000);
    QCOMPARE(m_grid->SelectionCount(), m_grid->Rows());
}

QTEST_MAIN(tst_Grid)
#include "tst_Grid.moc"
