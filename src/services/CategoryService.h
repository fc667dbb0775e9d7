#pragma once

#include <QMap>
#include <QObject>

class CategoryRepository;

// Gives an empty database its default categories. Their ids depend on their names alone, so that
// two devices that seed apart from each other arrive at the same rows.
class CategoryService : public QObject
{
    Q_OBJECT

public:
    explicit CategoryService(CategoryRepository *categories,
                             QObject *parent = nullptr); // not owned

    void seedDefaults(); // nothing if there is any live category
    void insertDefaultCategories(); // rows that exist already are kept and logged

private:
    void addDefaultCategory(const QString &name, const QString &typeWord, const QString &parentId,
                            bool isTaxRelevant, const QString &taxCategory);

    CategoryRepository *m_categories;
    QMap<QString, QString> m_defaultIdByName{}; // of the seeding under way
    QMap<QString, QString> m_defaultNameById{};
};
