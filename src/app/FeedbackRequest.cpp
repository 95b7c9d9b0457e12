#include "app/FeedbackRequest.h"

#include <QNetworkReply>
#include <QNetworkRequest>

using namespace Qt::StringLiterals;

namespace {

/// Why the request failed, in the program's voice.
QString RefusalOf(QNetworkReply::NetworkError error, int status, int mostMilliseconds)
{
    switch (error) {
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return u"I could not send your comments because I did not find the other end, or no way to the Internet."_s;
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
        return u"I could not send your comments because nobody takes them at the other end just now."_s;
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError:
        return u"I could not send your comments because no answer came within %1 seconds."_s.arg(
            (mostMilliseconds + 999) / 1000);
    default:
        break;
    }
    return status > 0
               ? u"I could not send your comments because the other end did not take them (its answer was %1)."_s.arg(
                     status)
               : u"I could not send your comments because the connection failed on the way."_s;
}

} // namespace

QUrl FeedbackUrl(const QUrl& address, const Feedback& feedback)
{
    const auto encoded = [](const QString& text) { return QUrl::toPercentEncoding(text); };
    QUrl url(address);
    url.setQuery(QString::fromLatin1("name=" + encoded(feedback.Name) + "&email=" + encoded(feedback.Email) +
                                     "&comments=" + encoded(feedback.Comments)),
                 QUrl::StrictMode);
    return url;
}

FeedbackRequest::FeedbackRequest(int mostMilliseconds, QObject* parent)
    : QObject(parent), m_mostMilliseconds(mostMilliseconds)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { m_reply->abort(); });
}

void FeedbackRequest::Send(const QUrl& address, const Feedback& feedback)
{
    Stop();
    QNetworkRequest request(FeedbackUrl(address, feedback));
    // What the toolkit would say of this computer by itself.
    request.setRawHeader("Accept-Language", "en");
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Orvantine"_s);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::finished, this, &FeedbackRequest::Finish);
    m_patience.start(m_mostMilliseconds);
}

void FeedbackRequest::Stop()
{
    m_patience.stop();
    QNetworkReply* reply = std::exchange(m_reply, nullptr);
    if (reply == nullptr)
        return;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void FeedbackRequest::Finish()
{
    m_patience.stop();
    QNetworkReply* reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool taken = reply->error() == QNetworkReply::NoError && status >= 200 && status < 300;
    Q_EMIT Answered(taken ? QString() : RefusalOf(reply->error(), status, m_mostMilliseconds));
}
