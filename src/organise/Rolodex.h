#pragma once

#include "model/faces.h"

#include <QWidget>

class Contact;
class Grid;
class QAction;
class QListWidget;
class QMenu;

/// The browser over all contacts by the first letter of the last name, and over the Selected ones on request.
class Rolodex : public QWidget, public RolodexFace
{
    Q_OBJECT

public:
    Rolodex();

    /// Shows the Selected contacts in place of a letter's.
    void mnuSelectedToRolodex_Click();

    // RolodexFace
    void SelectInRolodex(bool selecting) override;
    void UnselectInRolodex(const std::vector<Long>& contactIDs) override;
    void ForgetSelected() override;
    void RemoveContacts(const std::vector<Long>& contactIDs) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenu();
    void ConnectLetters();
    void lstRolodex_Click();
    void GridRolodex_MouseUp(Qt::MouseButton button, QPoint position);
    void GridRolodex_DblClick(int row);
    /// Makes the contact of the selected row current, and selects or unselects it.
    void mnuRolodex_Click(bool select);

    /// Empties the grid and gives it the columns of a view.
    void ShowLetterColumns();
    void ShowSelectedColumns();
    void AddSelectedRow(const Contact& contact);

    Face<RolodexFace>::Registration m_face{*this};
    QListWidget* m_letters;
    Grid* m_grid;
    QMenu* m_menu = nullptr;
    QAction* m_select = nullptr;
    QAction* m_unselect = nullptr;
    /// The grid shows the Selected contacts; otherwise those of a letter.
    bool m_showsSelected = false;
};
