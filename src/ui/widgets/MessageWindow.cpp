#include "ui/widgets/MessageWindow.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QWindow>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::StandardButtons ButtonsOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok:
        return QMessageBox::Ok;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

} // namespace

MessageWindow::MessageWindow(const QString& text, Buttons buttons, ::Icon icon, const QString& title)
    : m_buttons(buttons)
{
    QString lines = text;
    lines.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    setWindowTitle(title);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setText(lines);
    setIcon(IconOf(icon));
    setStandardButtons(ButtonsOf(buttons));
    setDefaultButton(buttons == Buttons::Ok ? QMessageBox::Ok : QMessageBox::Yes);
    if (buttons == Buttons::YesNoCancel)
        setEscapeButton(QMessageBox::Cancel);
    if (buttons == Buttons::YesNo)
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    ScrollLongText(lines);
}

void MessageWindow::ScrollLongText(const QString& text)
{
    constexpr int Width = 520;
    const QSize room = screen()->availableSize();
    const int tallest = room.height() * 6 / 10;
    // Words alone break a label's lines; a word that is wider than the box (a path, a list of numbers) needs the editor
    // too.
    const QRect byWords = fontMetrics().boundingRect(QRect(0, 0, Width, 1 << 20), Qt::TextWordWrap, text);
    auto* label = findChild<QLabel*>(u"qt_msgbox_label"_s);
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if ((byWords.height() < tallest && byWords.width() <= Width) || label == nullptr || grid == nullptr)
        return;
    auto* scrolling = new QPlainTextEdit(text, this);
    scrolling->setReadOnly(true);
    scrolling->setTabChangesFocus(true);
    scrolling->setAccessibleName(windowTitle());
    scrolling->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const int flags = Qt::TextWordWrap | Qt::TextWrapAnywhere;
    const int needed = fontMetrics().boundingRect(QRect(0, 0, Width, 1 << 20), flags, text).height();
    const int width = std::min(Width + 40, room.width() - 120);
    scrolling->setFixedSize(width, std::min(needed + 2 * fontMetrics().lineSpacing(), tallest));
    const std::unique_ptr<QLayoutItem> replaced(grid->replaceWidget(label, scrolling));
    // The hidden label keeps the text for whoever asks the box, but takes no room.
    label->setFixedSize(0, 0);
    label->hide();
}

Answer MessageWindow::Ask(QWidget* owner)
{
    setWindowModality(Qt::ApplicationModal);
    if (owner != nullptr && owner->isVisible()) {
        m_over = owner->frameGeometry();
        static_cast<void>(winId());
        windowHandle()->setTransientParent(owner->window()->windowHandle());
    }
    switch (exec()) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        break;
    }
    // The program ended under the open box.
    return m_buttons == Buttons::Ok ? Answer::Ok : m_buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

void MessageWindow::showEvent(QShowEvent* event)
{
    QMessageBox::showEvent(event);
    const QRect room = screen()->availableGeometry();
    QRect place = frameGeometry();
    place.moveCenter(m_over.isEmpty() ? room.center() : m_over.center());
    place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width())));
    place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height())));
    move(place.topLeft());
}

void MessageWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_buttons == Buttons::YesNo)
        event->accept();
    else
        QMessageBox::keyPressEvent(event);
}

void MessageWindow::closeEvent(QCloseEvent* event)
{
    if (m_buttons == Buttons::YesNo)
        event->ignore();
    else
        QMessageBox::closeEvent(event);
}
