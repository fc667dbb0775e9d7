#include "kestupdate/UpdateRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

using namespace Qt::StringLiterals;

namespace KestUpdate {

QNetworkReply *sendRequest(QNetworkAccessManager *manager, const QUrl &url,
                           const QString &productId, qint64 maxSize)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"KestUpdateQt/0.1 (%1)"_s.arg(productId));
    // Nothing is unpacked, so the limit counts what takes up memory.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply *reply = manager->get(request);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, maxSize] {
        if (reply->bytesAvailable() > maxSize)
            reply->abort();
    });
    return reply;
}

} // namespace KestUpdate
