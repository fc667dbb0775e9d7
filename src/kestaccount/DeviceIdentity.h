#pragma once

#include <QString>

namespace KestAccount {

QString deviceName(); // the host's name
QString devicePlatform(); // "Windows", "Linux", "macOS": a person reads it in a list of devices

// The same on every start of this application on this machine, and of no use to another
// application; never the machine's own identifier where the system asks to keep that private.
QString deviceFingerprint(const QString &appId);

// The fingerprint of a machine that has no identifier: 32 hexadecimal digits of its host name.
QString hostNameFingerprint(const QString &hostName);

// The word of the "X-Platform" header for a kernel type as QSysInfo gives it.
QString platformWord(const QString &kernelType);

} // namespace KestAccount
