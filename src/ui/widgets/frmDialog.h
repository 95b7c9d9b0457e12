#pragma once

#include "ui/widgets/Form.h"

#include <memory>

namespace Ui {
class frmDialog;
}

/// Asks for one line of text. Enter anywhere in the window is Ok; Esc and the close box are Cancel.
class frmDialog : public Form
{
    Q_OBJECT

public:
    /// `maxLength` in UTF-16 units; 0 sets no limit.
    explicit frmDialog(const QString& caption, int maxLength = 0);
    ~frmDialog() override;

    /// What was typed when the window went by Ok; "" otherwise.
    [[nodiscard]] const QString& Reply() const { return m_reply; }

protected:
    bool KeyPreview(QKeyEvent* event) override;
    void EscapePressed() override;

private:
    void cmdButton_Click(int index);

    std::unique_ptr<Ui::frmDialog> m_ui;
    QString m_reply;
};
