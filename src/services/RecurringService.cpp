#include "services/RecurringService.h"

#include "core/Dates.h"
#include "data/DueDates.h"
#include "data/RecurringRepository.h"
#include "data/SqlTransaction.h"
#include "services/OccurrencePoster.h"
#include "services/RecurringSchedule.h"

#include <QDebug>
#include <QMetaMethod>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Beyond the first occurrence of a tick. A template that reaches the mark is taken for a broken
// one, even if it is up to date by then.
constexpr int kCatchupLimit = 365;
constexpr int kCatchupCapMark = 364;

} // namespace

RecurringService::RecurringService(RecurringRepository *recurring,
                                   TransactionRepository *transactions, AccountRepository *accounts,
                                   QObject *parent, Database *database, Clock today)
    : QObject(parent)
    , m_recurring(recurring)
    , m_transactions(transactions)
    , m_accounts(accounts)
    , m_database(database)
    , m_today(std::move(today))
{
}

bool RecurringService::confirm(const RecurringTransaction &recurring)
{
    OccurrencePoster poster(m_transactions, m_accounts);
    const std::optional<RecurringTransaction> fresh = m_recurring->findById(recurring.id);
    return fresh && confirmFresh(*fresh, poster);
}

bool RecurringService::confirmFresh(const RecurringTransaction &fresh, OccurrencePoster &poster)
{
    if (isBrokenDueDate(fresh.next_due_date)) {
        qWarning() << "RecurringService::confirm refusing record with broken date:" << fresh.id
                   << fresh.payee << fresh.next_due_date << "— quarantining (deactivating)";
        deactivate(fresh);
        return false;
    }
    const std::unique_ptr<SqlTransaction> together = begin();
    const bool done = poster.post(fresh) && advance(fresh);
    // What was posted stays even if the template could not be moved on: its id then refuses a
    // second posting of the occurrence.
    if (!commit(together.get()) || !done)
        return false;
    announcePendingCount();
    return true;
}

// Any date may be skipped: that is the way out for a template that cannot be posted.
bool RecurringService::skip(const RecurringTransaction &recurring)
{
    const std::optional<RecurringTransaction> fresh = m_recurring->findById(recurring.id);
    if (!fresh || !advance(*fresh))
        return false;
    announcePendingCount();
    return true;
}

bool RecurringService::advance(RecurringTransaction recurring)
{
    recurring.next_due_date = computeNextDate(recurring.next_due_date, recurring.frequency);
    if (recurring.end_date && recurring.next_due_date > *recurring.end_date)
        recurring.is_active = false;
    return save(recurring);
}

bool RecurringService::save(RecurringTransaction &recurring)
{
    recurring.updated_at = currentStamp();
    recurring.sync_status = SyncStatus::Pending;
    return m_recurring->update(recurring);
}

int RecurringService::confirmAllDue()
{
    OccurrencePoster poster(m_transactions, m_accounts);
    const std::unique_ptr<SqlTransaction> together = begin();
    int confirmed = 0;
    for (const RecurringTransaction &due : m_recurring->listDue())
        confirmed += confirmFresh(due, poster) ? 1 : 0;
    return commit(together.get()) ? confirmed : 0;
}

int RecurringService::processAutoPost()
{
    OccurrencePoster poster(m_transactions, m_accounts);
    const std::unique_ptr<SqlTransaction> together = begin();
    int posted = 0;
    for (const RecurringTransaction &due : m_recurring->listDue()) {
        if (due.auto_post)
            posted += autoPost(due, poster);
    }
    return commit(together.get()) ? posted : 0;
}

int RecurringService::autoPost(const RecurringTransaction &due, OccurrencePoster &poster)
{
    if (isBrokenDueDate(due.next_due_date)) {
        quarantine(due, "broken next_due_date");
        return 0;
    }
    if (!confirmFresh(due, poster))
        return 0;
    const int caughtUp = catchUp(due.id, poster);
    if (caughtUp >= kCatchupCapMark) {
        if (const auto fresh = m_recurring->findById(due.id))
            quarantine(*fresh, "hit catchup cap in single tick");
    }
    return 1 + caughtUp;
}

int RecurringService::catchUp(const QString &id, OccurrencePoster &poster)
{
    int caughtUp = 0;
    QDate previous;
    while (caughtUp < kCatchupLimit) {
        const std::optional<RecurringTransaction> fresh = m_recurring->findById(id);
        if (!fresh || !fresh->is_active || !fresh->next_due_date.isValid())
            break;
        if (isBrokenDueDate(fresh->next_due_date)) {
            quarantine(*fresh, "advanced to broken date during catchup");
            break;
        }
        // A date that did not move would be posted for ever.
        if (fresh->next_due_date > m_today() || fresh->next_due_date == previous)
            break;
        previous = fresh->next_due_date;
        if (!confirmFresh(*fresh, poster))
            break;
        ++caughtUp;
    }
    return caughtUp;
}

void RecurringService::quarantine(const RecurringTransaction &recurring, const char *reason)
{
    qWarning() << "Quarantining recurring" << recurring.id << recurring.payee
               << "— auto-deactivating. Reason:" << reason
               << "nextDueDate=" << recurring.next_due_date;
    if (const auto fresh = m_recurring->findById(recurring.id))
        deactivate(*fresh);
}

void RecurringService::deactivate(RecurringTransaction recurring)
{
    // A date that cannot be read cannot be written back, and its column refuses to be empty: the
    // template as a whole cannot be saved then, only its switch.
    if (!recurring.next_due_date.isValid() || !recurring.start_date.isValid()) {
        m_recurring->deactivate(recurring.id);
        return;
    }
    recurring.is_active = false;
    save(recurring);
}

int RecurringService::pendingCount() const
{
    return static_cast<int>(m_recurring->listDue().size());
}

QList<RecurringTransaction> RecurringService::listAll() const
{
    return m_recurring->listActive();
}

// A long catch-up would read the due list once for each occurrence: not for nobody.
void RecurringService::announcePendingCount()
{
    if (isSignalConnected(QMetaMethod::fromSignal(&RecurringService::pendingCountChanged)))
        Q_EMIT pendingCountChanged(pendingCount());
}

std::unique_ptr<SqlTransaction> RecurringService::begin() const
{
    return m_database ? std::make_unique<SqlTransaction>(m_database) : nullptr;
}

bool RecurringService::commit(SqlTransaction *together) const
{
    if (!together || together->commit())
        return true;
    qWarning() << "RecurringService: the database refused to store the postings";
    return false;
}
