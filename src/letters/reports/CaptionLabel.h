#pragma once

#include <QLabel>

/// A text that the person changes by clicking on it; red while the pointer is over it. Tab reaches it, Space and Enter
/// press it.
class CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CaptionLabel(QWidget* parent = nullptr);

    void RemoveHighlight();

Q_SIGNALS:
    void MouseUp();

protected:
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
