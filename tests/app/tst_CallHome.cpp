#include "app/frmCallHome.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <QUrlQuery>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QByteArray dripping = "drip";

/// A web server on this machine that says one thing to everybody, or nothing at all, or an answer that never ends.
class Server : public QTcpServer
{
public:
    explicit Server(QByteArray answer)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, answer = std::move(answer)] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, answer] {
                const QByteArray request = socket->readAll();
                Requests << request;
                if (answer.isEmpty())
                    return;
                if (answer == dripping) {
                    socket->write("HTTP/1.1 200 OK\r\n");
                    auto* drip = new QTimer(socket);
                    connect(drip, &QTimer::timeout, socket, [socket] { socket->write("X-More: to come\r\n"); });
                    drip->start(100);
                    return;
                }
                socket->write(answer);
                socket->disconnectFromHost();
            });
        });
    }
    [[nodiscard]] QUrl Address() const { return QUrl(u"http://127.0.0.1:%1/feedback"_s.arg(serverPort())); }

    QList<QByteArray> Requests;
};

QByteArray AnswerOf(const char* status)
{
    return QByteArray("HTTP/1.1 ") + status + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

QString Status(const QWidget& form)
{
    return Control<QLabel>(form, u"lblStatus"_s).text();
}

/// Types a message and goes to the last page.
void FillIn(frmCallHome& form)
{
    form.Show();
    QTest::qWait(0);
    Control<QLineEdit>(form, u"txtName"_s).setText(u"Ann & Bob"_s);
    Control<QLineEdit>(form, u"txtEmail"_s).setText(u"ann@example.org"_s);
    ClickOn(form, u"cmdNext"_s);
    Control<QPlainTextEdit>(form, u"txtComments"_s).setPlainText(u"1 + 1 = 2%\nÄ?#"_s);
    ClickOn(form, u"cmdNext"_s);
}

/// Empties the draft that outlives a window.
void Forget()
{
    frmCallHome form{QUrl()};
    for (const auto name : {"txtName"_L1, "txtEmail"_L1})
        Control<QLineEdit>(form, QString(name)).clear();
    Control<QPlainTextEdit>(form, u"txtComments"_s).clear();
}

} // namespace

/// The feedback window, against servers on this machine.
class tst_CallHome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Forget(); }
    void SendsOneRequestOnTheLastPage();
    void ARefusalIsToldAndNothingIsLost_data();
    void ARefusalIsToldAndNothingIsLost();
    void CancelStopsTheSendingFirst();
    void WhatWasTypedOutlivesTheWindow();
    void NothingToSendAndTooMuchToSend();
};

void tst_CallHome::SendsOneRequestOnTheLastPage()
{
    Server server(AnswerOf("200 OK"));
    ScriptedUser person;
    frmCallHome form(server.Address());
    form.SetDeleteOnUnload(false);
    FillIn(form);
    QCOMPARE(Control<QPlainTextEdit>(form, u"txtReview"_s).toPlainText(),
             u"Name: Ann & Bob\nE-mail: ann@example.org\n\n1 + 1 = 2%\nÄ?#"_s);
    QVERIFY(server.Requests.isEmpty());
    person.Expect(u"Your Comments have been Sent"_s, u"I have sent your comments. Thank you for writing."_s);
    ClickOn(form, u"cmdNext"_s);
    QTRY_VERIFY(form.IsUnloaded());
    QCOMPARE(server.Requests.size(), 1);
    const QByteArray head = server.Requests[0].left(server.Requests[0].indexOf("\r\n"));
    const QList<QByteArray> words = head.split(' ');
    QCOMPARE(words[0], "GET");
    const QUrlQuery query(QUrl::fromEncoded(words[1]));
    QCOMPARE(query.queryItemValue(u"name"_s, QUrl::FullyDecoded), u"Ann & Bob"_s);
    QCOMPARE(query.queryItemValue(u"email"_s, QUrl::FullyDecoded), u"ann@example.org"_s);
    QCOMPARE(query.queryItemValue(u"comments"_s, QUrl::FullyDecoded), u"1 + 1 = 2%\nÄ?#"_s);
    // Nothing beside it tells of this computer.
    QList<QByteArray> others = server.Requests[0].mid(head.size()).trimmed().split('\n');
    for (QByteArray& line : others)
        line = line.trimmed();
    std::ranges::sort(others);
    QCOMPARE(others, (QList<QByteArray>{"Accept-Encoding: identity", "Accept-Language: en", "Connection: Keep-Alive",
                                        "Host: 127.0.0.1:" + QByteArray::number(server.serverPort()),
                                        "User-Agent: Orvantine"}));
}

void tst_CallHome::ARefusalIsToldAndNothingIsLost_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("address"); // empty for the server's own
    QTest::addColumn<QString>("words");

    QTest::newRow("refused")
        << AnswerOf("503 Busy") << u""_s
        << u"I could not send your comments because the other end did not take them (its answer was 503)."_s;
    QTest::newRow("sent elsewhere")
        << QByteArray("HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:1/\r\nContent-Length: 0\r\n\r\n") << u""_s
        << u"I could not send your comments because the other end did not take them (its answer was 302)."_s;
    QTest::newRow("nobody there")
        << QByteArray() << u"http://127.0.0.1:1/"_s
        << u"I could not send your comments because nobody takes them at the other end just now."_s;
    QTest::newRow("offline")
        << QByteArray() << u"http://orvantine.invalid/"_s
        << u"I could not send your comments because I did not find the other end, or no way to the Internet."_s;
    QTest::newRow("without end") << dripping << u""_s
                                 << u"I could not send your comments because no answer came within 1 seconds."_s;
    QTest::newRow("slow") << QByteArray() << u""_s
                          << u"I could not send your comments because no answer came within 1 seconds."_s;
}

void tst_CallHome::ARefusalIsToldAndNothingIsLost()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, address);
    QFETCH(QString, words);
    Server server(answer);
    ScriptedUser person;
    frmCallHome form(address.isEmpty() ? server.Address() : QUrl(address), 1000);
    form.SetDeleteOnUnload(false);
    FillIn(form);
    ClickOn(form, u"cmdNext"_s);
    QCOMPARE(Status(form), u"I am sending your comments…"_s);
    QTRY_COMPARE_WITH_TIMEOUT(Status(form), words + u" Nothing is lost: you can send them again, now or later."_s,
                              20'000);
    QVERIFY(server.Requests.size() <= 1);
    QVERIFY(Control<QPushButton>(form, u"cmdNext"_s).isEnabled());
    ClickOn(form, u"cmdBack"_s);
    QCOMPARE(Control<QPlainTextEdit>(form, u"txtComments"_s).toPlainText(), u"1 + 1 = 2%\nÄ?#"_s);
    form.Unload();
}

void tst_CallHome::CancelStopsTheSendingFirst()
{
    Server server{QByteArray()};
    ScriptedUser person;
    frmCallHome form(server.Address(), 60'000);
    form.SetDeleteOnUnload(false);
    FillIn(form);
    ClickOn(form, u"cmdNext"_s);
    QTRY_COMPARE(server.Requests.size(), 1);
    TypeKey(form, Qt::Key_Escape);
    QCOMPARE(Status(form), u"I have stopped. I can't say whether your comments have arrived."_s);
    QVERIFY(!form.IsUnloaded());
    TypeKey(form, Qt::Key_Escape);
    QVERIFY(form.IsUnloaded());
}

void tst_CallHome::WhatWasTypedOutlivesTheWindow()
{
    {
        frmCallHome form{QUrl()};
        form.SetDeleteOnUnload(false);
        FillIn(form);
        ClickOn(form, u"cmdCancel"_s);
        QVERIFY(form.IsUnloaded());
    }
    const frmCallHome again{QUrl()};
    QCOMPARE(Control<QLineEdit>(again, u"txtName"_s).text(), u"Ann & Bob"_s);
    QCOMPARE(Control<QPlainTextEdit>(again, u"txtComments"_s).toPlainText(), u"1 + 1 = 2%\nÄ?#"_s);
}

void tst_CallHome::NothingToSendAndTooMuchToSend()
{
    frmCallHome form{QUrl()};
    form.SetDeleteOnUnload(false);
    form.Show();
    QTest::qWait(0);
    const auto& pages = Control<QStackedWidget>(form, u"pages"_s);
    auto& comments = Control<QPlainTextEdit>(form, u"txtComments"_s);
    TypeKey(form, Qt::Key_Return);
    QCOMPARE(pages.currentIndex(), 1);
    ClickOn(form, u"cmdNext"_s);
    QCOMPARE(Status(form), u"I have nothing to send yet: please write your comments first."_s);
    comments.setPlainText(QString(2001, u'x'));
    ClickOn(form, u"cmdNext"_s);
    QCOMPARE(Status(form),
             u"I can send at most 2000 characters at once, and these are 2001. Please make two messages of them."_s);
    QCOMPARE(pages.currentIndex(), 1);
    comments.setPlainText(QString(2000, u'x'));
    ClickOn(form, u"cmdNext"_s);
    QCOMPARE(pages.currentIndex(), 2);
    form.Unload();
}

QTEST_MAIN(tst_CallHome)
#include "tst_CallHome.moc"
