#pragma once

#include <QUrl>

namespace KestUpdate {

// What stands in a manifest or in notes comes from the network, and the desktop would also run a
// file or hand an address to any program. So only http and https go there.
bool isWebAddress(const QUrl &url);

void openDownload(const QUrl &url); // in the browser; what cannot be opened is a warning in the log

} // namespace KestUpdate
