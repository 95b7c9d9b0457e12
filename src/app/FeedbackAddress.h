#pragma once

#include <QUrl>

/// Where the feedback goes: the one place that knows it. The host is a placeholder, under a domain that is nobody's and
/// never found, until the makers have an address of their own.
[[nodiscard]] inline QUrl FeedbackAddress()
{
    return QUrl(QStringLiteral("https://orvantine.example/feedback"));
}
