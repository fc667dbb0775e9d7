#include "screens/CategoryFormDialog.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "shell/theme/FieldHint.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMinimumWidth = 420; // pixels
}

CategoryFormDialog::CategoryFormDialog(const Category &category, const QList<Category> &categories,
                                       QWidget *parent)
    : QDialog(parent)
    , m_category(category)
    , m_parentId(category.parent_id)
    , m_editMode(true)
{
    setWindowTitle(tr("Edit Category"));
    build(categories);
    showCategory();
}

CategoryFormDialog::CategoryFormDialog(const QString &parentId, const QList<Category> &categories,
                                       QWidget *parent)
    : QDialog(parent)
    , m_parentId(parentId)
    , m_editMode(false)
{
    setWindowTitle(parentId.isEmpty() ? tr("New Category") : tr("New Subcategory"));
    build(categories);
}

void CategoryFormDialog::build(const QList<Category> &categories)
{
    setObjectName(u"categoryFormDialog"_s);
    setMinimumWidth(kMinimumWidth);
    m_name = new QLineEdit(this);
    m_name->setObjectName(u"nameEdit"_s);
    setFieldHint(m_name, tr("Category name"));
    m_type = new QComboBox(this);
    m_type->setObjectName(u"typeCombo"_s);
    m_type->addItem(tr("Expense"), categoryTypeToString(CategoryType::Expense));
    m_type->addItem(tr("Income"), categoryTypeToString(CategoryType::Income));
    m_taxRelevant = new QCheckBox(tr("Tax-relevant"), this);
    m_taxRelevant->setObjectName(u"taxRelevantCheck"_s);
    m_taxRelevant->setToolTip(tr("Mark this category for inclusion in tax-time reports."));
    m_taxCode = new QLineEdit(this);
    m_taxCode->setObjectName(u"taxCodeEdit"_s);
    setFieldHint(m_taxCode, tr("e.g. charitable_contributions, mortgage_interest"));
    m_taxCode->setEnabled(false);
    connect(m_taxRelevant, &QCheckBox::toggled, m_taxCode, &QWidget::setEnabled);

    auto *form = new QFormLayout(this);
    addParent(form, categories);
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Type:"), m_type);
    form->addRow(QString(), m_taxRelevant);
    form->addRow(tr("Tax &Code:"), m_taxCode);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    m_name->setFocus();
}

void CategoryFormDialog::addParent(QFormLayout *form, const QList<Category> &categories)
{
    if (m_parentId.isEmpty())
        return;
    auto *label = new QLabel(this);
    label->setObjectName(u"parentLabel"_s);
    label->setTextFormat(Qt::PlainText); // a name is a person's words
    for (const Category &category : categories) {
        if (category.id == m_parentId)
            label->setText(category.name);
    }
    form->addRow(tr("&Parent:"), label);
}

// A category of transfers finds no item and shows as an expense, which it is saved as: transfers
// are made by the register, and no category of theirs is offered here.
void CategoryFormDialog::showCategory()
{
    m_name->setText(m_category.name);
    const int found = m_type->findData(categoryTypeToString(m_category.category_type));
    if (found >= 0)
        m_type->setCurrentIndex(found);
    m_taxRelevant->setChecked(m_category.is_tax_relevant);
    m_taxCode->setText(m_category.tax_category);
}

Category CategoryFormDialog::category() const
{
    Category category = m_category;
    if (!m_editMode) {
        category.id = newId();
        category.created_at = currentStamp();
        category.parent_id = m_parentId;
    }
    category.name = m_name->text().trimmed();
    category.category_type = categoryTypeFromString(m_type->currentData().toString());
    category.is_tax_relevant = m_taxRelevant->isChecked();
    category.tax_category = m_taxRelevant->isChecked() ? m_taxCode->text().trimmed() : QString();
    category.updated_at = currentStamp();
    category.sync_status = SyncStatus::Pending;
    return category;
}
