#pragma once

#include <QString>
#include <QUrl>

namespace KestUpdate {

// Where the releases of a product stand, and which of them is running.
struct Config
{
    QString productId{}; // goes into the user agent
    QString channel{}; // carried; the base URL names it already
    QUrl manifestBaseUrl{}; // the directory of the manifest
    QString currentVersion{};
};

} // namespace KestUpdate
