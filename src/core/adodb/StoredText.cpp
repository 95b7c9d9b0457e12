#include "core/adodb/StoredText.h"

#include <string_view>

namespace {

bool HasLoneSurrogate(const QString& text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!c.isSurrogate())
            continue;
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (!pair)
            return true;
        ++i;
    }
    return false;
}

void AppendThreeBytes(QByteArray& bytes, char16_t unit)
{
    bytes += static_cast<char>(0xE0 | (unit >> 12));
    bytes += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
    bytes += static_cast<char>(0x80 | (unit & 0x3F));
}

/// Whether three bytes are the form of an unpaired surrogate: ED A0..BF 80..BF.
bool IsStoredSurrogate(const char* bytes, qsizetype left)
{
    const auto byte = [bytes](int i) { return static_cast<unsigned char>(bytes[i]); };
    return left >= 3 && byte(0) == 0xED && byte(1) >= 0xA0 && byte(1) <= 0xBF && (byte(2) & 0xC0) == 0x80;
}

/// The toolkit takes a mark at the very start for the byte order's and drops it; here it is a letter like any other.
QString FromUtf8(const char* bytes, qsizetype length)
{
    QString text = QString::fromUtf8(bytes, length);
    if (std::string_view(bytes, static_cast<size_t>(length)).starts_with("\xEF\xBB\xBF"))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

} // namespace

QByteArray ToStored(const QString& text)
{
    if (!HasLoneSurrogate(text))
        return text.toUtf8();
    QByteArray bytes;
    qsizetype from = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!c.isSurrogate())
            continue;
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        bytes += QStringView(text).mid(from, i - from).toUtf8();
        AppendThreeBytes(bytes, c.unicode());
        from = i + 1;
    }
    return bytes + QStringView(text).mid(from).toUtf8();
}

QString FromStored(const char* bytes, qsizetype length)
{
    if (std::string_view(bytes, static_cast<size_t>(length)).find('\xED') == std::string_view::npos)
        return FromUtf8(bytes, length);
    QString text;
    qsizetype from = 0;
    for (qsizetype i = 0; i < length; ++i) {
        if (!IsStoredSurrogate(bytes + i, length - i))
            continue;
        text += FromUtf8(bytes + from, i - from);
        text += QChar(static_cast<char16_t>(0xD000 | ((bytes[i + 1] & 0x3F) << 6) | (bytes[i + 2] & 0x3F)));
        i += 2;
        from = i + 1;
    }
    return text + FromUtf8(bytes + from, length - from);
}
