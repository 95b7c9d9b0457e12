#pragma once

#include "search/RangeForm.h"

class QToolButton;

/// Asks for a date criterion: "= 01/31/2026", "Before ...", "After ...", "From ... To ...".
class frmDate : public RangeForm
{
    Q_OBJECT

public:
    frmDate();

protected:
    void cmdbutton_Click(int index) override;
    void EntryGotFocus(QLineEdit& entry) override;

private:
    [[nodiscard]] bool IsValid(QLineEdit& entry);
    void OkClick();
    void picCalendar_Click();

    QToolButton* m_picCalendar;
    QLineEdit* m_active;
};
