#pragma once

#include "core/Dictionary.h"
#include "model/LabelType.h"
#include "ui/widgets/Form.h"

#include <memory>

class HoverButtonArray;
class QListWidget;
namespace Ui {
class frmLabelType;
}

/// "Label Selection": the product and the number of the labels to print on. Ok keeps the choice in the settings; Enter
/// and a double click on a number are Ok, Esc is Cancel.
class frmLabelType : public Form
{
    Q_OBJECT

public:
    frmLabelType();
    ~frmLabelType() override;

protected:
    bool KeyPreview(QKeyEvent* event) override;
    void EscapePressed() override;

private:
    void Form_Load();
    void LoadLabelData();
    void FillListBoxes();
    void ShowChoice();
    void lstProducts_Click();
    void cmdButton_Click(int index);
    void Choose();

    std::unique_ptr<Ui::frmLabelType> m_ui;
    HoverButtonArray* m_buttons = nullptr;
    Dictionary<QString, LabelType> m_types;
};
