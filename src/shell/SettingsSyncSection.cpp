#include "shell/SettingsSyncSection.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "shell/SettingsSections.h"
#include "shell/theme/MoneyColors.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;
using SyncState = SyncEngine::SyncState;

namespace {

constexpr QLatin1StringView kCursorKey{"lastSyncTimestamp"};

QColor colorOf(SyncState state)
{
    switch (state) {
    case SyncState::Idle:
        return positiveColor();
    case SyncState::Syncing:
        return QColor(0x00, 0x89, 0x7B);
    case SyncState::Error:
        return negativeColor();
    case SyncState::Offline:
        break;
    }
    return isDarkPalette() ? QColor(0xFF, 0xA7, 0x26) : QColor(0xE6, 0x51, 0x00);
}

} // namespace

SettingsSyncSection::SettingsSyncSection(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_statusLabel(new QLabel)
    , m_lastSyncLabel(new QLabel)
{
    m_statusLabel->setObjectName(u"syncStatusLabel"_s);
    m_statusLabel->setWordWrap(true);
    m_lastSyncLabel->setObjectName(u"lastSyncLabel"_s);
    m_lastSyncLabel->setTextFormat(Qt::PlainText);
    m_lastSyncLabel->setWordWrap(true);
    m_buttonRow = buildButtons();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(
        makeSection(tr("Sync"), tr("Keep your pursewell in sync across all your devices.")));
    column->addWidget(m_statusLabel);
    column->addWidget(m_lastSyncLabel);
    column->addWidget(m_buttonRow);
    const auto follow = [this] {
        if (isVisible())
            refresh();
    };
    connect(m_appState->syncEngine(), &SyncEngine::stateChanged, this, follow);
    connect(m_appState->syncEngine(), &SyncEngine::syncFailed, this, follow);
    connect(m_appState->accountClient(), &KestAccount::Client::authStateChanged, this, follow);
}

// What happened while another page was shown.
void SettingsSyncSection::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

QWidget *SettingsSyncSection::buildButtons()
{
    m_syncNowButton = new QPushButton(tr("Sync Now"));
    m_syncNowButton->setObjectName(u"syncNowButton"_s);
    connect(m_syncNowButton, &QPushButton::clicked, this, &SettingsSyncSection::syncNow);
    m_fullSyncButton = new QPushButton(tr("Force Full Sync"));
    m_fullSyncButton->setObjectName(u"fullSyncButton"_s);
    connect(m_fullSyncButton, &QPushButton::clicked, this, &SettingsSyncSection::confirmFullSync);
    auto *row = new QWidget;
    row->setObjectName(u"syncButtons"_s);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_syncNowButton);
    layout->addWidget(m_fullSyncButton);
    layout->addStretch();
    return row;
}

void SettingsSyncSection::refresh()
{
    showState();
    const KestAccount::User user = m_appState->accountClient()->authClient()->currentUser();
    if (m_appState->accountClient()->isAuthenticated() && user.displayName.isEmpty()
        && user.email.isEmpty())
        askForUser();
}

void SettingsSyncSection::showState()
{
    const bool isSignedIn = m_appState->accountClient()->isAuthenticated();
    m_statusLabel->setTextFormat(isSignedIn ? Qt::RichText : Qt::PlainText);
    m_statusLabel->setText(
        isSignedIn ? stateLine()
                   : tr("Not signed in.\nSign in via File › Kestrelwood Account to enable sync."));
    m_lastSyncLabel->setText(lastSyncLine());
    m_lastSyncLabel->setVisible(isSignedIn);
    m_buttonRow->setVisible(isSignedIn);
}

QString SettingsSyncSection::stateLine() const
{
    const SyncState state = m_appState->syncEngine()->state();
    return tr("<b>Signed in as:</b> %1<br><b>Status:</b> <span style=\"color:%2\">%3</span>")
        .arg(userName().toHtmlEscaped(), colorOf(state).name().toUpper(),
             SyncEngine::stateText(state).toHtmlEscaped());
}

QString SettingsSyncSection::userName() const
{
    const KestAccount::AuthClient *auth = m_appState->accountClient()->authClient();
    const KestAccount::User user = auth->currentUser();
    if (!user.displayName.isEmpty())
        return user.displayName;
    return user.email.isEmpty() ? auth->userId() : user.email;
}

QString SettingsSyncSection::lastSyncLine() const
{
    const QString stored = m_appState->preferences()->getOr(kCursorKey, {});
    const QDateTime stamp = QDateTime::fromString(stored, Qt::ISODate);
    const QString time =
        stamp.isValid() ? QLocale().toString(stamp.toLocalTime(), u"MMM d, h:mm ap"_s) : stored;
    const QString line = stored.isEmpty() ? tr("Never synced") : tr("Last synced: %1").arg(time);
    const QString error = m_appState->syncEngine()->lastError();
    return error.isEmpty() ? line : line + tr("\nError: %1").arg(error);
}

// The service may not know a name either, so that its answer is not to bring the next question.
void SettingsSyncSection::askForUser()
{
    if (m_isAsking)
        return;
    m_isAsking = true;
    m_appState->accountClient()->authClient()->fetchCurrentUser(
        [self = QPointer(this)](const KestAccount::User &) {
            if (!self)
                return;
            self->m_isAsking = false;
            self->showState();
        });
}

void SettingsSyncSection::syncNow()
{
    m_appState->syncEngine()->syncNow();
    awaitPass();
}

void SettingsSyncSection::confirmFullSync()
{
    QMessageBox question(QMessageBox::Question, tr("Force Full Sync"),
                         tr("This will re-upload every local row to the server and re-download all "
                            "server data. Use this if data appears out of sync between devices."
                            "\n\nContinue?"),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"fullSyncQuestion"_s);
    question.setDefaultButton(QMessageBox::No);
    if (question.exec() != QMessageBox::Yes)
        return;
    m_focusAfterPass = nullptr; // of a pass that this one replaces
    runFullSync();
}

// A pass that is under way would write its own cursor over the removed one, and the full download
// would not take place.
void SettingsSyncSection::runFullSync()
{
    m_appState->syncEngine()->abandonPass();
    markAllPending();
    m_appState->preferences()->remove(kCursorKey);
    m_appState->syncEngine()->syncNow();
    disable(m_fullSyncButton);
    awaitPass();
}

void SettingsSyncSection::markAllPending()
{
    const int accounts = m_appState->accounts()->markAllPendingForResync();
    const int categories = m_appState->categories()->markAllPendingForResync();
    const int transactions = m_appState->transactions()->markAllPendingForResync();
    const int recurrings = m_appState->recurring()->markAllPendingForResync();
    const int reconciliations = m_appState->reconciliations()->markAllPendingForResync();
    qInfo().noquote() << "Force Full Sync: marked pending \u2014 accounts:" << accounts
                      << "categories:" << categories << "transactions:" << transactions
                      << "recurrings:" << recurrings << "reconciliations:" << reconciliations;
}

void SettingsSyncSection::awaitPass()
{
    disable(m_syncNowButton);
    m_syncNowButton->setText(tr("Syncing..."));
    disconnect(m_passConnection);
    m_passConnection = connect(m_appState->syncEngine(), &SyncEngine::stateChanged, this,
                               &SettingsSyncSection::onStateChanged);
    onStateChanged(m_appState->syncEngine()->state()); // it may have refused
}

void SettingsSyncSection::disable(QPushButton *button)
{
    const bool hadFocus = window()->focusWidget() == button; // also behind the question
    button->setEnabled(false);
    if (!hadFocus)
        return;
    m_focusAfterPass = button;
    m_focusMeanwhile = window()->focusWidget();
}

void SettingsSyncSection::onStateChanged(SyncState state)
{
    if (state == SyncState::Syncing)
        return;
    disconnect(m_passConnection);
    m_syncNowButton->setEnabled(true);
    m_fullSyncButton->setEnabled(true);
    m_syncNowButton->setText(tr("Sync Now"));
    if (m_focusAfterPass && window()->focusWidget() == m_focusMeanwhile)
        m_focusAfterPass->setFocus(); // unless the user has gone elsewhere
    m_focusAfterPass = nullptr;
    Q_EMIT passEnded();
}
