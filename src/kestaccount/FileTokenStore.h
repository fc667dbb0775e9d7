#pragma once

#include "kestaccount/TokenStore.h"

#include <QHash>

namespace KestAccount {

// Tokens in a file of the application's configuration directory that only the user may read. For
// machines without a keyring.
class FileTokenStore : public TokenStore
{
public:
    explicit FileTokenStore(const QString &appId);

    std::optional<QString> read(const QString &key) override;
    bool write(const QString &key, const QString &value) override;
    bool remove(const QString &key) override;

    QString path() const;

private:
    QHash<QString, QString> load() const;
    bool save(const QHash<QString, QString> &values) const;

    QString m_appId;
};

} // namespace KestAccount
