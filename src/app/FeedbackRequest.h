#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>

class QNetworkReply;

/// What a person tells the makers.
struct Feedback
{
    QString Name;
    QString Email;
    QString Comments;
};

/// The address with the feedback as its query: name, email and comments, every sign of them percent-encoded that could
/// be read as anything else.
[[nodiscard]] QUrl FeedbackUrl(const QUrl& address, const Feedback& feedback);

/// Sends feedback by one HTTP request: it follows no redirection, and is not tried again.
class FeedbackRequest : public QObject
{
    Q_OBJECT

public:
    /// Waits at most so long until the whole answer is there.
    explicit FeedbackRequest(int mostMilliseconds, QObject* parent = nullptr);

    void Send(const QUrl& address, const Feedback& feedback);
    /// Gives up what is on its way; nothing is told of it.
    void Stop();
    [[nodiscard]] bool IsSending() const { return m_reply != nullptr; }

Q_SIGNALS:
    /// The answer came; `refusal` says why the feedback was not taken, and is empty where it was.
    void Answered(const QString& refusal);

private:
    void Finish();

    QNetworkAccessManager m_network;
    QNetworkReply* m_reply = nullptr;
    QTimer m_patience;
    int m_mostMilliseconds;
};
