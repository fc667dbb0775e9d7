#pragma once

class AccountRepository;
class CategoryRepository;
class PreferencesRepository;
class ReconciliationRepository;
class RecurringRepository;
class TransactionRepository;

// Where the synced rows and the pull cursor live. None is owned.
struct SyncRepositories
{
    AccountRepository *accounts = nullptr;
    TransactionRepository *transactions = nullptr;
    CategoryRepository *categories = nullptr;
    RecurringRepository *recurring = nullptr;
    ReconciliationRepository *reconciliations = nullptr;
    PreferencesRepository *preferences = nullptr;
};
