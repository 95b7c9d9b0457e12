#pragma once

#include "core/Types.h"

#include <QObject>
#include <QTimer>
#include <optional>

class Menus;
class StatusPanels;

/// Panel 5 of the status bar: the clock in one of four formats, or the stop-watch, and the menu of both. A stop-watch
/// that runs goes on while the clock is shown.
class ClockPanel : public QObject
{
    Q_OBJECT

public:
    ClockPanel(StatusPanels& panels, Menus& menus, QObject* parent);

    /// Brings caption and check mark of the menu in line with gSettings.Clock.
    void ShowSettings();
    /// Writes the panel anew; runs each second by itself.
    void ShowClock();

private:
    void mnuClockFormat_Click();
    void mnuClockSeconds_Click();
    void mnuTimer_Click();
    void mnuStartTimer_Click();
    void mnuPauseTimer_Click();
    void mnuResetTimer_Click();
    void EnterTimerMode();
    void LeaveTimerMode();
    void ShowElapsed();
    void SetShown(const QString& name, bool shown);

    StatusPanels& m_panels;
    Menus& m_menus;
    QTimer m_timer1;
    bool m_timerMode = false;
    bool m_running = false;
    std::optional<Date> m_elapsed;
    Date m_start;
};
