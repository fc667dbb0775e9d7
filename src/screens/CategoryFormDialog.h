#pragma once

#include "data/Category.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

// Enters or changes a category. Nothing is stored: the caller takes category() when it is accepted.
class CategoryFormDialog : public QDialog
{
    Q_OBJECT

public:
    // Changes a category. The list names the parent.
    CategoryFormDialog(const Category &category, const QList<Category> &categories,
                       QWidget *parent = nullptr);
    // A new one; an empty parent id makes it a top-level category.
    CategoryFormDialog(const QString &parentId, const QList<Category> &categories,
                       QWidget *parent = nullptr);

    // The category as typed, pending. A new one gets its id with each call. The name may be empty.
    Category category() const;

private:
    void build(const QList<Category> &categories);
    void addParent(QFormLayout *form, const QList<Category> &categories);
    void showCategory();

    Category m_category;
    QString m_parentId;
    bool m_editMode;
    QLineEdit *m_name = nullptr;
    QComboBox *m_type = nullptr;
    QCheckBox *m_taxRelevant = nullptr;
    QLineEdit *m_taxCode = nullptr;
};
