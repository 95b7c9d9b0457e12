#pragma once

#include "core/User.h"

#include <QMessageBox>

/// One message box. Its text is shown as it is, never as markup; it wraps, scrolls where it would outgrow the screen,
/// and can be copied. The first button is the default. A Yes/No box has no Esc and no close box.
class MessageWindow : public QMessageBox
{
    Q_OBJECT

public:
    MessageWindow(const QString& text, Buttons buttons, ::Icon icon, const QString& title);

    /// Shows the box over `owner` and waits for the answer.
    [[nodiscard]] Answer Ask(QWidget* owner);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void ScrollLongText(const QString& text);

    Buttons m_buttons;
    QRect m_over;
};
