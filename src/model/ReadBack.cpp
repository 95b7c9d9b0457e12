#include "model/ReadBack.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"

Long ReadBackID(const QString& selection)
{
    Recordset rows;
    rows.Open(selection, gConn);
    return rows.Fields(0).Get().ToLong();
}
