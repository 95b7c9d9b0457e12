#include "core/Trap.h"

void ReportError(const RunTimeError& error, const QString& tag, Icon icon)
{
    MsgBox(error.Description(), Buttons::Ok, icon, tag + QString::number(error.Number()));
}
