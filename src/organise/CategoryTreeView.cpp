#include "organise/CategoryTreeView.h"

#include "core/RunTimeError.h"
#include "ui/widgets/KeyCodes.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int keyRole = Qt::UserRole;
constexpr int tagRole = Qt::UserRole + 1;

/// Asks the tree before a label takes its new text.
class LabelDelegate : public QStyledItemDelegate
{
public:
    explicit LabelDelegate(CategoryTreeView* tree) : QStyledItemDelegate(tree), m_tree(tree) {}

    bool eventFilter(QObject* editor, QEvent* event) override
    {
        // Tab ends the edit like Enter. Going on to the next label would rename one node while another is current.
        const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
        if (key != nullptr && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)) {
            auto* label = qobject_cast<QWidget*>(editor);
            Q_EMIT commitData(label);
            Q_EMIT closeEditor(label);
            return true;
        }
        return QStyledItemDelegate::eventFilter(editor, event);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setAccessibleName(u"Name"_s);
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        const auto* line = qobject_cast<QLineEdit*>(editor);
        if (line == nullptr || !m_tree->AfterLabelEdit)
            return;
        const QString text = line->text();
        if (m_tree->AfterLabelEdit(text))
            model->setData(index, text, Qt::EditRole);
    }

private:
    CategoryTreeView* m_tree;
};

} // namespace

CategoryTreeView::CategoryTreeView(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(u"trvCategories"_s);
    setAccessibleName(u"Categories"_s);
    setHeaderHidden(true);
    setColumnCount(1);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setItemDelegate(new LabelDelegate(this));
    setExpandsOnDoubleClick(true);
    setUniformRowHeights(true);
}

QTreeWidgetItem* CategoryTreeView::AddNode(QTreeWidgetItem* parent, const QString& key, const QString& text)
{
    if (FindKey(key) != nullptr)
        throw RunTimeError(ErrorNumber::KeyNotUnique);
    auto* node = parent != nullptr ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    node->setText(0, text);
    node->setData(0, keyRole, key);
    node->setFlags(node->flags() | Qt::ItemIsEditable);
    m_nodes.push_back(node);
    return node;
}

void CategoryTreeView::RemoveNode(QTreeWidgetItem* node)
{
    QTreeWidgetItem* parent = node->parent();
    const int index = parent != nullptr ? parent->indexOfChild(node) : indexOfTopLevelItem(node);
    const auto sibling = [&](int at) { return parent != nullptr ? parent->child(at) : topLevelItem(at); };
    QTreeWidgetItem* next = sibling(index + 1);
    if (next == nullptr)
        next = parent != nullptr ? parent : sibling(index - 1);
    const bool selectionGoes = currentItem() == node || (currentItem() != nullptr && currentItem()->parent() == node);
    Forget(node);
    if (selectionGoes)
        setCurrentItem(next);
    delete node;
}

void CategoryTreeView::RemoveAllNodes()
{
    m_nodes.clear();
    clear();
}

void CategoryTreeView::Forget(QTreeWidgetItem* node)
{
    for (int i = 0; i < node->childCount(); ++i)
        Forget(node->child(i));
    std::erase(m_nodes, node);
}

QTreeWidgetItem* CategoryTreeView::FindKey(const QString& key) const
{
    const auto found = std::ranges::find_if(m_nodes, [&](const QTreeWidgetItem* node) { return KeyOf(node) == key; });
    return found != m_nodes.end() ? *found : nullptr;
}

QString CategoryTreeView::KeyOf(const QTreeWidgetItem* node)
{
    return node->data(0, keyRole).toString();
}

QString CategoryTreeView::TagOf(const QTreeWidgetItem* node)
{
    return node->data(0, tagRole).toString();
}

void CategoryTreeView::SetTag(QTreeWidgetItem* node, const QString& tag)
{
    node->setData(0, tagRole, tag);
}

void CategoryTreeView::StartLabelEdit()
{
    if (currentItem() != nullptr)
        editItem(currentItem());
}

void CategoryTreeView::focusInEvent(QFocusEvent* event)
{
    const bool chosen = currentIndex().isValid();
    QTreeWidget::focusInEvent(event);
    // The focus alone chooses nothing: what is current was clicked, or moved to by keys.
    if (!chosen)
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

void CategoryTreeView::mousePressEvent(QMouseEvent* event)
{
    QTreeWidget::mousePressEvent(event);
    QTreeWidgetItem* node = itemAt(event->pos());
    if (node == nullptr)
        return;
    setCurrentItem(node);
    Q_EMIT NodeClick();
}

void CategoryTreeView::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeWidget::mouseReleaseEvent(event);
    Q_EMIT MouseUp(event->button(), event->globalPosition().toPoint());
}

void CategoryTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->pos()) != nullptr)
        Q_EMIT NodeDblClick();
}

void CategoryTreeView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState) {
        if (currentItem() != nullptr)
            Q_EMIT NodeDblClick();
        return;
    }
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    if (currentItem() != nullptr && currentItem() != before)
        Q_EMIT NodeClick();
}

void CategoryTreeView::keyReleaseEvent(QKeyEvent* event)
{
    QTreeWidget::keyReleaseEvent(event);
    if (state() != EditingState && !event->isAutoRepeat())
        Q_EMIT KeyUp(KeyCode(*event));
}

void CategoryTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse has its own event; this is the menu key.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect place = currentItem() != nullptr ? visualItemRect(currentItem()) : QRect(0, 0, 1, 1);
        Q_EMIT MouseUp(Qt::RightButton, viewport()->mapToGlobal(place.bottomLeft()));
    }
}
