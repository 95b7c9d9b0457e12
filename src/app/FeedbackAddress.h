#pragma once

#include <QUrl>

/// Where the feedback goes: the one place that knows it.
[[nodiscard]] inline QUrl FeedbackAddress()
{
    return QUrl(QStringLiteral("https://orvantine.example/feedback"));
}
