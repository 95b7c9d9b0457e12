#pragma once

#include "ui/widgets/HoverButton.h"

#include <QColor>

/// A picture to press, without words: it has a border while it is down, and may stand on a colour of its own. What it
/// does is said elsewhere while the pointer or the focus is on it, and in its tooltip.
class PictureBox : public HoverButton
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// The accessible name and the tooltip.
    void SetWords(const QString& words);

    [[nodiscard]] QColor BackColor() const { return m_backColor; }
    void SetBackColor(const QColor& color);
    [[nodiscard]] bool HasBorder() const { return isDown(); }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The pointer came over it, or the focus by a key.
    void MouseMoveOver();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The picture in the one colour that reads on a colour of its own.
    [[nodiscard]] QPixmap OnBackColor() const;

    QColor m_backColor;
};
