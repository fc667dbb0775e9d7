#pragma once

#include <QList>

class CategoryRepository;
class QComboBox;
class QString;
struct Category;

// Categories as the items of a combo box, with their ids as user data.
namespace CategoryChoices {

// A subcategory reads "%1 > %2", with its parent's name in front.
void addPaths(QComboBox &combo, const QList<Category> &categories);

int find(const QComboBox &combo, const QString &text); // the item of exactly this text, or -1

// Selects the category, and does nothing if there is none. One that was deleted since it was used
// becomes an item of its own first: a form that cannot show it would take it away.
void select(QComboBox &combo, const QString &categoryId, const CategoryRepository &categories);

}
