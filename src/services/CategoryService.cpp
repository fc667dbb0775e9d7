#include "services/CategoryService.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/CategoryRepository.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kExpense{"expense"};
constexpr QLatin1StringView kIncome{"income"};

struct DefaultCategory
{
    const char *name; // to be translated
    QLatin1StringView type;
    const char *parent; // the name of an earlier row; null at the top level
    QLatin1StringView tax_code{};
};

// clang-format off
constexpr DefaultCategory kDefaultCategories[]{
    {QT_TRANSLATE_NOOP("CategoryService", "Charitable Donations"), kExpense, nullptr, "charitable_contributions"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Medical Expenses"), kExpense, nullptr, "medical_dental"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Business Expenses"), kExpense, nullptr, "business_expense"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Home Office"), kExpense, "Business Expenses", "home_office"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Education Expenses"), kExpense, nullptr, "education"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "State & Local Taxes"), kExpense, nullptr, "salt"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Mortgage Interest"), kExpense, nullptr, "mortgage_interest"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Property Tax"), kExpense, nullptr, "schedule_a_property_tax"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Housing"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Rent/Mortgage Payment"), kExpense, "Housing"},
    {QT_TRANSLATE_NOOP("CategoryService", "Maintenance"), kExpense, "Housing"},
    {QT_TRANSLATE_NOOP("CategoryService", "HOA"), kExpense, "Housing"},
    {QT_TRANSLATE_NOOP("CategoryService", "Utilities"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Electric"), kExpense, "Utilities"},
    {QT_TRANSLATE_NOOP("CategoryService", "Gas"), kExpense, "Utilities"},
    {QT_TRANSLATE_NOOP("CategoryService", "Water"), kExpense, "Utilities"},
    {QT_TRANSLATE_NOOP("CategoryService", "Internet"), kExpense, "Utilities"},
    {QT_TRANSLATE_NOOP("CategoryService", "Phone"), kExpense, "Utilities"},
    {QT_TRANSLATE_NOOP("CategoryService", "Transportation"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Gas/Fuel"), kExpense, "Transportation"},
    {QT_TRANSLATE_NOOP("CategoryService", "Car Payment"), kExpense, "Transportation"},
    {QT_TRANSLATE_NOOP("CategoryService", "Auto Insurance"), kExpense, "Transportation"},
    {QT_TRANSLATE_NOOP("CategoryService", "Maintenance"), kExpense, "Transportation"},
    {QT_TRANSLATE_NOOP("CategoryService", "Public Transit"), kExpense, "Transportation"},
    {QT_TRANSLATE_NOOP("CategoryService", "Groceries"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Dining & Restaurants"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Personal Care"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Pets"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Subscriptions"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Gifts"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Miscellaneous"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Entertainment"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Streaming"), kExpense, "Entertainment"},
    {QT_TRANSLATE_NOOP("CategoryService", "Movies"), kExpense, "Entertainment"},
    {QT_TRANSLATE_NOOP("CategoryService", "Events"), kExpense, "Entertainment"},
    {QT_TRANSLATE_NOOP("CategoryService", "Shopping"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Clothing"), kExpense, "Shopping"},
    {QT_TRANSLATE_NOOP("CategoryService", "Electronics"), kExpense, "Shopping"},
    {QT_TRANSLATE_NOOP("CategoryService", "Household"), kExpense, "Shopping"},
    {QT_TRANSLATE_NOOP("CategoryService", "Insurance"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Health"), kExpense, "Insurance"},
    {QT_TRANSLATE_NOOP("CategoryService", "Life"), kExpense, "Insurance"},
    {QT_TRANSLATE_NOOP("CategoryService", "Home/Renters"), kExpense, "Insurance"},
    {QT_TRANSLATE_NOOP("CategoryService", "Auto"), kExpense, "Insurance"},
    {QT_TRANSLATE_NOOP("CategoryService", "Fees & Charges"), kExpense, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Bank Fees"), kExpense, "Fees & Charges"},
    {QT_TRANSLATE_NOOP("CategoryService", "ATM Fees"), kExpense, "Fees & Charges"},
    {QT_TRANSLATE_NOOP("CategoryService", "Late Fees"), kExpense, "Fees & Charges"},
    {QT_TRANSLATE_NOOP("CategoryService", "Salary / Wages"), kIncome, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Interest Income"), kIncome, nullptr, "interest_income"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Dividend Income"), kIncome, nullptr, "dividend_income"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Rental Income"), kIncome, nullptr, "rental_income"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Freelance / Consulting"), kIncome, nullptr, "self_employment"_L1},
    {QT_TRANSLATE_NOOP("CategoryService", "Refunds"), kIncome, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Gifts Received"), kIncome, nullptr},
    {QT_TRANSLATE_NOOP("CategoryService", "Other Income"), kIncome, nullptr},
};
// clang-format on

} // namespace

CategoryService::CategoryService(CategoryRepository *categories, QObject *parent)
    : QObject(parent)
    , m_categories(categories)
{
}

void CategoryService::seedDefaults()
{
    if (m_categories->countActive() == 0)
        insertDefaultCategories();
}

void CategoryService::insertDefaultCategories()
{
    m_defaultIdByName.clear();
    m_defaultNameById.clear();
    for (const DefaultCategory &row : kDefaultCategories) {
        const QString parentId = row.parent ? m_defaultIdByName.value(tr(row.parent)) : QString();
        addDefaultCategory(tr(row.name), row.type, parentId, !row.tax_code.isEmpty(), row.tax_code);
    }
}

// The id is made from the translated name: devices in one language share their categories, devices
// in different languages have their own.
void CategoryService::addDefaultCategory(const QString &name, const QString &typeWord,
                                         const QString &parentId, bool isTaxRelevant,
                                         const QString &taxCategory)
{
    const QString parentName = m_defaultNameById.value(parentId);
    Category category;
    category.id =
        deterministicId(categoryNamespace(), u"%1:%2:%3"_s.arg(typeWord, parentName, name));
    category.name = name;
    category.category_type = categoryTypeFromString(typeWord);
    category.parent_id = parentId;
    category.is_tax_relevant = isTaxRelevant;
    category.tax_category = taxCategory;
    category.is_default = true;
    category.created_at = currentStamp();
    category.updated_at = category.created_at;
    m_categories->insert(category); // a row of an earlier seeding stays as it is
    m_defaultIdByName[name] = category.id;
    m_defaultNameById[category.id] = name;
}
