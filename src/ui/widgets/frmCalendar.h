#pragma once

#include "ui/widgets/Form.h"

class QCalendarWidget;

/// Asks for a day. A double click on a day and Enter on it are Ok; Esc and the close box are Cancel.
class frmCalendar : public Form
{
    Q_OBJECT

public:
    /// Starts on `value`.
    frmCalendar(const QString& caption, const QDate& value);

    /// The day as "mm/dd/yyyy" when the window went by Ok; "" otherwise.
    [[nodiscard]] const QString& Reply() const { return m_reply; }

protected:
    void EscapePressed() override;

private:
    void DressCalendar(const QDate& value);
    void DressHead();
    void cmdButton_Click(int index);
    void OkClick();

    QCalendarWidget* m_calendar;
    QString m_reply;
};

/// Shows frmCalendar on the day that `text` tells, else on today, and waits for its reply: "mm/dd/yyyy", "" where the
/// person cancelled; gReturnValue is the same.
QString AskForDate(const QString& caption, const QString& text = {});
