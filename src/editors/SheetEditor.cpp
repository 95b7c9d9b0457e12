#include "editors/SheetEditor.h"

#include "editors/SheetAccess.h"
#include "model/Lists.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/Theme.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int LabelWidth = 100;
constexpr int ValueWidth = 300;
constexpr int FewestRows = 5;
constexpr int Air = 3;

/// Lavender with dark letters, in any palette of the program.
void PaintAsEdit(QWidget& control)
{
    QPalette palette = control.palette();
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button, QPalette::Window})
        palette.setColor(role, Theme::Lavender);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(role, Qt::black);
    control.setPalette(palette);
}

} // namespace

SheetEditor::SheetEditor(std::vector<SheetRow> rows, QWidget* parent) : QWidget(parent), m_rows(std::move(rows))
{
    InstallSheetAccess();
    // The order of making is the order of Tab.
    m_txtFirst = AddSentinel(u"txtFirst"_s);
    AddGrid();
    for (int row = 1; row <= Rows(); ++row)
        AddControl(row);
    m_txtEnd = AddSentinel(u"txtEnd"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_grid);
    FitRows();
}

SheetEditor::~SheetEditor() = default;

QWidget* SheetEditor::AddSentinel(const QString& name)
{
    auto* sentinel = new QWidget(this);
    sentinel->setObjectName(name);
    sentinel->setFocusPolicy(Qt::TabFocus);
    sentinel->resize(0, 0);
    sentinel->installEventFilter(this);
    return sentinel;
}

void SheetEditor::AddGrid()
{
    m_grid = new Grid(this);
    m_grid->setObjectName(u"Grid2"_s);
    m_grid->setAccessibleName(u"Sheet"_s);
    m_grid->setFocusPolicy(Qt::NoFocus);
    m_grid->setShowGrid(true);
    m_grid->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->SetHeaderVisible(false);
    m_grid->AddColumn({.Key = u"Label"_s, .Header = {}, .HeaderIcon = {}, .Width = LabelWidth});
    m_grid->AddColumn({.Key = u"Value"_s, .Header = {}, .HeaderIcon = {}, .Width = 0});
    m_grid->horizontalHeader()->setStretchLastSection(true);
    for (const SheetRow& row : m_rows)
        AddGridRow(*m_grid, row.Label);
    m_grid->installEventFilter(this);
    m_grid->viewport()->installEventFilter(this);
    connect(m_grid->verticalScrollBar(), &QScrollBar::valueChanged, this, &SheetEditor::Place);
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionResized, this, &SheetEditor::Place);
    connect(m_grid->verticalHeader(), &QHeaderView::sectionResized, this, &SheetEditor::Place);
}

void SheetEditor::AddControl(int row)
{
    const SheetRow& rule = At(row);
    QWidget* control = nullptr;
    if (rule.Control.startsWith("cbo"_L1)) {
        auto* list = new QComboBox(m_grid->viewport());
        list->addItems(ListEntries(rule.List));
        // A screen reader takes what a list shows for its name, and asks a label what it is for.
        auto* label = new QLabel(rule.Label, m_grid->viewport());
        label->setBuddy(list);
        label->hide();
        control = list;
    } else {
        auto* field = new QLineEdit(m_grid->viewport());
        field->setFrame(false);
        field->setTextMargins(1, 0, 0, 0);
        // A long text that was stored by other hands is never cut by being looked at.
        field->setMaxLength(std::numeric_limits<int>::max());
        connect(field, &QLineEdit::textEdited, this, [this, row](const QString& now) { Edited(row, now); });
        control = field;
    }
    control->hide();
    control->setObjectName(rule.Control);
    control->setAccessibleName(rule.Label.chopped(rule.Label.endsWith(u':') ? 1 : 0));
    PaintAsEdit(*control);
    control->installEventFilter(this);
    m_rowOf.insert(control, row);
    m_controls.push_back(control);
}

int SheetEditor::RowHeight() const
{
    m_grid->ensurePolished();
    int height = m_grid->fontMetrics().height();
    for (QWidget* control : m_controls) {
        control->ensurePolished();
        height = std::max(height, control->sizeHint().height());
    }
    return height + Air;
}

void SheetEditor::FitRows()
{
    const int height = RowHeight();
    if (m_grid->verticalHeader()->defaultSectionSize() != height)
        m_grid->verticalHeader()->setDefaultSectionSize(height);
    QFont bold = m_grid->font();
    bold.setBold(true);
    int width = LabelWidth;
    for (const SheetRow& row : m_rows)
        width = std::max(width, QFontMetrics(bold).horizontalAdvance(row.Label) + 12);
    m_grid->setColumnWidth(LabelColumn - 1, width);
    Place();
}

QSize SheetEditor::sizeHint() const
{
    const int frame = 2 * m_grid->frameWidth();
    return {m_grid->columnWidth(LabelColumn - 1) + ValueWidth + frame, RowHeight() * Rows() + frame};
}

QSize SheetEditor::minimumSizeHint() const
{
    return {LabelWidth * 2, RowHeight() * FewestRows};
}

// Rows, values, controls.

int SheetEditor::RowOf(const QString& control) const
{
    const auto found = std::ranges::find(m_rows, control, &SheetRow::Control);
    return found == m_rows.end() ? 0 : static_cast<int>(found - m_rows.begin()) + 1;
}

int SheetEditor::RowOfTag(const QString& tag) const
{
    const auto found = std::ranges::find(m_rows, tag, &SheetRow::Tag);
    return tag.isEmpty() || found == m_rows.end() ? 0 : static_cast<int>(found - m_rows.begin()) + 1;
}

QString SheetEditor::Value(int row) const
{
    return m_grid->CellText(row, ValueColumn);
}

void SheetEditor::SetValue(int row, const QString& text)
{
    m_grid->SetCellText(row, ValueColumn, text);
}

void SheetEditor::Clear()
{
    for (int row = 1; row <= Rows(); ++row)
        SetValue(row, {});
    if (m_row == 0)
        return;
    if (QLineEdit* field = LineEdit(m_row))
        field->clear();
    PaintRow(m_row, false);
    m_row = 0;
}

QWidget* SheetEditor::Control(int row) const
{
    return m_controls.at(static_cast<size_t>(row) - 1);
}

QLineEdit* SheetEditor::LineEdit(int row) const
{
    return qobject_cast<QLineEdit*>(Control(row));
}

QString SheetEditor::ControlText(int row) const
{
    if (const QLineEdit* field = LineEdit(row))
        return field->text();
    return qobject_cast<QComboBox*>(Control(row))->currentText();
}

FieldText SheetEditor::Field(int row) const
{
    const QLineEdit* field = LineEdit(row);
    return {field->text(), field->cursorPosition()};
}

void SheetEditor::SetField(int row, const FieldText& field)
{
    QLineEdit* control = LineEdit(row);
    if (control->text() != field.Text)
        control->setText(field.Text);
    control->setCursorPosition(static_cast<int>(field.SelStart));
    if (row == m_row)
        m_before = control->text();
}

// The row in edit.

void SheetEditor::txtFirst_GotFocus()
{
    const int row = m_startRow ? m_startRow(m_row) : 1;
    SetNextFocus(row < 1 || row > Rows() ? 1 : row);
    if (m_started)
        m_started(m_row);
}

void SheetEditor::SetNextFocus(int row)
{
    const QScopedValueRollback<bool> moving(m_moving, true);
    const int parked = std::exchange(m_shown, row);
    if (m_row != 0)
        PaintRow(m_row, false);
    m_row = row;
    m_grid->EnsureVisible(row, LabelColumn);
    PaintRow(row, true);
    Load(row);
    Control(row)->show();
    Control(row)->raise();
    Control(row)->setFocus(Qt::OtherFocusReason);
    // The old control goes last: a control that is hidden while it has the focus would throw it somewhere.
    if (parked != 0 && parked != row)
        Control(parked)->hide();
    Place();
}

void SheetEditor::Load(int row)
{
    const SheetRow& rule = At(row);
    const QString text = rule.Load ? rule.Load(Value(row)) : Value(row);
    if (QLineEdit* field = LineEdit(row)) {
        field->setText(text);
        field->deselect();
        field->end(false);
        m_before = text;
    } else {
        // A list has no empty state: merely passing over an empty row puts its first entry there, which is meant.
        qobject_cast<QComboBox*>(Control(row))->setCurrentIndex(GetIndex(text, rule.List));
    }
}

void SheetEditor::Place()
{
    if (m_row == 0 || m_shown != m_row)
        return;
    Control(m_row)->setGeometry(m_grid->visualRect(m_grid->model()->index(m_row - 1, ValueColumn - 1)));
    Q_EMIT Placed(m_row);
}

void SheetEditor::KeepInView()
{
    if (m_row != 0)
        m_grid->EnsureVisible(m_row, LabelColumn);
    Place();
}

void SheetEditor::PaintRow(int row, bool inEdit)
{
    m_grid->SetCellBackColor(row, ValueColumn, inEdit ? Theme::Lavender : QColor());
    if (inEdit) {
        QFont bold = m_grid->font();
        bold.setBold(true);
        m_grid->SetCellFont(row, LabelColumn, bold);
    } else {
        m_grid->ResetCellFont(row, LabelColumn);
    }
}

bool SheetEditor::Leave()
{
    if (m_row == 0)
        return true;
    const SheetRow& rule = At(m_row);
    if (rule.Validate && !rule.Validate(*this, m_row))
        return false;
    if (rule.LostFocus)
        rule.LostFocus(*this, m_row);
    return true;
}

bool SheetEditor::GoTo(int row)
{
    if (row == m_row) {
        Control(row)->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (!Leave())
        return false;
    const SheetRow& rule = At(row);
    if (rule.GotFocus && !rule.GotFocus(*this, row)) {
        if (m_row != 0)
            SetNextFocus(m_row);
        return false;
    }
    SetNextFocus(row);
    return true;
}

void SheetEditor::Enter()
{
    const int row = m_row;
    const SheetRow& rule = At(row);
    if (rule.EnterCommits && !rule.EnterCommits(*this, row))
        return;
    const int next = RowOf(rule.EnterTo);
    if (next == 0 || next == row) {
        SetNextFocus(row);
        return;
    }
    if (rule.LostFocus)
        rule.LostFocus(*this, row);
    SetNextFocus(next);
    if (At(next).GotFocus)
        At(next).GotFocus(*this, next);
}

bool SheetEditor::TabKey(bool back)
{
    if (back && m_row == 1) {
        if (Leave())
            txtFirst_GotFocus();
    } else if (!back && m_row == Rows()) {
        // txtEnd hands the focus back at once: the row stays in edit with its text committed.
        Leave();
    } else {
        GoTo(m_row + (back ? -1 : 1));
    }
    return true;
}

// Events of the controls and of the grid beneath them.

bool SheetEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_grid || watched == m_grid->viewport())
        return GridEvent(event) || QWidget::eventFilter(watched, event);
    if (watched == m_txtFirst || watched == m_txtEnd) {
        if (event->type() != QEvent::FocusIn || m_moving)
            return false;
        if (watched == m_txtFirst)
            txtFirst_GotFocus();
        else
            GoTo(Rows());
        return true;
    }
    const int row = m_rowOf.value(watched);
    if (row == 0 || row != m_row)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        return SwallowsKey(row, static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        KeyReleased(row, *static_cast<QKeyEvent*>(event));
        return false;
    case QEvent::Wheel:
        // The wheel scrolls the sheet and never turns a list over by accident.
        event->ignore();
        return LineEdit(row) == nullptr;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

bool SheetEditor::GridEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Keys that a control did not use go to the window, not to the grid under it.
        event->ignore();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return true;
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int row = m_grid->rowAt(mouse->position().toPoint().y()) + 1;
        if (mouse->button() == Qt::LeftButton && row > 0)
            GoTo(row);
        return true;
    }
    case QEvent::FontChange:
    case QEvent::StyleChange:
        QMetaObject::invokeMethod(this, &SheetEditor::FitRows, Qt::QueuedConnection);
        return false;
    case QEvent::Resize:
        QMetaObject::invokeMethod(this, &SheetEditor::KeepInView, Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
}

void SheetEditor::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    FitRows();
    if (m_row == 0)
        txtFirst_GotFocus();
}
