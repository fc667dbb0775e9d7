#include "kestaccount/DeviceIdentity.h"

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QSettings>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr qsizetype kFingerprintLength = 32;

#ifdef Q_OS_WIN
QString machineFingerprint(const QString &)
{
    const QSettings cryptography(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"_s,
                                 QSettings::NativeFormat);
    return cryptography.value(u"MachineGuid"_s).toString();
}
#else
// machine-id(5) calls the identifier confidential and asks for a keyed hash of it per application.
QString machineFingerprint(const QString &appId)
{
    const QByteArray machineId = QSysInfo::machineUniqueId();
    if (machineId.isEmpty())
        return {};
    const QByteArray hash =
        QMessageAuthenticationCode::hash(appId.toUtf8(), machineId, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().first(kFingerprintLength));
}
#endif

} // namespace

QString deviceName()
{
    return QSysInfo::machineHostName();
}

QString devicePlatform()
{
#if defined(Q_OS_WIN)
    return u"Windows"_s;
#elif defined(Q_OS_MACOS)
    return u"macOS"_s;
#else
    return u"Linux"_s;
#endif
}

QString deviceFingerprint(const QString &appId)
{
    const QString fingerprint = machineFingerprint(appId);
    return fingerprint.isEmpty() ? hostNameFingerprint(deviceName()) : fingerprint;
}

QString hostNameFingerprint(const QString &hostName)
{
    const QByteArray hash = QCryptographicHash::hash(hostName.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().first(kFingerprintLength));
}

QString platformWord(const QString &kernelType)
{
    const QString kernel = kernelType.toLower();
    if (kernel == "darwin"_L1)
        return u"macos"_s;
    if (kernel == "winnt"_L1)
        return u"windows"_s;
    return kernel;
}

} // namespace KestAccount
