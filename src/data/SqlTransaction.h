#pragma once

class Database;

// Several writes that belong together: undone when it goes out of scope, unless committed before.
// Inside a transaction that is open already it joins that one and leaves the end to it.
class SqlTransaction
{
public:
    explicit SqlTransaction(Database *database); // not owned
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction &) = delete;
    SqlTransaction &operator=(const SqlTransaction &) = delete;

    bool commit(); // false when the database refused; everything is undone then

private:
    Database *m_database;
    bool m_open;
};
