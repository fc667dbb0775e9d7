#include "kestaccount/KeyringTokenStore.h"

#include <QDebug>

#include <libsecret/secret.h>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

struct FreeError
{
    void operator()(GError *error) const { g_error_free(error); }
};
using Error = std::unique_ptr<GError, FreeError>;

const SecretSchema &tokenSchema()
{
    static const SecretSchema schema{
        "com.kestrelwood.Token",
        SECRET_SCHEMA_NONE,
        {{"application", SECRET_SCHEMA_ATTRIBUTE_STRING}, {"key", SECRET_SCHEMA_ATTRIBUTE_STRING}},
        0,
        nullptr,
        nullptr,
        nullptr,
        nullptr,
        nullptr,
        nullptr,
        nullptr};
    return schema;
}

} // namespace

KeyringTokenStore::KeyringTokenStore(const QString &appId, std::unique_ptr<TokenStore> fallback)
    : m_appId(appId)
    , m_fallback(std::move(fallback))
{
}

std::optional<QString> KeyringTokenStore::read(const QString &key)
{
    // The keyring did not answer when this was written, so what it holds is older.
    if (const std::optional<QString> held = m_fallback->read(key))
        return held;
    gchar *found = secret_password_lookup_sync(&tokenSchema(), nullptr, nullptr, "application",
                                               m_appId.toUtf8().constData(), "key",
                                               key.toUtf8().constData(), nullptr);
    if (!found)
        return std::nullopt;
    const QString value = QString::fromUtf8(found);
    secret_password_free(found);
    return value;
}

bool KeyringTokenStore::write(const QString &key, const QString &value)
{
    GError *failure = nullptr;
    const bool isStored = secret_password_store_sync(
        &tokenSchema(), SECRET_COLLECTION_DEFAULT,
        u"%1: %2"_s.arg(m_appId, key).toUtf8().constData(), value.toUtf8().constData(), nullptr,
        &failure, "application", m_appId.toUtf8().constData(), "key", key.toUtf8().constData(),
        nullptr);
    const Error error(failure);
    if (isStored) {
        m_fallback->remove(key);
        return true;
    }
    warnOnce(error ? QString::fromUtf8(error->message) : QString());
    return m_fallback->write(key, value);
}

bool KeyringTokenStore::remove(const QString &key)
{
    const bool isRemoved = secret_password_clear_sync(&tokenSchema(), nullptr, nullptr,
                                                      "application", m_appId.toUtf8().constData(),
                                                      "key", key.toUtf8().constData(), nullptr);
    return m_fallback->remove(key) || isRemoved;
}

// Only when something is to be kept: who never signs in needs no keyring.
void KeyringTokenStore::warnOnce(const QString &reason)
{
    if (m_hasWarned)
        return;
    m_hasWarned = true;
    qWarning().noquote() << "No keyring answers, the sign-in is kept in a private file:" << reason;
}

} // namespace KestAccount
