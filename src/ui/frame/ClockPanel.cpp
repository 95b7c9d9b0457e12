#include "ui/frame/ClockPanel.h"

#include "core/Clock.h"
#include "core/Dates.h"
#include "core/Format.h"
#include "core/Trap.h"
#include "model/Main.h"
#include "ui/frame/Menus.h"
#include "ui/frame/StatusPanels.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int clockPanel = 5;

struct ClockForm
{
    QStringView Mask;
    bool Seconds;
    QLatin1StringView SwitchCaption;
};

constexpr ClockForm clockForms[]{{u"hh:NN:SS am/pm", true, "Switch to 24 Hr Format"_L1},
                                 {u"hh:NN:SS", true, "Switch to 12 Hr Format"_L1},
                                 {u"hh:NN am/pm", false, "Switch to 24 Hr Format"_L1},
                                 {u"hh:NN", false, "Switch to 12 Hr Format"_L1}};

const ClockForm& CurrentForm()
{
    return clockForms[gSettings.Clock >= 0 && gSettings.Clock <= 3 ? gSettings.Clock : 0];
}

} // namespace

ClockPanel::ClockPanel(StatusPanels& panels, Menus& menus, QObject* parent)
    : QObject(parent), m_panels(panels), m_menus(menus)
{
    const auto plug = [this](const QString& name, void (ClockPanel::*work)()) {
        m_menus.Plug(name, this, [this, work] { (this->*work)(); });
    };
    plug(u"mnuClockFormat"_s, &ClockPanel::mnuClockFormat_Click);
    plug(u"mnuClockSeconds"_s, &ClockPanel::mnuClockSeconds_Click);
    plug(u"mnuTimer"_s, &ClockPanel::mnuTimer_Click);
    plug(u"mnuStartTimer"_s, &ClockPanel::mnuStartTimer_Click);
    plug(u"mnuPauseTimer"_s, &ClockPanel::mnuPauseTimer_Click);
    plug(u"mnuResetTimer"_s, &ClockPanel::mnuResetTimer_Click);
    connect(&m_panels, &StatusPanels::PanelClick, this, [this](int panel) {
        if (panel == clockPanel)
            m_menus.Menu(u"mnuClock"_s).popup(m_panels.PopupPosition(clockPanel));
    });
    connect(&m_timer1, &QTimer::timeout, this, &ClockPanel::ShowClock);
    m_timer1.start(1000);
}

void ClockPanel::ShowSettings()
{
    m_menus.Entry(u"mnuClockFormat"_s).setText(QString(CurrentForm().SwitchCaption));
    m_menus.Entry(u"mnuClockSeconds"_s).setChecked(CurrentForm().Seconds);
}

void ClockPanel::ShowClock()
{
    Trap(u"frmMain ShowClock Error #"_s, Icon::Critical, [this] {
        const Date now = ToDate(Clock::Now());
        if (!m_timerMode) {
            m_panels.SetText(clockPanel, Format(now, CurrentForm().Mask));
        } else if (m_running) {
            m_elapsed = Date(now.Serial() - m_start.Serial());
            ShowElapsed();
        }
    });
}

void ClockPanel::ShowElapsed()
{
    m_panels.SetText(clockPanel, m_elapsed ? Format(*m_elapsed, u"HH:nn:ss") : u"00:00:00"_s);
}

void ClockPanel::SetShown(const QString& name, bool shown)
{
    m_menus.Entry(name).setVisible(shown);
}

void ClockPanel::mnuClockFormat_Click()
{
    Trap(u"frmMain mnuClockFormat_Click Error #"_s, Icon::Critical, [this] {
        // 0 and 1 change places, and so do 2 and 3.
        gSettings.Clock ^= 1;
        ShowSettings();
        UpdateSettings();
    });
    ShowClock();
}

void ClockPanel::mnuClockSeconds_Click()
{
    // The choice is not written: it is saved when a change of the format or of the label writes the row, which is
    // meant.
    gSettings.Clock ^= 2;
    ShowSettings();
    ShowClock();
}

void ClockPanel::mnuTimer_Click()
{
    Trap(u"frmMain mnuTimer_Click Error #"_s, Icon::Critical, [this] {
        if (m_timerMode)
            LeaveTimerMode();
        else
            EnterTimerMode();
    });
}

void ClockPanel::EnterTimerMode()
{
    SetShown(u"mnuClockFormat"_s, false);
    SetShown(u"mnuClockSeconds"_s, false);
    m_menus.Entry(u"mnuTimer"_s).setText(u"Show Clock"_s);
    SetShown(u"mnuStartTimer"_s, true);
    m_timerMode = true;
    ShowElapsed();
    if (m_elapsed)
        SetShown(u"mnuResetTimer"_s, true);
}

void ClockPanel::LeaveTimerMode()
{
    SetShown(u"mnuClockFormat"_s, true);
    SetShown(u"mnuClockSeconds"_s, true);
    m_menus.Entry(u"mnuTimer"_s).setText(u"Timer Mode"_s);
    SetShown(u"mnuStartTimer"_s, false);
    SetShown(u"mnuResetTimer"_s, false);
    m_timerMode = false;
}

void ClockPanel::mnuStartTimer_Click()
{
    Trap(u"frmMain mnuStartTimer_Click Error #"_s, Icon::Critical, [this] {
        m_running = true;
        const Date now = ToDate(Clock::Now());
        m_start = m_elapsed ? Date(now.Serial() - m_elapsed->Serial()) : now;
        SetShown(u"mnuStartTimer"_s, false);
        SetShown(u"mnuResetTimer"_s, false);
        SetShown(u"mnuTimer"_s, false);
        SetShown(u"mnuPauseTimer"_s, true);
    });
}

void ClockPanel::mnuPauseTimer_Click()
{
    m_running = false;
    SetShown(u"mnuResetTimer"_s, true);
    SetShown(u"mnuTimer"_s, true);
    SetShown(u"mnuStartTimer"_s, true);
    m_menus.Entry(u"mnuStartTimer"_s).setText(u"Restart Timer"_s);
    SetShown(u"mnuPauseTimer"_s, false);
}

void ClockPanel::mnuResetTimer_Click()
{
    m_elapsed.reset();
    ShowElapsed();
}
