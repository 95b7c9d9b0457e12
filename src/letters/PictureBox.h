#pragma once

#include <QAbstractButton>
#include <QColor>

/// A picture to press: it has a border while it is down, and may stand on a colour of its own. What it does stands
/// elsewhere while the pointer or the focus is on it, and in its tooltip.
class PictureBox : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// The picture's name among the resources.
    void SetPicture(const QString& name);
    /// The accessible name and the tooltip.
    void SetWords(const QString& words);

    [[nodiscard]] QColor BackColor() const { return m_backColor; }
    void SetBackColor(const QColor& color);
    [[nodiscard]] bool HasBorder() const { return isDown(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The pointer moves over it, or the focus came by a key.
    void MouseMoveOver();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The picture in the one colour that reads on a colour of its own.
    [[nodiscard]] QPixmap OnBackColor() const;

    QString m_picture;
    QColor m_backColor;
};
