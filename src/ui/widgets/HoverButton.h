#pragma once

#include <QAbstractButton>

/// A flat picture button: plain, lit while the pointer is over it, low while it is pressed. The caption says the action
/// in words. Tab reaches it, Space and Enter press it, and its focus shows. In a .ui file: a promoted widget named
/// cmdButton_<index>.
class HoverButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(int index READ Index WRITE SetIndex)
    Q_PROPERTY(QString picture READ Picture WRITE SetPicture)
    Q_PROPERTY(bool captionBeside READ CaptionBeside WRITE SetCaptionBeside)
    Q_PROPERTY(bool takesFocus READ TakesFocus WRITE SetTakesFocus)

public:
    explicit HoverButton(QWidget* parent = nullptr);

    [[nodiscard]] int Index() const { return m_index; }
    void SetIndex(int index) { m_index = index; }
    [[nodiscard]] const QString& Picture() const { return m_picture; }
    /// The name of the plain picture; the High and Low forms follow from it.
    void SetPicture(const QString& name);
    /// The words under (or beside) the picture; they are the accessible name and the tooltip too.
    void SetCaption(const QString& caption);
    [[nodiscard]] bool CaptionBeside() const { return m_captionBeside; }
    void SetCaptionBeside(bool beside);
    /// Whether a press with the mouse moves the focus here, so that the field being left commits; it does at first. Tab
    /// always does.
    [[nodiscard]] bool TakesFocus() const { return focusPolicy() == Qt::StrongFocus; }
    void SetTakesFocus(bool takes) { setFocusPolicy(takes ? Qt::StrongFocus : Qt::TabFocus); }

    [[nodiscard]] bool IsLit() const { return m_lit; }
    void SetLit(bool lit);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void Click(int index);
    void MouseDownAt(int index);
    void MouseUpAt(int index);
    /// The pointer came or went.
    void Hovered(int index, bool lit);

protected:
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Shows the focus where the button has it.
    void DrawFocus(QPainter& painter) const;

private:
    [[nodiscard]] QPixmap CurrentPixmap() const;

    int m_index = 0;
    QString m_picture;
    bool m_captionBeside = false;
    bool m_lit = false;
};
