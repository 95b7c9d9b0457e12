#include "model/SharedText.h"

#include <array>

QString SharedText(const QString& text)
{
    // One place for each of so many hashes, where the newer text drives the older one out: what is repeated comes back
    // soon, and texts that never come again cost no memory. A set of all texts took a quarter of the loading time.
    static std::array<QString, 4096> recent;
    if (text.isEmpty())
        return {};
    QString& place = recent[qHash(text) % recent.size()];
    if (place != text)
        place = text;
    return place;
}
