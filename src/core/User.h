#pragma once

#include <QString>

enum class Icon
{
    None,
    Critical,
    Question,
    Information
};

enum class Buttons
{
    Ok,
    YesNo,
    YesNoCancel
};

enum class Answer
{
    Ok,
    Cancel,
    Yes,
    No
};

/// How code on any floor speaks to the person. The windows floor implements it with real boxes; a test installs a
/// script that records what was said and answers.
class User
{
public:
    virtual ~User() = default;

    /// Shows a box and waits for its answer. Line breaks in `text` are CR LF or LF.
    virtual Answer MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title) = 0;

    /// Asks for one line of text; at most `maxLength` UTF-16 units when that is above 0. "" when the person cancelled.
    virtual QString AskFor(const QString& caption, int maxLength = 0) = 0;

    /// Brings the status bar up to date: the counts, and `message` in panel 1.
    virtual void ShoWait(const QString& message) = 0;
    /// Brings only the counts of the status bar up to date.
    virtual void ShoWait() = 0;

    /// Shows the hourglass, or takes it away.
    virtual void HourGlass(bool on) = 0;
    /// Takes the hourglass away, however often it was shown.
    virtual void NoHourGlass() {}

    /// The user interface of this process; before one is installed, a silent one that answers No and Cancel.
    [[nodiscard]] static User& Current();
    /// Installs `user`, which must outlive its use; null goes back to the silent one.
    static void Install(User* user);
};

// The short forms by which the program speaks.

inline Answer MsgBox(const QString& text, Buttons buttons, Icon icon, const QString& title)
{
    return User::Current().MsgBox(text, buttons, icon, title);
}
/// The reply of the last modal dialog; "" where the person cancelled ("Cancelled" for frmMove).
extern QString gReturnValue;

/// Asks for one line of text; the reply stands in gReturnValue too.
QString AskFor(const QString& caption, int maxLength = 0);
inline void ShoWait(const QString& message)
{
    User::Current().ShoWait(message);
}
inline void ShoWait()
{
    User::Current().ShoWait();
}

/// Asks a Yes/No question under the title that all questions bear; true for Yes.
[[nodiscard]] bool Confirmed(const QString& question);

/// The hourglass for the length of a scope.
class HourGlass
{
public:
    HourGlass() { User::Current().HourGlass(true); }
    ~HourGlass() { User::Current().HourGlass(false); }
    HourGlass(const HourGlass&) = delete;
    HourGlass& operator=(const HourGlass&) = delete;
};
