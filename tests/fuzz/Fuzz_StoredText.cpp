#include "Fuzz.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The same bytes twice: as the units of a text, and as what lies in a file.
    QString units(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
    std::memcpy(units.data(), data, size / 2 * 2);
    for (const QString& text : {units, TextOf(data, size)}) {
        const QByteArray stored = ToStored(text);
        Demand(FromStored(stored.constData(), stored.size()) == text, "a text comes back from the file as it went in");
    }
    return 0;
}
