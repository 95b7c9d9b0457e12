#pragma once

#include "ui/widgets/Form.h"

class QTreeWidget;
class QTreeWidgetItem;

/// The small chooser of a target. Its reply stands in gReturnValue: "Cancelled"; for a category the target's ID; for
/// contacts the position of the target in its category's Subs, "-", and the category's ID.
class frmMove : public Form
{
    Q_OBJECT

public:
    /// What is being moved.
    enum class What
    {
        Contact,
        Category
    };

    /// `movedName`: the name of the subcategory that moves; a category of that very name is not offered.
    frmMove(What what, const QString& caption, const QString& movedName = {});
    ~frmMove() override;

protected:
    void Form_Activate() override;
    void EscapePressed() override;

private:
    void LoadCategories();
    void cmdButton_Click(int index);
    void OkClick();

    What m_what;
    QString m_movedName;
    QTreeWidget* m_tree;
};
