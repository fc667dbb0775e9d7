#pragma once

#include <QString>

enum class CategoryType { Income, Expense, Transfer };

QString categoryTypeToString(CategoryType type); // an unknown value gives "expense"
CategoryType categoryTypeFromString(const QString &word); // an unknown word reads as Expense
