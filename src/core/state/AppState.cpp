#include "core/state/AppState.h"

#include "core/Dates.h"
#include "core/state/ServiceEndpoints.h"
#include "core/state/SyncTriggers.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/DataDirectory.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"
#include "kestaccount/ApiClient.h"
#include "kestaccount/Client.h"
#include "services/BackupService.h"
#include "services/CategoryService.h"
#include "services/ImportService.h"
#include "services/RecurringService.h"
#include "services/ReportService.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/ThemeManager.h"
#include "sync/AccountSharingService.h"
#include "sync/SyncEngine.h"

#include <QApplication>
#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kLastViewedAccountKey{"lastViewedAccountId"};
constexpr int kDefaultFontScale = 100;

}

AppState::AppState(QObject *parent)
    : QObject(parent)
{
}

// Each step needs the ones above it.
bool AppState::initialize()
{
    if (!openDatabase())
        return false;
    createRepositories();
    m_categoryService = new CategoryService(m_categories, this);
    m_recurringService =
        new RecurringService(m_recurring, m_transactions, m_accounts, this, m_database);
    m_reportService = new ReportService(m_database, this);
    m_importService = new ImportService(m_transactions, m_categories, m_splitLines, this);
    m_backupService = new BackupService(m_database, this);
    createSync();
    applyLook();
    readWeekStart();
    m_categoryService->seedDefaults();
    restoreSession(this);
    connectSyncTriggers(this);
    // Whether that account still exists is for the window to find out, which must cope with an
    // account that goes away later all the same.
    m_currentAccountId = m_preferences->getOr(kLastViewedAccountKey, {});
    Q_EMIT databaseReady();
    return true;
}

bool AppState::openDatabase()
{
    m_database = new Database(this);
    const QString path = databasePath();
    qInfo() << "Opening database at:" << path;
    return m_database->open(path) && m_database->migrate();
}

void AppState::createRepositories()
{
    m_accounts = new AccountRepository(m_database, this);
    m_transactions = new TransactionRepository(m_database, this);
    m_categories = new CategoryRepository(m_database, this);
    m_preferences = new PreferencesRepository(m_database, this);
    m_splitLines = new SplitLineRepository(m_database, this);
    m_recurring = new RecurringRepository(m_database, this);
    m_reconciliations = new ReconciliationRepository(m_database, this);
}

void AppState::createSync()
{
    const ServiceEndpoints endpoints = serviceEndpoints();
    qInfo() << "Auth:" << endpoints.account.authBaseUrl
            << "Account:" << endpoints.account.accountApiUrl << "Sync:" << endpoints.syncApiUrl;
    m_accountClient = new KestAccount::Client(endpoints.account, this);
    KestAccount::ApiClient *syncApi = m_accountClient->syncApi();
    syncApi->setBaseUrl(QUrl(endpoints.syncApiUrl));
    m_syncEngine = new SyncEngine(syncApi, m_accounts, m_transactions, m_categories, m_recurring,
                                  m_reconciliations, m_preferences, this);
    m_syncEngine->setSignedInCheck(
        [this] { return m_accountClient && m_accountClient->isAuthenticated(); });
    m_sharingService = new AccountSharingService(syncApi, this);
}

void AppState::applyLook()
{
    baseFont() = QApplication::font(); // taken before the theme sets a scaled one
    bool isNumber = false;
    const int percent = m_preferences->getOr(u"fontScale"_s, {}).toInt(&isNumber);
    fontScale() = std::clamp(isNumber ? percent : kDefaultFontScale, kMinFontScale, kMaxFontScale);
    m_themeManager = new ThemeManager(m_preferences, this);
    m_themeManager->setThemeByName(m_preferences->getOr(u"theme"_s, u"system"_s));
}

void AppState::readWeekStart()
{
    bool isNumber = false;
    const int day = m_preferences->getOr(u"weekStartDay"_s, {}).toInt(&isNumber);
    if (isNumber && day >= Qt::Monday && day <= Qt::Sunday)
        weekStart() = day; // otherwise the locale's first day stays
}

void AppState::setCurrentAccountId(const QString &id)
{
    if (id == m_currentAccountId)
        return;
    m_currentAccountId = id;
    m_preferences->set(kLastViewedAccountKey,
                       id.isNull() ? u""_s : id); // a null text is stored as NULL
    Q_EMIT currentAccountChanged(id);
}
