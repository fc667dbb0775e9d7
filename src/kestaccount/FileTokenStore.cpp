#include "kestaccount/FileTokenStore.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace KestAccount {

FileTokenStore::FileTokenStore(const QString &appId)
    : m_appId(appId)
{
}

std::optional<QString> FileTokenStore::read(const QString &key)
{
    const QHash<QString, QString> values = load();
    const auto found = values.constFind(key);
    return found == values.cend() ? std::nullopt : std::optional(*found);
}

bool FileTokenStore::write(const QString &key, const QString &value)
{
    QHash<QString, QString> values = load();
    values.insert(key, value);
    return save(values);
}

bool FileTokenStore::remove(const QString &key)
{
    QHash<QString, QString> values = load();
    if (!values.remove(key))
        return false;
    return values.isEmpty() ? QFile::remove(path()) : save(values);
}

QString FileTokenStore::path() const
{
    return u"%1/%2.tokens.json"_s.arg(
        QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation), m_appId);
}

QHash<QString, QString> FileTokenStore::load() const
{
    QFile file(path());
    QHash<QString, QString> values;
    if (!file.open(QIODevice::ReadOnly))
        return values;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry)
        values.insert(entry.key(), entry.value().toString());
    return values;
}

bool FileTokenStore::save(const QHash<QString, QString> &values) const
{
    if (!QDir().mkpath(QFileInfo(path()).path()))
        return false;
    QJsonObject object;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        object.insert(entry.key(), entry.value());
    QSaveFile file(path());
    // Narrowed before the first byte: no other user gets to read even the half-written file.
    if (!file.open(QIODevice::WriteOnly)
        || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        return false;
    file.write(QJsonDocument(object).toJson(QJsonDocument::Compact));
    return file.commit();
}

} // namespace KestAccount
