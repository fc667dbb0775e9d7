#include "data/CategoryType.h"

#include "core/EnumWords.h"

using namespace Qt::StringLiterals;

namespace {
constexpr EnumWords<3> kCategoryTypeWords{"income"_L1, "expense"_L1, "transfer"_L1};
}

QString categoryTypeToString(CategoryType type)
{
    return enumToWord(kCategoryTypeWords, type, CategoryType::Expense);
}

CategoryType categoryTypeFromString(const QString &word)
{
    return enumFromWord(kCategoryTypeWords, word, CategoryType::Expense);
}
