#pragma once

#include <QStringList>

/// Texts that nobody types and that must do no harm.
inline QStringList HostileTexts()
{
    const QChar high(0xD83D);
    const QChar low(0xDE00);
    QStringList texts{
        QString(10'000, u'9'),
        QString(10'000, u'0') + u'5',
        QString(10'000, u' '),
        QString(10'000, u','),
        QString(10'000, u'('),
        QString(10'000, u'/'),
        QString(10'000, u'a'),
        u'.' + QString(10'000, u'9'),
        u'.' + QString(10'000, u'0') + u'1',
        QStringLiteral("1e") + QString(10'000, u'9'),
        QStringLiteral("1e-") + QString(10'000, u'9'),
        QStringLiteral("-1e308"),
        QStringLiteral("1e309"),
        QStringLiteral("4.9e-324"),
        QStringLiteral("1e-400"),
        QStringLiteral("&HFFFFFFFFFFFFFFFFF"),
        QStringLiteral("&"),
        QStringLiteral("&H"),
        QStringLiteral("99999999999/99999999999/99999999999"),
        QStringLiteral("99999999999:99999999999 pm"),
        QStringLiteral("-9223372036854775808"),
        QStringLiteral("2958466"),
        QStringLiteral("-657435"),
        QString(QChar()),
        QStringLiteral("12") + QChar() + QStringLiteral("34"),
        QString(high),
        QString(low) + high,
        QString(high) + low,
        QStringLiteral("5") + high,
        QString(QChar(0xFF15)),
        QString(QChar(0x0665)),
    };
    return texts;
}
