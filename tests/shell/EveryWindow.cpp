#include "shell/EveryWindow.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/TransactionRepository.h"
#include "kestupdate/UpdateDialog.h"
#include "kestupdate/WhatsNewDialog.h"
#include "register/SplitEditorDialog.h"
#include "register/TransactionDetailsDialog.h"
#include "screens/CategoryFormDialog.h"
#include "screens/CsvMappingForm.h"
#include "screens/QifMappingForm.h"
#include "services/ImportRecords.h"
#include "services/SampleDataService.h"
#include "shell/SignedInSupport.h"
#include "shell/WelcomeScreen.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray kUser = R"({"id":"1","email":"ann@example.com","display_name":"Ann Example"})";
const QByteArray kFamily = R"({"id":"g","name":"House","max_seats":5,"members":[
    {"account_id":"1","display_name":"Ann Example","email":"ann@example.com","role":"owner"},
    {"account_id":"2","display_name":"Bob Example","email":"bob@example.com","role":"member"},
    {"account_id":"3","email":"cy@example.com","role":"member"}],"pending_invitations":[
    {"id":"i","invited_email":"dee@example.com"},{"id":"j","invite_code":"ABCD-1234"}]})";
const QByteArray kDevices = R"({"devices":[{"id":"d","device_name":"Desk","platform":"Linux",
    "app_version":"1.0.10"}]})";
const QByteArray kSessions = R"({"sessions":[{"id":"1","user_agent":"Browser","is_current":true},
    {"id":"2","user_agent":"Elsewhere","last_active_at":"2020-02-03T12:00:00Z"}]})";
const QByteArray kShares = R"({"members":[{"user_id":"2","role":"member"}]})";

} // namespace

EveryWindow::EveryWindow(Visitor visitor)
    : m_visitor(std::move(visitor))
{
    forgetStoredTokens();
    pointServicesAt(m_service);
    m_shell = std::make_unique<ShellFixture>();
}

void EveryWindow::visitAll()
{
    visitPages();
    visitForms();
    visitScreens();
    visitReports();
    visitImport();
    visitPreferences();
    visitUpdates();
    visitFamily();
}

void EveryWindow::visit(const QString &name, QWidget *window)
{
    showActive(window);
    QCoreApplication::processEvents(); // layouts that answer to the first size
    m_visitor(name, window);
}

void EveryWindow::open(const QString &name, const QString &action,
                       const std::function<void(QWidget *)> &look)
{
    const auto lookAt = [&](QWidget *window) {
        if (look)
            look(window);
        else
            visit(name, window);
    };
    { // gone before the window opens dialogs of its own
        const DialogAnswer answer(name, lookAt);
        m_shell->trigger(action);
        if (answer.wasAsked())
            return;
    }
    auto *window = m_shell->find<QWidget>(name);
    if (!window || !window->isVisible())
        qFatal("%s does not open", qPrintable(name));
    lookAt(window);
    window->close();
}

void EveryWindow::press(QWidget *window, const QString &button, const QString &dialog)
{
    const DialogAnswer answer(dialog, [&](QWidget *opened) { visit(dialog, opened); });
    window->findChild<QAbstractButton *>(button)->click();
    if (!answer.wasAsked())
        qFatal("%s does not open", qPrintable(dialog));
}

void EveryWindow::visitPages()
{
    MainWindow *window = m_shell->openWindow();
    visit(u"welcome page"_s, window);
    m_shell->find<WelcomeScreen>(u"welcomeScreen"_s)->setReturningUser(true);
    visit(u"welcome back"_s, window);
    m_shell->find<QStackedWidget>(u"stack"_s)
        ->setCurrentWidget(m_shell->find<QWidget>(u"emptyPage"_s));
    visit(u"empty page"_s, window);
    SampleDataService(m_shell->state()->database()).loadSampleData();
    visit(u"register"_s, m_shell->openWindow());
    m_shell->state()->preferences()->setBool(u"registerTwoLine"_s, true);
    visit(u"two-line register"_s, m_shell->window());
}

void EveryWindow::visitForms()
{
    AppState *state = m_shell->state();
    open(u"accountFormDialog"_s, u"newAccountAction"_s);
    open(u"accountFormDialog"_s, u"editAccountAction"_s);
    open(u"transactionFormDialog"_s, u"newTransactionAction"_s);
    open(u"deleteAccountQuestion"_s, u"deleteAccountAction"_s);
    open(u"aboutBox"_s, u"aboutAction"_s);
    open(u"shortcutsBox"_s, u"shortcutsAction"_s);

    SplitEditorDialog splits(state, -10000, {}, m_shell->window());
    visit(u"split editor"_s, &splits);
    splits.reject();
    Transaction transaction =
        state->transactions()->listByAccount(state->currentAccountId()).first();
    transaction.is_split = true;
    TransactionDetailsDialog details(state, transaction, m_shell->window());
    visit(u"details"_s, &details);
    details.reject();
    const QList<Category> categories = state->categories()->listActive();
    CategoryFormDialog category(categories.first().id, categories, m_shell->window());
    visit(u"category form"_s, &category);
}

void EveryWindow::visitScreens()
{
    open(u"recurringScreen"_s, u"recurringAction"_s, [this](QWidget *screen) {
        visit(u"recurring"_s, screen);
        press(screen, u"newButton"_s, u"recurringFormDialog"_s);
    });
    open(u"reconciliationHistoryScreen"_s, u"reconciliationHistoryAction"_s); // empty
    const QDateTime now = currentStamp();
    m_shell->state()->reconciliations()->insert({.id = newId(),
                                                 .account_id = m_shell->state()->currentAccountId(),
                                                 .statement_date = QDate(2026, 9, 30),
                                                 .statement_balance = -123456,
                                                 .reconciled_balance = -123456,
                                                 .completed_at = now,
                                                 .created_at = now,
                                                 .updated_at = now});
    open(u"reconciliationHistoryScreen"_s, u"reconciliationHistoryAction"_s);
    open(u"reconciliationScreen"_s, u"reconcileAction"_s);
    open(u"categoriesScreen"_s, u"categoriesAction"_s);
    open(u"searchScreen"_s, u"findAction"_s, [this](QWidget *screen) {
        screen->findChild<QCheckBox *>(u"dateRangeCheck"_s)->click();
        visit(u"search"_s, screen);
    });
    open(u"payeeScreen"_s, u"payeesAction"_s);
}

void EveryWindow::visitReports()
{
    open(u"reportsScreen"_s, u"reportsAction"_s, [this](QWidget *screen) {
        auto *period = screen->findChild<QComboBox *>(u"periodCombo"_s);
        period->setCurrentIndex(9); // all time
        auto *tabs = screen->findChild<QTabWidget *>(u"reportTabs"_s);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            visit(u"report "_s + tabs->tabText(tab), screen);
        }
        tabs->setCurrentIndex(5);
        for (const QString &name : {u"periodCombo"_s, u"comparisonCombo"_s}) {
            auto *combo = screen->findChild<QComboBox *>(name);
            combo->setCurrentIndex(combo->count() - 1); // a range of one's own
        }
        visit(u"report of two chosen periods"_s, screen);
    });
}

void EveryWindow::visitImport()
{
    open(u"importScreen"_s, u"importAction"_s, [this](QWidget *screen) {
        QTemporaryFile file;
        if (!file.open() || file.write("Day,Payee,Amount\n2024-01-04,Kiosk,-1\n") < 0)
            qFatal("no file to import");
        file.close();
        screen->findChild<CsvMappingForm *>()->showFile(file.fileName());
        visit(u"import CSV"_s, screen);
        screen->findChild<QAbstractButton *>(u"qifRadio"_s)->click();
        auto *form = screen->findChild<QifMappingForm *>();
        form->showSources({{.sourceKey = u"1"_s, .displayName = u"Giro"_s}}, {});
        form->show();
        visit(u"import QIF"_s, screen);
        screen->findChild<QStackedWidget *>(u"pages"_s)->setCurrentIndex(1);
        visit(u"import summary"_s, screen);
    });
}

void EveryWindow::visitPreferences()
{
    AccountRepository *accounts = m_shell->state()->accounts();
    accounts->softDelete(accounts->listActive().last().id); // to be offered for restoring
    open(u"settingsScreen"_s, u"preferencesAction"_s, [this](QWidget *screen) {
        auto *navigation = screen->findChild<QListWidget *>();
        for (int page = 0; page < navigation->count(); ++page) {
            navigation->setCurrentRow(page);
            visit(u"preferences "_s + QString::number(page), screen);
        }
    });
}

void EveryWindow::visitUpdates()
{
    KestUpdate::UpdateDialog update({.version = u"1.0.11"_s,
                                     .url = m_service.url(u"/new"_s),
                                     .releaseNotesUrl = m_service.url(u"/notes"_s)},
                                    u"1.0.10"_s, u"Kestrelwood Pursewell"_s, m_shell->window());
    visit(u"update"_s, &update);
    update.reject();
    KestUpdate::WhatsNewDialog notes(u"Faster"_s, u"1.0.11"_s, u"1.0.10"_s,
                                     u"Kestrelwood Pursewell"_s, m_shell->window(),
                                     m_service.url(u"/new"_s));
    visit(u"what's new"_s, &notes);
    notes.reject();
}

void EveryWindow::visitFamily()
{
    const QString realm = u"GET /api/v1/realms/kestrelwood/users/me"_s;
    const QString accountId = m_shell->state()->currentAccountId();
    m_service.answer(realm, {{.body = kUser}});
    m_service.answer(realm + u"/sessions"_s, {{.body = kSessions}});
    m_service.answer(u"GET /account/v1/profile"_s, {{.body = kUser}});
    m_service.answer(u"GET /account/v1/group"_s, {{.body = kFamily}});
    m_service.answer(u"GET /account/v1/devices"_s, {{.body = kDevices}});
    m_service.answer(u"GET /pursewell/v1/accounts/%1/members"_s.arg(accountId),
                     {{.body = kShares}});
    signIn(*m_shell->state());
    const auto waitFor = [](QWidget *window, const QString &name) {
        if (!QTest::qWaitFor([&] { return window->findChild<QWidget *>(name) != nullptr; }))
            qFatal("%s does not come", qPrintable(name));
    };
    open(u"accountScreen"_s, u"accountAction"_s, [&](QWidget *screen) {
        for (const QString &row : {u"memberRow"_s, u"deviceRow"_s, u"sessionRow"_s})
            waitFor(screen, row);
        auto *navigation = screen->findChild<QListWidget *>();
        for (int page = 0; page < navigation->count(); ++page) {
            navigation->setCurrentRow(page);
            visit(u"account "_s + QString::number(page), screen);
        }
    });
    open(u"shareMembersDialog"_s, u"shareAccountAction"_s, [&](QWidget *dialog) {
        waitFor(dialog, u"shareRow"_s);
        waitFor(dialog, u"candidateRow"_s);
        visit(u"sharing"_s, dialog);
    });
    open(u"settingsScreen"_s, u"preferencesAction"_s, [this](QWidget *screen) {
        screen->findChild<QListWidget *>()->setCurrentRow(2);
        visit(u"preferences signed in"_s, screen);
    });
}
