#pragma once

#include "core/User.h"

#include <functional>
#include <optional>

/// Speaks to the person with real windows. A box or question that comes up under an hourglass shows the normal pointer.
class UserWindows final : public User
{
public:
    using StatusBar = std::function<void(const std::optional<QString>& message)>;

    ~UserWindows() override;

    Answer MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title) override;
    QString AskFor(const QString& caption, int maxLength) override;
    void ShoWait(const QString& message) override;
    void ShoWait() override;
    /// Counts: the pointer is normal again once each hourglass that was shown has been taken away.
    void HourGlass(bool on) override;
    void NoHourGlass() override;

    /// The main window's ShoWait; without one nothing is shown. An empty optional brings up to date the counts alone.
    void SetStatusBar(StatusBar statusBar) { m_statusBar = std::move(statusBar); }

private:
    void TakeHourGlassesAway();

    StatusBar m_statusBar;
    int m_hourGlasses = 0;
};
