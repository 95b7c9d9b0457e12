#include "ui/widgets/Theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

/// The sign of a message box: a letter on a disc.
QIcon Sign(const QString& letter, const QColor& color)
{
    QIcon icon;
    for (const int size : {32, 48, 64, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        const qreal rim = size / 16.0;
        const QRectF disc = QRectF(pixmap.rect()).adjusted(rim, rim, -rim, -rim);
        painter.drawEllipse(disc);
        QFont font = QApplication::font();
        font.setPixelSize(size * 5 / 8);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(qGray(color.rgb()) > 140 ? QColor(0x10151C) : QColor(Qt::white));
        painter.drawText(disc, Qt::AlignCenter, letter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

/// Fusion with our spacing, and with a focus that is never left to guessing.
class ThemeStyle final : public QProxyStyle
{
public:
    ThemeStyle() : QProxyStyle(u"Fusion"_s) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        switch (metric) {
        case PM_MenuPanelWidth:
            return 1; // the rim of a menu is drawn
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return Theme::Spacing;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override
    {
        // A list drops down under its field; as a menu it would cover the screen from top to bottom.
        if (hint == SH_ComboBox_Popup)
            return 0;
        // The style's own small signs on Ok and Cancel are of another family than our pictures.
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        const QSize needed = QProxyStyle::sizeFromContents(type, option, size, widget);
        constexpr int air = 6;
        // The rows of a table have a height of their own.
        const bool inList = type == CT_ItemViewItem && qobject_cast<const QTableView*>(widget) == nullptr;
        return inList ? needed + QSize(0, air) : needed;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
            focus != nullptr && element == PE_FrameFocusRect) {
            // Fusion hides the frame until a key was used, and fills it, which washes out the text beneath.
            const QColor accent = option->palette.color(QPalette::Active, QPalette::Highlight);
            const bool onAccent = focus->backgroundColor == accent;
            painter->save();
            painter->setPen(onAccent ? option->palette.color(QPalette::Active, QPalette::HighlightedText) : accent);
            painter->setBrush(Qt::NoBrush);
            painter->setOpacity(onAccent ? 0.6 : 1);
            painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
            painter->restore();
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox || element == PE_FrameMenu)
            DrawRim(element == PE_IndicatorRadioButton, *option, *painter);
    }

    /// Fusion's own rim around an option or a menu is darker than its ground, and can't be seen on a dark one.
    static void DrawRim(bool round, const QStyleOption& option, QPainter& painter)
    {
        if (option.palette.color(QPalette::Window).lightness() >= 128)
            return;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(option.palette.color(QPalette::PlaceholderText));
        painter.setBrush(Qt::NoBrush);
        const QRectF rim = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (round)
            painter.drawEllipse(rim);
        else
            painter.drawRect(rim);
        painter.restore();
    }

    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override
    {
        switch (picture) {
        case SP_MessageBoxQuestion:
            return Sign(u"?"_s, QApplication::palette().color(QPalette::Active, QPalette::Highlight));
        case SP_MessageBoxInformation:
            return Sign(u"i"_s, QApplication::palette().color(QPalette::Active, QPalette::Highlight));
        case SP_MessageBoxCritical:
            return Sign(u"!"_s, QColor(0xC62828));
        default:
            return QProxyStyle::standardIcon(picture, option, widget);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        const bool frame = element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
        if (!frame || !widget->hasFocus())
            return;
        painter->setPen(option->palette.color(QPalette::Active, QPalette::Highlight));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
};

/// The colours of one scheme.
struct Shades
{
    QColor Accent, OnAccent, Window, Base, Alternate, Text, Button, Dim, IdleHighlight, Tip;
};

const Shades& LightShades()
{
    static const Shades shades{0x2F6DB5, Qt::white, 0xF5F6F8, Qt::white, 0xF0F3F8,
                               0x1E2430, 0xECEFF3,  0x6F7989, 0xC6D8EE,  0xFFFFFF};
    return shades;
}

const Shades& DarkShades()
{
    static const Shades shades{0x6FA8E8, 0x10151C, 0x2A2F37, 0x1C2026, 0x21262D,
                               0xE6E9EF, 0x3A414C, 0x939DAD, 0x38506D, 0x2D333C};
    return shades;
}

QPalette PaletteOf(const Shades& shades)
{
    QPalette palette(shades.Button, shades.Window);
    palette.setColor(QPalette::Base, shades.Base);
    palette.setColor(QPalette::AlternateBase, shades.Alternate);
    palette.setColor(QPalette::ToolTipBase, shades.Tip);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, shades.Text);
        palette.setColor(QPalette::Disabled, role, shades.Dim);
    }
    palette.setColor(QPalette::PlaceholderText, shades.Dim);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Link, shades.Accent);
    palette.setColor(QPalette::LinkVisited, shades.Accent);
    palette.setColor(QPalette::Highlight, shades.Accent);
    palette.setColor(QPalette::HighlightedText, shades.OnAccent);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, shades.IdleHighlight);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, shades.Text);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.Button);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, shades.Dim);
    return palette;
}

} // namespace

void Theme::Apply(QApplication& application, Scheme scheme)
{
    // The desktop's own palette is the only sign of its colour scheme; it must be read before ours goes over it.
    const bool systemIsDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    const bool dark = scheme == Scheme::Dark || (scheme == Scheme::System && systemIsDark);
    QApplication::setStyle(new ThemeStyle);
    QApplication::setPalette(PaletteOf(dark ? DarkShades() : LightShades()));
    QObject::connect(&application, &QApplication::focusChanged, &application, [](QWidget* old, QWidget* now) {
        for (QWidget* widget : {old, now})
            if (widget != nullptr)
                widget->update();
    });
}
