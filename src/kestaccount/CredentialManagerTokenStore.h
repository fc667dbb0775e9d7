#pragma once

#include "kestaccount/TokenStore.h"

namespace KestAccount {

// Tokens as generic credentials in the Windows Credential Manager, which encrypts them for the
// signed-in user of this machine.
class CredentialManagerTokenStore : public TokenStore
{
public:
    explicit CredentialManagerTokenStore(const QString &appId);

    std::optional<QString> read(const QString &key) override;
    bool write(const QString &key, const QString &value) override;
    bool remove(const QString &key) override;

private:
    std::wstring targetName(const QString &key) const;

    QString m_appId;
};

} // namespace KestAccount
