#pragma once

#include "model/faces.h"

#include <QWidget>

class CategoryTreeView;
class frmMain;
class QTreeWidgetItem;

/// The left side of the main window: the tree of categories with its menu mnuCategory. It sets the current category and
/// subcategory, opens the contact list, and lets the person create, rename, move and delete nodes.
class CategoryTree : public QWidget, public TreeFace
{
    Q_OBJECT

public:
    explicit CategoryTree(frmMain& window);

    /// Fills the tree from gCategories; runs once, at start.
    void FillTree();

    /// What a click on a node does: it becomes current, and the window's title tells its contacts. `node` may be null.
    void trvCategories_NodeClick(QTreeWidgetItem* node);

    // TreeFace
    [[nodiscard]] int NodeCount() const override;
    [[nodiscard]] QString SelectedKey() const override;
    [[nodiscard]] QString SelectedParentKey() const override;
    [[nodiscard]] QString SelectedText() const override;
    bool ItsASub() override;
    bool FindInTree(const QString& key) override;
    void AddSubNode(Long parentID, const QString& text, Long id) override;
    void CreateNewCategory(const QString& name) override;
    void ClearNodes() override;
    void ShowTree() override;
    void AddRootNode(const QString& text, Long id) override;
    void trvCategories_DblClick() override;
    void ShowSubContactCount() override;

private:
    void PlugMenu();
    void mnuCategory_Click();
    void ShowSubcategoryMenu();
    void trvCategories_MouseUp(Qt::MouseButton button, QPoint position);
    bool trvCategories_AfterLabelEdit(const QString& newText);
    void mnuCatCreate_Click();
    void mnuSubCreate_Click();
    void mnuCatDelete_Click();
    void mnuViewContacts_Click();
    void mnuNewContact_Click();

    void RemoveThisCategory();
    void RemoveThisSubCategory();
    void DeleteCurrentCategory(QTreeWidgetItem* node);
    void NodeMove();
    void MoveNode(Long newParentID);
    void RehangNode(QTreeWidgetItem* node, Long newParentID);

    /// The first node, in the order of adding, whose key without its letter is this ID. The letter plays no part, which
    /// is meant: of a category and a subcategory of equal ID the one that was added first wins.
    [[nodiscard]] QTreeWidgetItem* LocateNode(Long id) const;
    [[nodiscard]] QTreeWidgetItem* Selected() const;

    Face<TreeFace>::Registration m_face{*this};
    frmMain& m_window;
    CategoryTreeView* m_tree;
};
