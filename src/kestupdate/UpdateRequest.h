#pragma once

#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;

namespace KestUpdate {

// The form of every request of this library: no token, and no redirect to a less safe scheme or to
// something that is no web address. A reply that grows beyond maxSize bytes is aborted. The manager
// owns the reply.
QNetworkReply *sendRequest(QNetworkAccessManager *manager, const QUrl &url,
                           const QString &productId, qint64 maxSize);

} // namespace KestUpdate
