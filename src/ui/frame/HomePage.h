#pragma once

#include <QUrl>

/// The address of the product's page: the one place that knows it.
[[nodiscard]] inline QUrl HomePage()
{
    return QUrl(QStringLiteral("https://orvantine.example/"));
}
