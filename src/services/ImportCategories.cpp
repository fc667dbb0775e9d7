#include "services/ImportCategories.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/CategoryRepository.h"

ImportCategories::ImportCategories(CategoryRepository *categories)
    : m_categories(categories)
{
    for (const Category &category : categories->listActive())
        m_idByName.insert(category.name, category.id);
}

QString ImportCategories::idOf(const QString &name, CategoryType typeOfNew)
{
    if (name.isEmpty())
        return {};
    const auto known = m_idByName.constFind(name);
    if (known != m_idByName.constEnd())
        return *known;
    Category category;
    category.id = newId();
    category.name = name;
    category.category_type = typeOfNew;
    category.created_at = currentStamp();
    category.updated_at = category.created_at;
    if (!m_categories->insert(category)) {
        m_failedOnDisk = m_failedOnDisk || m_categories->insertFailedOnDisk();
        return {};
    }
    return *m_idByName.insert(name, category.id);
}
