#include "shell/MainWindow.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/PreferencesRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterScreen.h"
#include "services/RecurringService.h"
#include "shell/AccountList.h"
#include "shell/EmptyPage.h"
#include "shell/ListResizeWatcher.h"
#include "shell/StatusBar.h"
#include "shell/WelcomeScreen.h"
#include "shell/theme/ButtonStyles.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/ThemeManager.h"

#include <QCloseEvent>
#include <QLabel>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kGeometryKey{"mainwindow/geometry"};
constexpr QLatin1StringView kSplitterKey{"mainwindow/splitter"};
constexpr QSize kDefaultSize{1280, 900};
constexpr int kMinSidebarWidth = 260;
constexpr int kMaxSidebarWidth = 500;
constexpr int kTotalHeight = 32;

// The choices that change what the register shows or how.
bool concernsRegister(const QString &preference)
{
    return preference == "registerTwoLine"_L1 || preference == "registerNewestFirst"_L1
        || preference == "weekStartDay"_L1 || preference == "theme"_L1;
}

} // namespace

MainWindow::MainWindow(AppState *appState, QWidget *parent)
    : QMainWindow(parent)
    , m_appState(appState)
{
    setWindowTitle(tr("Kestrelwood Pursewell"));
    restoreWindowGeometry();
    buildMenus();
    buildPages();
    buildSidebar();
    buildSplitter();
    m_statusBar = new StatusBar(this);
    m_statusBar->setObjectName(u"statusBar"_s);
    setStatusBar(m_statusBar);
    connectChanges();
    connectSync();
    connectSignIn();
    applyTheme();
    postDueRecurring(); // before the list, which then sums the balances once
    populateAccountList();
    watchDueCount();
    restoreInitialView();
    openAccountAfterFirstSync();
}

void MainWindow::restoreWindowGeometry()
{
    const QByteArray geometry = QSettings().value(kGeometryKey).toByteArray();
    if (geometry.isEmpty() || !restoreGeometry(geometry))
        resize(kDefaultSize);
}

void MainWindow::buildPages()
{
    m_welcomeScreen = new WelcomeScreen(this);
    m_welcomeScreen->setObjectName(u"welcomeScreen"_s);
    m_registerScreen = new RegisterScreen(m_appState, this);
    m_registerScreen->setObjectName(u"registerScreen"_s);
    m_emptyPage = new EmptyPage(this);
    m_emptyPage->setObjectName(u"emptyPage"_s);

    connect(m_registerScreen, &RegisterScreen::reconcileRequested, this,
            &MainWindow::showReconciliationWindow);
    connect(m_registerScreen, &RegisterScreen::errorMessage, this,
            [this](const QString &text) { m_statusBar->showTimedMessage(text, 5000); });
    connect(m_welcomeScreen, &WelcomeScreen::createAccountRequested, this,
            &MainWindow::showNewAccountDialog);
    connect(m_emptyPage, &EmptyPage::createAccountRequested, this,
            &MainWindow::showNewAccountDialog);

    m_stack = new QStackedWidget;
    m_stack->setObjectName(u"stack"_s);
    m_stack->addWidget(m_welcomeScreen);
    m_stack->addWidget(m_registerScreen);
    m_stack->addWidget(m_emptyPage);
}

void MainWindow::buildSidebar()
{
    m_accountList = new AccountList;
    m_accountList->setObjectName(u"accountList"_s);
    // The list itself hears of a new size while its viewport still has the old one.
    m_accountList->viewport()->installEventFilter(
        new ListResizeWatcher([this] { fitListRows(); }, this));
    connect(m_accountList, &QListWidget::itemClicked, this, &MainWindow::onAccountClicked);
    connect(m_accountList, &QWidget::customContextMenuRequested, this,
            &MainWindow::onAccountContextMenu);
    connect(m_accountList->model(), &QAbstractItemModel::rowsMoved, this, &MainWindow::onRowsMoved);
    connect(m_accountList, &AccountList::dragFinished, this, &MainWindow::schedulePopulate);

    m_totalLabel = new QLabel;
    m_totalLabel->setObjectName(u"totalLabel"_s);
    m_totalLabel->setAlignment(Qt::AlignCenter);
    m_totalLabel->setFixedHeight(kTotalHeight);
    m_totalLabel->setStyleSheet(
        u"background: %1; color: %2; border-top: 1px solid %3; padding: 4px;"_s.arg(
            u"#1E3028"_s, u"#8FAF9F"_s, u"#152420"_s));
    applyFontRole(m_totalLabel, FontRole::BodyMedium);
}

void MainWindow::buildSplitter()
{
    auto *sidebar = new QWidget;
    sidebar->setObjectName(u"sidebar"_s);
    sidebar->setMinimumWidth(kMinSidebarWidth);
    sidebar->setMaximumWidth(kMaxSidebarWidth);
    auto *column = new QVBoxLayout(sidebar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_accountList, 1);
    column->addWidget(m_totalLabel);

    m_splitter = new QSplitter(Qt::Horizontal);
    m_splitter->setObjectName(u"splitter"_s);
    m_splitter->addWidget(sidebar);
    m_splitter->addWidget(m_stack);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    const QSettings settings;
    if (settings.contains(kSplitterKey))
        m_splitter->restoreState(settings.value(kSplitterKey).toByteArray());
    else
        m_splitter->setSizes({280, 1000});
    connect(m_splitter, &QSplitter::splitterMoved, this, &MainWindow::fitListRows);
    setCentralWidget(m_splitter);
}

void MainWindow::connectChanges()
{
    m_populateTimer.setSingleShot(true);
    connect(&m_populateTimer, &QTimer::timeout, this, &MainWindow::onPopulateTimeout);
    connect(m_appState->accounts(), &AccountRepository::accountsChanged, this,
            &MainWindow::onAccountsChanged);
    connect(m_appState->transactions(), &TransactionRepository::transactionsChanged, this,
            &MainWindow::schedulePopulate);
    connect(m_appState->transactions(), &TransactionRepository::bulkWriteFinished, this,
            &MainWindow::schedulePopulate);
    connect(m_appState->preferences(), &PreferencesRepository::changed, this,
            [this](const QString &key) {
                if (concernsRegister(key))
                    m_registerScreen->refresh();
            });
    connect(m_appState->themeManager(), &ThemeManager::themeChanged, this, &MainWindow::applyTheme);
    // The height of a row and the room for its figure were measured in the old font.
    connect(m_appState->themeManager(), &ThemeManager::fontScaleChanged, this,
            &MainWindow::schedulePopulate);
}

// Once a start: what falls due while the program is open waits for the next one, or for a person to
// confirm it.
void MainWindow::postDueRecurring()
{
    const int posted = m_appState->recurringService()->processAutoPost();
    if (posted > 0)
        m_statusBar->showTimedMessage(
            tr("Auto-posted %n recurring transaction(s)", nullptr, posted), 5000);
}

void MainWindow::watchDueCount()
{
    m_dueCountTimer.setSingleShot(true);
    connect(&m_dueCountTimer, &QTimer::timeout, this, &MainWindow::showDueCount);
    const auto schedule = [this] { m_dueCountTimer.start(0); };
    connect(m_appState->recurringService(), &RecurringService::pendingCountChanged, this, schedule);
    connect(m_appState->recurring(), &RecurringRepository::recurringChanged, this, schedule);
    showDueCount();
}

void MainWindow::showDueCount()
{
    m_statusBar->setRecurringDueCount(m_appState->recurringService()->pendingCount());
}

void MainWindow::applyTheme()
{
    m_statusBar->applyThemeColors();
    m_welcomeScreen->applyThemeColors();
    restyleButtons(m_splitter);
    m_accountList->setStyleSheet(accountListStyle());
}

void MainWindow::restoreInitialView()
{
    const QString accountId = m_appState->currentAccountId();
    if (!accountId.isEmpty() && m_appState->accounts()->findById(accountId)) {
        selectAccount(accountId);
        return;
    }
    const QList<Account> accounts = m_appState->accounts()->listActive();
    if (accounts.isEmpty())
        showNothingOpen();
    else
        selectAccount(accounts.first().id);
}

void MainWindow::selectAccount(const QString &accountId)
{
    m_appState->setCurrentAccountId(accountId);
    m_registerScreen->setAccount(accountId);
    m_stack->setCurrentWidget(m_registerScreen);
    const int row = m_accountList->rowOf(accountId);
    if (row >= 0)
        m_accountList->setCurrentRow(row);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    QSettings settings;
    settings.setValue(kGeometryKey, saveGeometry());
    if (m_splitter)
        settings.setValue(kSplitterKey, m_splitter->saveState());
    QMainWindow::closeEvent(event);
}
