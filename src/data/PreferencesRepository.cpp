#include "data/PreferencesRepository.h"

#include "data/Queries.h"

using namespace Qt::StringLiterals;

PreferencesRepository::PreferencesRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

std::optional<QString> PreferencesRepository::get(const QString &key) const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT value FROM preferences WHERE key = ?"_s, {key});
    query.exec();
    return query.next() ? std::optional<QString>(textAt(query, 0)) : std::nullopt;
}

QString PreferencesRepository::getOr(const QString &key, const QString &defaultValue) const
{
    return get(key).value_or(defaultValue);
}

bool PreferencesRepository::getBool(const QString &key, bool defaultValue) const
{
    const std::optional<QString> value = get(key);
    return value ? *value == u"1"_s || *value == u"true"_s : defaultValue;
}

bool PreferencesRepository::set(const QString &key, const QString &value)
{
    QSqlQuery query = writeQuery(m_database,
                                 u"INSERT INTO preferences (key, value) VALUES (?, ?) "
                                 "ON CONFLICT(key) DO UPDATE SET value = excluded.value"_s,
                                 {key, value});
    if (!query.exec())
        return false;
    Q_EMIT changed(key);
    return true;
}

void PreferencesRepository::setBool(const QString &key, bool value)
{
    set(key, value ? u"1"_s : u"0"_s);
}

void PreferencesRepository::setInt(const QString &key, int value)
{
    set(key, QString::number(value));
}

bool PreferencesRepository::remove(const QString &key)
{
    return writeQuery(m_database, u"DELETE FROM preferences WHERE key = ?"_s, {key}).exec();
}
