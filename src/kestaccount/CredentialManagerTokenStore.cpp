#include "kestaccount/CredentialManagerTokenStore.h"

#include <windows.h>

#include <wincred.h>

using namespace Qt::StringLiterals;

namespace KestAccount {

CredentialManagerTokenStore::CredentialManagerTokenStore(const QString &appId)
    : m_appId(appId)
{
}

std::optional<QString> CredentialManagerTokenStore::read(const QString &key)
{
    PCREDENTIALW credential = nullptr;
    if (CredReadW(targetName(key).c_str(), CRED_TYPE_GENERIC, 0, &credential) == 0)
        return std::nullopt;
    const QString value =
        QString::fromUtf8(reinterpret_cast<const char *>(credential->CredentialBlob),
                          static_cast<qsizetype>(credential->CredentialBlobSize));
    CredFree(credential);
    return value;
}

bool CredentialManagerTokenStore::write(const QString &key, const QString &value)
{
    std::wstring target = targetName(key);
    QByteArray blob = value.toUtf8();
    CREDENTIALW credential{};
    credential.Type = CRED_TYPE_GENERIC;
    credential.TargetName = target.data();
    credential.CredentialBlob = reinterpret_cast<LPBYTE>(blob.data());
    credential.CredentialBlobSize = static_cast<DWORD>(blob.size());
    credential.Persist = CRED_PERSIST_LOCAL_MACHINE;
    return CredWriteW(&credential, 0) != 0;
}

bool CredentialManagerTokenStore::remove(const QString &key)
{
    return CredDeleteW(targetName(key).c_str(), CRED_TYPE_GENERIC, 0) != 0;
}

std::wstring CredentialManagerTokenStore::targetName(const QString &key) const
{
    return u"Kestrelwood/%1/%2"_s.arg(m_appId, key).toStdWString();
}

} // namespace KestAccount
