#include "ui/widgets/HoverButtonArray.h"

#include "ui/widgets/HoverButton.h"

#include <QBoxLayout>
#include <QtDebug>

using namespace Qt::StringLiterals;

HoverButtonArray::HoverButtonArray(QWidget& window, std::vector<HoverPicture> table, const QString& stem)
    : QObject(&window), m_table(std::move(table))
{
    const QList<HoverButton*> found = window.findChildren<HoverButton*>();
    for (const HoverPicture& line : m_table) {
        const QString name = stem + u'_' + QString::number(line.Index);
        const auto button = std::find_if(found.begin(), found.end(), [&name](const HoverButton* candidate) {
            return candidate->objectName().compare(name, Qt::CaseInsensitive) == 0;
        });
        if (button == found.end())
            qWarning("%s has no button %s.", qUtf8Printable(window.objectName()), qUtf8Printable(name));
        else
            Take(*button, line.Index);
    }
    LoadBitMaps();
}

HoverButtonArray::HoverButtonArray(QWidget& window, QBoxLayout& layout, std::vector<HoverPicture> table,
                                   const QString& stem)
    : QObject(&window), m_table(std::move(table))
{
    for (const HoverPicture& line : m_table) {
        auto* button = new HoverButton(&window);
        button->setObjectName(stem + u'_' + QString::number(line.Index));
        layout.addWidget(button);
        Take(button, line.Index);
    }
    LoadBitMaps();
}

void HoverButtonArray::Take(HoverButton* button, int index)
{
    button->SetIndex(index);
    m_buttons.insert(index, button);
    connect(button, &HoverButton::Click, this, &HoverButtonArray::Click);
    connect(button, &HoverButton::MouseDownAt, this, &HoverButtonArray::MouseDown);
    connect(button, &HoverButton::MouseUpAt, this, &HoverButtonArray::MouseUp);
    connect(button, &HoverButton::Hovered, this, [this](int hovered, bool lit) {
        if (lit) {
            RemoveHighlights();
            m_lit = hovered;
        } else if (m_lit == hovered) {
            m_lit = 0;
        }
    });
}

void HoverButtonArray::LoadBitMaps()
{
    for (const HoverPicture& line : m_table)
        SetPicture(line.Index, line.Picture, line.Caption);
}

void HoverButtonArray::SetPicture(int index, const QString& picture, const QString& caption)
{
    if (HoverButton* button = Button(index)) {
        button->SetPicture(picture);
        button->SetCaption(caption);
    }
}

void HoverButtonArray::RemoveHighlights()
{
    if (HoverButton* button = Button(std::exchange(m_lit, 0)))
        button->SetLit(false);
}

void HoverButtonArray::SetEnabled(int index, bool enabled)
{
    if (HoverButton* button = Button(index))
        button->setEnabled(enabled);
}

void HoverButtonArray::SetVisible(int index, bool visible)
{
    if (HoverButton* button = Button(index))
        button->setVisible(visible);
}

void HoverButtonArray::SetTakesFocus(bool takes)
{
    for (HoverButton* button : std::as_const(m_buttons))
        button->SetTakesFocus(takes);
}
