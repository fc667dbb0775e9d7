#pragma once

#include "kestaccount/TokenStore.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

// What a store was asked, visible from outside while a manager owns it.
struct StoredTokens
{
    QHash<QString, QString> values{};
    bool refusesWrites = false;
};

class MemoryTokenStore : public KestAccount::TokenStore
{
public:
    explicit MemoryTokenStore(std::shared_ptr<StoredTokens> stored)
        : m_stored(std::move(stored))
    {
    }

    std::optional<QString> read(const QString &key) override
    {
        return m_stored->values.contains(key) ? std::optional(m_stored->values.value(key))
                                              : std::nullopt;
    }
    bool write(const QString &key, const QString &value) override
    {
        if (!m_stored->refusesWrites)
            m_stored->values.insert(key, value);
        return !m_stored->refusesWrites;
    }
    bool remove(const QString &key) override { return m_stored->values.remove(key); }

private:
    std::shared_ptr<StoredTokens> m_stored;
};

// A token with that payload, unsigned.
inline QString tokenWith(const QByteArray &payload)
{
    return QStringLiteral("e30.%1.x")
        .arg(QString::fromLatin1(
            payload.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals)));
}

inline QString tokenFor(qint64 secondsFromNow, QJsonObject payload = {})
{
    payload.insert(QLatin1StringView("exp"), QDateTime::currentSecsSinceEpoch() + secondsFromNow);
    return tokenWith(QJsonDocument(payload).toJson(QJsonDocument::Compact));
}
