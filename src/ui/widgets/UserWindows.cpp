#include "ui/widgets/UserWindows.h"

#include "ui/widgets/Forms.h"
#include "ui/widgets/frmDialog.h"
#include "ui/widgets/MessageWindow.h"
#include "ui/widgets/NormalCursor.h"

#include <QGuiApplication>

UserWindows::~UserWindows()
{
    TakeHourGlassesAway();
}

Answer UserWindows::MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title)
{
    const NormalCursor cursor;
    return MessageWindow(text, buttons, icon, title).Ask(Forms::Active());
}

QString UserWindows::AskFor(const QString& caption, int maxLength)
{
    frmDialog form(caption, maxLength);
    form.ShowModal(Forms::Active());
    return form.Reply();
}

void UserWindows::ShoWait(const QString& message)
{
    if (m_statusBar)
        m_statusBar(message);
}

void UserWindows::ShoWait()
{
    if (m_statusBar)
        m_statusBar(std::nullopt);
}

void UserWindows::HourGlass(bool on)
{
    if (on) {
        ++m_hourGlasses;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (m_hourGlasses > 0) {
        --m_hourGlasses;
        QGuiApplication::restoreOverrideCursor();
    }
}

void UserWindows::NoHourGlass()
{
    TakeHourGlassesAway();
}

void UserWindows::TakeHourGlassesAway()
{
    for (; m_hourGlasses > 0; --m_hourGlasses)
        QGuiApplication::restoreOverrideCursor();
}
