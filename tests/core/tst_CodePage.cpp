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

    void WhatThePageLacksIsReplaced()
    {
        QCOMPARE(ToCodePage1252(u"Zoë’s “café” – €5"_s), "Zo\xEB\x92s \x93"
                                                         "caf\xE9\x94 \x96 \x80"
                                                         "5");
        // A mark is taken off, and put on where it stands behind its letter.
        QCOMPARE(ToCodePage1252(u"Dvořák Ştefan ő"_s), "Dvor\xE1k Stefan o");
        QCOMPARE(ToCodePage1252(u"Re\u0301ne\u030B"_s), "R\xE9ne");
        QCOMPARE(ToCodePage1252(u"Łódź Đ"_s), "L\xF3"
                                              "dz D");
        QCOMPARE(ToCodePage1252(u"ﬁnd"_s), "find");
        QCOMPARE(ToCodePage1252(u"Иван"_s), "????");
        QCOMPARE(ToCodePage1252(u"a\U0001F600b"_s), "a?b");
        QCOMPARE(ToCodePage1252(QString(QChar(0xD83D)) + u'x'), "?x");
        QCOMPARE(ToCodePage1252(u"\t\r\n\u0001"_s), "\t\r\n\x01");
        QCOMPARE(ToCodePage1252(u"\u0080"_s), "?"); // a control that is none here
    }
};

QTEST_APPLESS_MAIN(tst_CodePage)
#include "tst_CodePage.moc"
