#include "core/adodb/Recordset.h"
#include "core/adodb/RowsetWriter.h"

#include "Fuzz.h"

#include <QBuffer>

namespace {

/// A text that was escaped stands in a rowset as one value, and comes back but for what XML can't carry.
void ComesBack(const uint8_t* data, size_t size)
{
    QByteArray xml = "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
                     "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' xmlns:rs='urn:schemas-microsoft-com:rowset' "
                     "xmlns:z='#RowsetSchema'><s:Schema><s:ElementType name='row'><s:AttributeType name='T'/>"
                     "</s:ElementType></s:Schema><rs:data><z:row T='";
    const qsizetype start = xml.size();
    AppendEscaped(xml, reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (qsizetype i = start; i < xml.size(); ++i)
        Demand(static_cast<unsigned char>(xml[i]) >= 0x20, "nothing but references stands for breaks");
    xml += "'/></rs:data></xml>";
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    Recordset rows;
    rows.Open(buffer);
    Demand(!rows.Eof(), "there is a row");
    const QString back = rows.Fields(0).Get().Text();
    QString expected = TextOf(data, size);
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const char16_t unit = expected.at(i).unicode();
        const bool pair =
            QChar::isHighSurrogate(unit) && i + 1 < expected.size() && expected.at(i + 1).isLowSurrogate();
        if (pair)
            ++i;
        else if ((unit < 0x20 && unit != u'\t' && unit != u'\r' && unit != u'\n') || QChar::isSurrogate(unit) ||
                 unit >= 0xFFFE)
            expected[i] = QChar::ReplacementCharacter;
    }
    // Bytes that are no text at all may be told by more or fewer signs than the toolkit makes of them.
    // So may a pair of half characters in the form of two: the store never writes that.
    const QByteArray stored = ToStored(TextOf(data, size));
    const bool isWhole = !expected.contains(QChar::ReplacementCharacter) &&
                         stored == QByteArrayView(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    Demand(!isWhole || back == expected, "a text comes back as it went in");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ComesBack(data, size);
    QByteArray document(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    static_cast<void>(Attempt(
        [&] {
            Recordset rows;
            for (rows.Open(buffer); !rows.Eof(); rows.MoveNext()) {
                for (int i = 0; i < rows.FieldCount(); ++i)
                    static_cast<void>(rows.Fields(i).Get().Text());
            }
            return true;
        },
        ErrorNumber::EngineFailure));
    return 0;
}
