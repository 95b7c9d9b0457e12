#include "model/SharedText.h"

#include <QSet>

QString SharedText(const QString& text)
{
    static QSet<QString> pool;
    if (text.isEmpty())
        return {};
    return *pool.insert(text);
}
