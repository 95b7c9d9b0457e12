#pragma once

#include <QTreeWidget>
#include <functional>

/// trvCategories as a control: nodes with key and tag, known by the order in which they were added; clicks, keys and
/// label edits as events. A removal moves the selection to the next sibling, without one to the parent, from a last
/// root to the one before it, and raises no click.
class CategoryTreeView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CategoryTreeView(QWidget* parent = nullptr);

    /// Adds a node under `parent` (a root where it is null). Raises 35602 where the key is there already.
    QTreeWidgetItem* AddNode(QTreeWidgetItem* parent, const QString& key, const QString& text);
    /// Removes a node and its children.
    void RemoveNode(QTreeWidgetItem* node);
    void RemoveAllNodes();
    /// The nodes in the order of adding.
    [[nodiscard]] const std::vector<QTreeWidgetItem*>& Nodes() const { return m_nodes; }
    [[nodiscard]] QTreeWidgetItem* FindKey(const QString& key) const;

    [[nodiscard]] static QString KeyOf(const QTreeWidgetItem* node);
    [[nodiscard]] static QString TagOf(const QTreeWidgetItem* node);
    static void SetTag(QTreeWidgetItem* node, const QString& tag);

    /// Opens the label of the selected node for a change.
    void StartLabelEdit();

    /// Is asked what a label edit should do; false keeps the old text.
    std::function<bool(const QString& newText)> AfterLabelEdit;

Q_SIGNALS:
    /// The person clicked a node, or moved to it by keys.
    void NodeClick();
    void NodeDblClick();
    void MouseUp(Qt::MouseButton button, QPoint globalPosition);
    void KeyUp(int code);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Forget(QTreeWidgetItem* node);

    std::vector<QTreeWidgetItem*> m_nodes;
};
