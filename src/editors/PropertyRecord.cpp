#include "editors/PropertyRecord.h"

#include "core/Trap.h"
#include "editors/SheetEditor.h"

using namespace Qt::StringLiterals;

bool SetPropValues(PropDetail& property, const SheetEditor& sheet)
{
    return Trap(u"SetPropValues Error #"_s, Icon::Information, [&] {
        for (int row = 1; row <= PropertyFieldCount; ++row)
            SetPropertyText(property, FieldOf(row), sheet.Value(row));
        return true;
    });
}

void ShowPropValues(const PropDetail& property, SheetEditor& sheet)
{
    for (int row = 1; row <= PropertyFieldCount; ++row)
        sheet.SetValue(row, PropertyText(property, FieldOf(row), PropertyForm::Sheet));
}
