#pragma once

#include <QObject>
#include <QString>

#include <optional>

class Database;

// Table "preferences": the person's choices by key. Failed writes leave no log line.
class PreferencesRepository : public QObject
{
    Q_OBJECT

public:
    explicit PreferencesRepository(Database *database, QObject *parent = nullptr); // not owned

    std::optional<QString> get(const QString &key) const; // a stored NULL is present and empty
    QString getOr(const QString &key, const QString &defaultValue) const;
    bool getBool(const QString &key, bool defaultValue) const; // true for "1" and "true" only

    bool set(const QString &key, const QString &value);
    void setBool(const QString &key, bool value);
    void setInt(const QString &key, int value);
    bool remove(const QString &key); // emits nothing

Q_SIGNALS:
    void changed(const QString &key); // after every write, also of the same value

private:
    Database *m_database;
};
