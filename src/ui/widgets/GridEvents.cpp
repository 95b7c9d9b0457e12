// The person's keys and mouse.
#include "core/FieldRules.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/GridModel.h"
#include "ui/widgets/GridSelection.h"
#include "ui/widgets/KeyCodes.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <algorithm>
#include <utility>

/// Runs a handler of the person's key or mouse, then raises SelectionChange if it moved or highlighted anything. False
/// when the grid is gone afterwards.
template <typename Handler>
bool Grid::ByPerson(Handler&& handler)
{
    const QPointer<Grid> alive(this);
    ++m_personActs;
    handler();
    if (alive.isNull())
        return false;
    if (--m_personActs == 0 && std::exchange(m_personChanged, false))
        Q_EMIT SelectionChange();
    return !alive.isNull();
}

void Grid::keyPressEvent(QKeyEvent* event)
{
    const QPointer<Grid> alive(this);
    const int ascii = KeyAscii(*event);
    if (event->key() == Qt::Key_Up && event->modifiers() == Qt::AltModifier) {
        if (SelectedCol() != 0)
            Q_EMIT ColumnClick(SelectedCol());
        return;
    }
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        AskForMenu();
        return;
    }
    // An Enter that is still held down, from the boxes and windows before, opens nothing in the list beneath.
    if (event->isAutoRepeat() && ascii == Key::Enter)
        return;
    Q_EMIT KeyDown(KeyCode(*event));
    if (!alive.isNull() && ascii != 0)
        Q_EMIT KeyPress(ascii);
    if (!alive.isNull())
        ByPerson([this, event] { QTableView::keyPressEvent(event); });
}

void Grid::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse's own is told by MouseUp.
    if (event->reason() == QContextMenuEvent::Keyboard)
        AskForMenu();
    else
        event->ignore();
}

void Grid::AskForMenu()
{
    const bool alive = ByPerson([this] {
        if (!currentIndex().isValid())
            return;
        scrollTo(currentIndex());
        m_lateHighlight = false;
        if (SelectionCount() < 2)
            m_selection->select(currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    });
    if (!alive)
        return;
    const QRect first = visualRect(currentIndex().siblingAtColumn(std::max(0, columnAt(0))));
    Q_EMIT MenuKey(viewport()->mapToGlobal(first.isValid() ? first.bottomLeft() : QPoint()));
}

void Grid::keyboardSearch(const QString& text)
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&Grid::KeyPress)))
        QTableView::keyboardSearch(text);
}

void Grid::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex under = indexAt(event->position().toPoint());
    const bool alive = ByPerson([this, event, &under] {
        if (!under.isValid())
            return;
        m_lateHighlight = false;
        if (event->button() == Qt::LeftButton)
            QTableView::mousePressEvent(event);
        else if (event->button() == Qt::RightButton && SelectionCount() < 2)
            m_selection->setCurrentIndex(under, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    });
    if (alive)
        Q_EMIT MouseDown(event->button());
}

void Grid::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = event->button();
    const QPoint position = event->globalPosition().toPoint();
    if (ByPerson([this, event] { QTableView::mouseReleaseEvent(event); }))
        Q_EMIT MouseUp(button, position);
}

void Grid::mouseMoveEvent(QMouseEvent* event)
{
    if (ByPerson([this, event] { QTableView::mouseMoveEvent(event); }))
        Q_EMIT MouseMove();
}

void Grid::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex under = indexAt(event->position().toPoint());
    const bool left = event->button() == Qt::LeftButton;
    const int row = under.row() + 1;
    const int column = under.column() + 1;
    if (ByPerson([this, event] { QTableView::mouseDoubleClickEvent(event); }) && left && row > 0)
        Q_EMIT DblClick(row, column);
}

void Grid::timerEvent(QTimerEvent* event)
{
    // A drag beyond the edge goes on scrolling and highlighting by a timer.
    ByPerson([this, event] { QTableView::timerEvent(event); });
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    m_personChanged |= m_personActs > 0 && m_codeActs == 0;
    QTableView::currentChanged(current, previous);
}

void Grid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    m_personChanged |= m_personActs > 0 && m_codeActs == 0;
    QTableView::selectionChanged(selected, deselected);
}
