#pragma once

#include "ui/widgets/Form.h"

#include <memory>

class Contact;
class HoverButtonArray;
namespace Ui {
class frmAlertContacts;
}

/// Asks for the contact to set an alert for: any in gAlertMode 1, one with alerts in 2. gReturnValue is its RecID, ""
/// where the person cancelled. Enter and a double click on a row are Ok; Esc and the close box are Cancel.
class frmAlertContacts : public Form
{
    Q_OBJECT

public:
    frmAlertContacts();
    ~frmAlertContacts() override;

protected:
    void Form_Activate() override;
    void EscapePressed() override;

private:
    void Form_Load();
    void LoadBitMaps();
    void LoadColumns();
    void LoadAllAlerts();
    void LoadAllContacts();
    void AddContact(const Contact& contact, const QString& name, const QString& count);
    void ShowRows();
    void Grid1_SelectionChange();
    void OptSort_Click(int index);
    void cmdAscDesc_Click();
    void SortGrid();
    void cmdButton_Click(int index);
    void OkClick();

    std::unique_ptr<Ui::frmAlertContacts> m_ui;
    HoverButtonArray* m_buttons = nullptr;
    int m_sortColumn = 1;
    bool m_ascending = false;
};
