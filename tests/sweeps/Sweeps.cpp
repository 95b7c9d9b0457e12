#include "sweeps/Sweeps.h"

#include "support/Windows.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/// Controls of Qt's own that belong to another control: the person meets that one.
bool IsPartOfAnother(const QWidget* control)
{
    const QString name = control->objectName();
    return name.startsWith("qt_"_L1) && name != "qt_msgbox_label"_L1;
}

/// What Tab comes to in a group of options is the chosen one; the arrow keys walk on from there.
bool IsLeftToTheArrows(const QWidget* control)
{
    const auto* option = qobject_cast<const QRadioButton*>(control);
    return option != nullptr && !option->isChecked();
}

QList<QWidget*> Shown(const QWidget& window)
{
    QList<QWidget*> shown;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->isVisible() && control->window() == &window && !IsPartOfAnother(control))
            shown << control;
    }
    return shown;
}

bool MustHaveName(const QWidget* control)
{
    const bool isView = qobject_cast<const QAbstractItemView*>(control) != nullptr &&
                        qobject_cast<const QHeaderView*>(control) == nullptr && control->focusPolicy() != Qt::NoFocus;
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    // The corner of a table and the arrows of a full tab bar are parts of those.
    const bool isButton = button != nullptr && (button->focusPolicy() != Qt::NoFocus || !button->text().isEmpty());
    return isView || isButton || qobject_cast<const QLineEdit*>(control) != nullptr ||
           qobject_cast<const QComboBox*>(control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(control) != nullptr ||
           qobject_cast<const QProgressBar*>(control) != nullptr || control->objectName().startsWith("Panel"_L1);
}

QString Shortage(const QWidget* control, QSize room, QSize needed)
{
    return u"%1: %2 x %3, needs %4 x %5"_s.arg(NameOf(control))
        .arg(room.width())
        .arg(room.height())
        .arg(needed.width())
        .arg(needed.height());
}

void AddIfCut(QStringList& cut, const QWidget* control, QSize room, QSize needed)
{
    if (room.width() < needed.width() || room.height() < needed.height())
        cut << Shortage(control, room, needed);
}

QSize Needed(const QLabel& label)
{
    if (!label.wordWrap())
        return label.sizeHint();
    return {label.minimumSizeHint().width(), label.heightForWidth(label.width())};
}

void AddCutEntries(QStringList& cut, const QMenuBar& bar)
{
    // What has no room stands behind the arrow at the end of the bar.
    const auto* more = bar.findChild<QWidget*>(u"qt_menubar_ext_button"_s);
    const bool hasMore = more != nullptr && more->isVisible();
    for (QAction* entry : bar.actions()) {
        const QRect place = bar.actionGeometry(entry);
        const int width = bar.fontMetrics().size(Qt::TextShowMnemonic, entry->text()).width();
        if (entry->isVisible() && !hasMore && (!bar.rect().contains(place) || place.width() < width))
            cut << u"menu "_s + entry->text();
    }
}

void AddCutTabs(QStringList& cut, const QTabBar& bar)
{
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QString text = bar.tabText(tab);
        const bool whole = bar.tabRect(tab).width() >= bar.fontMetrics().size(Qt::TextShowMnemonic, text).width() + 8;
        if (!whole)
            cut << u"tab "_s + text;
    }
}

void AddCutHeaders(QStringList& cut, const QHeaderView& header)
{
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        if (!header.isSectionHidden(section) &&
            header.sectionSize(section) < header.fontMetrics().horizontalAdvance(text))
            cut << u"header "_s + text;
    }
}

} // namespace

QString NameOf(const QWidget* control)
{
    if (control == nullptr)
        return u"nothing"_s;
    if (const auto* button = qobject_cast<const QAbstractButton*>(control);
        button != nullptr && button->objectName().isEmpty())
        return button->text().remove(u'&');
    return control->objectName().isEmpty() ? QString::fromLatin1(control->metaObject()->className())
                                           : control->objectName();
}

QStringList NotReachedByTab(QWidget& window)
{
    QSet<const QWidget*> left;
    for (QWidget* control : Shown(window)) {
        if (control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr &&
            !IsLeftToTheArrows(control))
            left.insert(control);
    }
    const qsizetype enough = 2 * left.size() + 2;
    for (qsizetype i = 0; i < enough; ++i) {
        left.remove(QApplication::focusWidget());
        TypeKey(window, Qt::Key_Tab);
    }
    QStringList names;
    for (const QWidget* control : std::as_const(left))
        names << NameOf(control);
    return names;
}

QStringList WithoutName(const QWidget& window)
{
    QStringList nameless;
    for (QWidget* control : Shown(window)) {
        const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
        // A list tells what it shows when it is asked for its name.
        const bool isList = qobject_cast<const QComboBox*>(control) != nullptr;
        const QString name = face == nullptr ? QString()
                             : isList        ? control->accessibleName()
                                             : face->text(QAccessible::Name);
        if (MustHaveName(control) && name.trimmed().isEmpty())
            nameless << NameOf(control);
    }
    return nameless;
}

QStringList CutTexts(const QWidget& window)
{
    QStringList cut;
    for (const QWidget* control : Shown(window)) {
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            // A label that gives way shortens its text itself.
            if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
                AddIfCut(cut, label, label->contentsRect().size(), label->fontMetrics().size(0, label->text()));
            else
                AddIfCut(cut, label, label->size(), Needed(*label));
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            if (!button->text().isEmpty())
                AddIfCut(cut, button, button->size(),
                         button->minimumSizeHint().isEmpty() ? button->sizeHint() : button->minimumSizeHint());
        } else if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QComboBox*>(control)) {
            AddIfCut(cut, control, {0, control->height()}, {0, control->minimumSizeHint().height()});
        } else if (const auto* bar = qobject_cast<const QMenuBar*>(control)) {
            AddCutEntries(cut, *bar);
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(control)) {
            AddCutTabs(cut, *tabs);
        } else if (const auto* header = qobject_cast<const QHeaderView*>(control)) {
            AddCutHeaders(cut, *header);
        }
        // Nothing may stick out of the window, whatever it shows.
        const QRect place(control->mapTo(&window, QPoint(0, 0)), control->size());
        const bool scrolls = control->parentWidget()->objectName() == "qt_scrollarea_viewport"_L1;
        if (!scrolls && !control->size().isEmpty() && !window.rect().contains(place))
            cut << NameOf(control) + u" sticks out of the window"_s;
    }
    return cut;
}
