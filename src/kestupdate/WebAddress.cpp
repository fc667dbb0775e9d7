#include "kestupdate/WebAddress.h"

#include <QDebug>
#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace KestUpdate {

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
        && (url.scheme() == "https"_L1 || url.scheme() == "http"_L1);
}

void openDownload(const QUrl &url)
{
    if (!isWebAddress(url))
        qWarning() << "KestUpdate: download URL is empty or invalid";
    else if (!QDesktopServices::openUrl(url))
        qWarning() << "KestUpdate: QDesktopServices::openUrl failed for:" << url;
}

} // namespace KestUpdate
