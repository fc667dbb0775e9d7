#pragma once

#include "data/CategoryType.h"

#include <QHash>
#include <QString>

class CategoryRepository;

// The live categories by their exact names, completed as an import meets new ones. A name with a
// colon is one flat name.
class ImportCategories
{
public:
    explicit ImportCategories(CategoryRepository *categories); // not owned; reads them all

    // The category of this name, stored now if there was none. Empty for no name, and when the
    // category is refused.
    QString idOf(const QString &name, CategoryType typeOfNew = CategoryType::Expense);

    bool failedOnDisk() const { return m_failedOnDisk; } // one was refused for want of room

private:
    CategoryRepository *m_categories;
    QHash<QString, QString> m_idByName{};
    bool m_failedOnDisk = false;
};
