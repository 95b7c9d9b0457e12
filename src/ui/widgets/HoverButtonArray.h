#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <vector>

class HoverButton;
class QBoxLayout;
class QWidget;

/// One line of a window's table of buttons.
struct HoverPicture
{
    int Index;
    QString Picture;
    QString Caption;
};

/// The picture buttons of a window, told apart by their index alone. At most one is lit.
/// A window's .ui file holds HoverButtons named <stem>_<index> (the stem without case); the window's table says what
/// they show.
class HoverButtonArray : public QObject
{
    Q_OBJECT

public:
    /// Takes the buttons of the table from a window; a button that the window lacks is a warning.
    HoverButtonArray(QWidget& window, std::vector<HoverPicture> table,
                     const QString& stem = QStringLiteral("cmdButton"));
    /// Makes the buttons of the table, in its order, in a layout of the window.
    HoverButtonArray(QWidget& window, QBoxLayout& layout, std::vector<HoverPicture> table,
                     const QString& stem = QStringLiteral("cmdButton"));

    /// Sets each button to the plain picture and the caption of the table.
    void LoadBitMaps();
    /// Gives a button of two states its other picture and caption.
    void SetPicture(int index, const QString& picture, const QString& caption);
    /// The index of the lit button, 0 for none.
    [[nodiscard]] int LitIndex() const { return m_lit; }
    void RemoveHighlights();
    /// Null where there is no such button.
    [[nodiscard]] HoverButton* Button(int index) const { return m_buttons.value(index); }
    void SetEnabled(int index, bool enabled);
    void SetVisible(int index, bool visible);
    /// See HoverButton::SetTakesFocus; for all buttons.
    void SetTakesFocus(bool takes);

Q_SIGNALS:
    void Click(int index);
    void MouseDown(int index);
    void MouseUp(int index);

private:
    void Take(HoverButton* button, int index);

    std::vector<HoverPicture> m_table;
    QHash<int, HoverButton*> m_buttons;
    int m_lit = 0;
};
