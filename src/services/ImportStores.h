#pragma once

class CategoryRepository;
class SplitLineRepository;
class TransactionRepository;

// Where an import writes; nothing is owned.
struct ImportStores
{
    TransactionRepository *transactions = nullptr;
    CategoryRepository *categories = nullptr;
    SplitLineRepository *splitLines = nullptr;
};
