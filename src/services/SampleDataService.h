#pragma once

#include <QDate>
#include <QHash>
#include <QObject>
#include <QVariant>

#include <functional>

class Database;
struct SampleCategory;

// Fills an empty installation with a small household to try the program on, and takes it away
// again. Its rows are known by their ids, which begin with "sample-". No repository tells of these
// writes: whoever calls must refresh what is shown. A statement that fails is passed over.
class SampleDataService : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>; // the local date

    explicit SampleDataService(Database *database, QObject *parent = nullptr,
                               Clock today = &QDate::currentDate); // database not owned

    bool hasSampleData() const;

    // Texts are in the language of the moment, and so are the names by which the categories are
    // found; a category that is not found is left out. Does not ask whether data is there already.
    void loadSampleData();

    // Deletes for good. A row that a person added to a sample account keeps the sample accounts.
    void clearSampleData();

private:
    void mapCategories();
    void insertAccounts();
    void insertTransactions();
    void insertTemplates();
    QVariant categoryId(const SampleCategory &category) const; // NULL when there is none
    QString dayText(int day) const;

    Database *m_database;
    Clock m_today;
    QDate m_anchor{}; // of the loading under way, like the rest
    QString m_stamp{};
    QHash<QString, QString> m_categoryIds{}; // by "name", or "parent/name" for a child
};
