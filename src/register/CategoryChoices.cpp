#include "register/CategoryChoices.h"

#include "data/CategoryRepository.h"

#include <QComboBox>
#include <QHash>

using namespace Qt::StringLiterals;

void CategoryChoices::addPaths(QComboBox &combo, const QList<Category> &categories)
{
    QHash<QString, QString> names;
    for (const Category &category : categories)
        names.insert(category.id, category.name);
    for (const Category &category : categories) {
        const bool isChild = names.contains(category.parent_id);
        combo.addItem(isChild ? u"%1 > %2"_s.arg(names.value(category.parent_id), category.name)
                              : category.name,
                      category.id);
    }
}

int CategoryChoices::find(const QComboBox &combo, const QString &text)
{
    return combo.findData(text, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void CategoryChoices::select(QComboBox &combo, const QString &categoryId,
                             const CategoryRepository &categories)
{
    if (categoryId.isEmpty())
        return;
    if (combo.findData(categoryId) < 0) {
        const auto category = categories.findById(categoryId);
        if (!category)
            return;
        combo.addItem(category->name, category->id);
    }
    combo.setCurrentIndex(combo.findData(categoryId));
}
