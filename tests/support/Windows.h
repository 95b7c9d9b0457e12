#pragma once

#include "ui/widgets/Form.h"

#include <QMessageBox>
#include <QTimer>
#include <functional>

// Working real windows as a person does.

/// Stops the test program when a window lacks a control.
[[noreturn]] void NoSuchControl(const QWidget& window, const QString& name);

/// The control of this object name in a window.
template <typename T>
[[nodiscard]] T& Control(const QWidget& window, const QString& name)
{
    T* control = window.findChild<T*>(name);
    if (control == nullptr)
        NoSuchControl(window, name);
    return *control;
}

/// Clicks a control, which must be visible and enabled; the test fails otherwise.
void ClickOn(const QWidget& window, const QString& name);

/// Sends keys to the window, which hands each to the control that has the focus then: a key that moves the focus has
/// its release where the focus went.
void TypeText(const QWidget& window, const QString& text);
void TypeKey(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// Sends the press of a key that is still held down: a repetition.
void HoldKey(const QWidget& window, Qt::Key key);

/// Waits for a modal window and works it. Make one before the step that opens the window; the script runs inside the
/// window's own loop, and the window is closed on every way out. A window that never came fails the test when this goes
/// out of scope; one that hangs is ended, with all that stands over it, and fails the test too.
class WhenWindowOpens
{
public:
    using Match = std::function<QWidget*()>;
    using Script = std::function<void(QWidget& window)>;

    WhenWindowOpens(QString what, Match match, Script script);
    ~WhenWindowOpens();
    WhenWindowOpens(const WhenWindowOpens&) = delete;
    WhenWindowOpens& operator=(const WhenWindowOpens&) = delete;

    [[nodiscard]] bool HasRun() const { return m_state == State::Done; }

private:
    enum class State
    {
        Waiting,
        Running,
        Done
    };

    void Look();
    void End(const QPointer<QWidget>& window);

    QString m_what;
    Match m_match;
    Script m_script;
    State m_state = State::Waiting;
    QPointer<QWidget> m_seen;
    QTimer m_looking;
    QTimer m_watchdog;
};

/// WhenWindowOpens for the Form of this name.
class WhenFormOpens : public WhenWindowOpens
{
public:
    WhenFormOpens(const QString& name, std::function<void(Form& form)> script);
};

/// WhenWindowOpens for a message box.
class WhenBoxOpens : public WhenWindowOpens
{
public:
    explicit WhenBoxOpens(std::function<void(QMessageBox& box)> script);
};
