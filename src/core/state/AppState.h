#pragma once

#include <QObject>
#include <QString>

class AccountRepository;
class AccountSharingService;
class BackupService;
class CategoryRepository;
class CategoryService;
class Database;
class ImportService;
class PreferencesRepository;
class ReconciliationRepository;
class RecurringRepository;
class RecurringService;
class ReportService;
class SplitLineRepository;
class SyncEngine;
class ThemeManager;
class TransactionRepository;

namespace KestAccount {
class Client;
}

// Creates and owns the database, the repositories and the services, through which all screens reach
// them, and keeps the current account. The pointers are null until initialize.
//
// The database is the first to be destroyed; nothing may touch a repository after that.
class AppState : public QObject
{
    Q_OBJECT

public:
    explicit AppState(QObject *parent = nullptr); // does no work, so that signals can be connected

    // Once. False when the database cannot be opened or brought up to date; the log tells why.
    bool initialize();

    Database *database() const { return m_database; }
    AccountRepository *accounts() const { return m_accounts; }
    TransactionRepository *transactions() const { return m_transactions; }
    CategoryRepository *categories() const { return m_categories; }
    PreferencesRepository *preferences() const { return m_preferences; }
    SplitLineRepository *splitLines() const { return m_splitLines; }
    RecurringRepository *recurring() const { return m_recurring; }
    ReconciliationRepository *reconciliations() const { return m_reconciliations; }
    CategoryService *categoryService() const { return m_categoryService; }
    RecurringService *recurringService() const { return m_recurringService; }
    ReportService *reportService() const { return m_reportService; }
    ImportService *importService() const { return m_importService; }
    BackupService *backupService() const { return m_backupService; }
    AccountSharingService *sharingService() const { return m_sharingService; }
    KestAccount::Client *accountClient() const { return m_accountClient; }
    SyncEngine *syncEngine() const { return m_syncEngine; }
    ThemeManager *themeManager() const { return m_themeManager; }

    // Empty when none is selected. At start the one that was shown last, which may be gone by now.
    QString currentAccountId() const { return m_currentAccountId; }
    void setCurrentAccountId(const QString &id); // kept for the next start

Q_SIGNALS:
    void currentAccountChanged(const QString &accountId); // not by initialize
    void databaseReady(); // once, when initialize has succeeded

private:
    bool openDatabase();
    void createRepositories();
    void createSync();
    void applyLook();
    void readWeekStart();

    Database *m_database = nullptr;
    AccountRepository *m_accounts = nullptr;
    TransactionRepository *m_transactions = nullptr;
    CategoryRepository *m_categories = nullptr;
    PreferencesRepository *m_preferences = nullptr;
    SplitLineRepository *m_splitLines = nullptr;
    RecurringRepository *m_recurring = nullptr;
    ReconciliationRepository *m_reconciliations = nullptr;
    CategoryService *m_categoryService = nullptr;
    RecurringService *m_recurringService = nullptr;
    ReportService *m_reportService = nullptr;
    ImportService *m_importService = nullptr;
    BackupService *m_backupService = nullptr;
    AccountSharingService *m_sharingService = nullptr;
    KestAccount::Client *m_accountClient = nullptr;
    SyncEngine *m_syncEngine = nullptr;
    ThemeManager *m_themeManager = nullptr;
    QString m_currentAccountId{};
};
