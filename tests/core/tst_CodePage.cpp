#include "core/CodePage.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_CodePage : public QObject
{
    Q_OBJECT

private slots:
    void EveryByteComesBack()
    {
        QByteArray all;
        for (int value = 0; value < 256; ++value)
            all += static_cast<char>(value);
        const QString text = FromCodePage1252(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(text[0x80], QChar(0x20AC));
        QCOMPARE(text[0x81], QChar(0x81));
        QCOMPARE(text[0x9F], QChar(0x0178));
        QCOMPARE(ToCodePage1252(text), all);
    }

    void WhatThePageLacksIsReplaced_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addRow("in the page") << u"Zoë’s “café” – €5"_s
                                     << QByteArray("Zo\xEB\x92s \x93"
                                                   "caf\xE9\x94 \x96 \x80"
                                                   "5");
        QTest::addRow("a mark taken off") << u"Dvořák Ştefan ő"_s << QByteArray("Dvor\xE1k Stefan o");
        QTest::addRow("a mark behind its letter") << u"Re\u0301ne\u030B"_s << QByteArray("R\xE9ne");
        QTest::addRow("a stroke") << u"Łódź Đ"_s
                                  << QByteArray("L\xF3"
                                                "dz D");
        QTest::addRow("more than one letter") << u"ﬁnd"_s << QByteArray("find");
        QTest::addRow("another alphabet") << u"Иван"_s << QByteArray("????");
        QTest::addRow("one for a pair") << u"a\U0001F600b"_s << QByteArray("a?b");
        QTest::addRow("half a pair") << QString(QChar(0xD83D)) + u'x' << QByteArray("?x");
        QTest::addRow("controls") << u"\t\r\n\u0001"_s << QByteArray("\t\r\n\x01");
        QTest::addRow("a control that is none here") << u"\u0080"_s << QByteArray("?");
    }

    void WhatThePageLacksIsReplaced()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QCOMPARE(ToCodePage1252(text), bytes);
    }
};

QTEST_APPLESS_MAIN(tst_CodePage)
#include "tst_CodePage.moc"
