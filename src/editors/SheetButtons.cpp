#include "editors/SheetButtons.h"

#include "ui/widgets/HoverButton.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QBoxLayout>
#include <QShortcut>

using namespace Qt::StringLiterals;

HoverButtonArray* AddSheetButtons(QWidget& window, QBoxLayout& layout)
{
    using namespace SheetButton;
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::Spacing);
    row->addStretch();
    auto* buttons = new HoverButtonArray(window, *row,
                                         {{Cancel, u"Cancel"_s, u"Cancel"_s},
                                          {SaveAndExit, u"SaveAndExit"_s, u"Save and exit"_s},
                                          {SaveNAdd, u"SaveNAdd"_s, u"Save and add"_s}});
    row->addStretch();
    layout.addLayout(row);
    buttons->SetTakesFocus(false);
    const std::pair<int, QString> keys[] = {{Cancel, u"Alt+C"_s}, {SaveAndExit, u"Alt+S"_s}, {SaveNAdd, u"Alt+A"_s}};
    for (const auto& [index, key] : keys) {
        auto* shortcut = new QShortcut(QKeySequence(key), &window);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, buttons, [buttons, i = index] { Q_EMIT buttons->Click(i); });
        HoverButton* button = buttons->Button(index);
        button->setToolTip(u"%1 (%2)"_s.arg(button->text(), key));
    }
    return buttons;
}
