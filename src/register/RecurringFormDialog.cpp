#include "register/RecurringFormDialog.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/DueDates.h"
#include "data/TransactionRepository.h"
#include "register/AmountBox.h"
#include "register/CategoryChoices.h"
#include "register/DateInput.h"
#include "register/FieldLabel.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QDebug>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStringListModel>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 480; // pixels
constexpr int kSymbolRole = Qt::UserRole + 1; // of an account's item: its currency symbol

QDateEdit *makeDateEdit(QWidget *parent, const QString &name, QDate date)
{
    auto *edit = new QDateEdit(date, parent);
    edit->setObjectName(name);
    edit->setCalendarPopup(true);
    DateInput::setUpCalendar(edit->calendarWidget());
    return edit;
}

template <typename Widget, typename... Arguments>
Widget *makeNamed(const QString &name, Arguments &&...arguments)
{
    auto *widget = new Widget(std::forward<Arguments>(arguments)...);
    widget->setObjectName(name);
    return widget;
}

} // namespace

RecurringFormDialog::RecurringFormDialog(AppState *appState, const QString &accountId,
                                         QWidget *parent, Clock today)
    : QDialog(parent)
    , m_appState(appState)
    , m_editMode(false)
    , m_isCreateFromSeed(false)
    , m_today(std::move(today))
{
    setWindowTitle(tr("New Recurring Transaction"));
    build();
    if (const int found = m_account->findData(accountId); found >= 0)
        m_account->setCurrentIndex(found);
    followAccount();
}

RecurringFormDialog::RecurringFormDialog(AppState *appState, Purpose purpose,
                                         const RecurringTransaction &recurring, QWidget *parent,
                                         Clock today)
    : QDialog(parent)
    , m_appState(appState)
    , m_original(recurring)
    , m_editMode(purpose == Purpose::Edit)
    , m_isCreateFromSeed(purpose == Purpose::Memorize)
    , m_today(std::move(today))
{
    setWindowTitle(m_editMode ? tr("Edit Recurring Transaction") : tr("Memorize Transaction"));
    build();
    showOriginal();
    followAccount();
}

void RecurringFormDialog::build()
{
    setObjectName(u"recurringFormDialog"_s);
    setMinimumWidth(kMinimumWidth);
    buildAccount();
    buildAmount();
    buildSchedule();
    auto *form = new QFormLayout(this);
    addRows(form);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    m_payee->setFocus();
}

void RecurringFormDialog::buildAccount()
{
    m_account = makeNamed<QComboBox>(u"accountCombo"_s, this);
    for (const Account &account : m_appState->accounts()->listActive()) {
        m_account->addItem(account.name, account.id);
        m_account->setItemData(m_account->count() - 1, currencySymbol(account.currency),
                               kSymbolRole);
    }

    m_payee = makeNamed<QLineEdit>(u"payeeEdit"_s, this);
    m_payee->setPlaceholderText(tr("Start typing to search payees..."));
    m_payees = new QStringListModel(this);
    auto *completer = new QCompleter(m_payees, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    m_payee->setCompleter(completer);
}

void RecurringFormDialog::buildAmount()
{
    m_amount = makeNamed<QDoubleSpinBox>(u"amountSpin"_s, this);
    m_amount->setRange(0.0, AmountBox::kLargest);
    m_amount->setPrefix(currencySymbol(Currency::USD));

    m_category = makeNamed<QComboBox>(u"categoryCombo"_s, this);
    m_category->addItem(tr("(none)"), QString());
    CategoryChoices::addPaths(*m_category, m_appState->categories()->listActive());

    m_memo = makeNamed<QLineEdit>(u"memoEdit"_s, this);
    m_memo->setPlaceholderText(tr("Optional"));
}

void RecurringFormDialog::buildSchedule()
{
    m_frequency = makeNamed<QComboBox>(u"frequencyCombo"_s, this);
    const auto offer = [this](const QString &text, Frequency frequency) {
        m_frequency->addItem(text, frequencyToString(frequency));
    };
    offer(tr("Daily"), Frequency::Daily);
    offer(tr("Weekly"), Frequency::Weekly);
    offer(tr("Bi-weekly"), Frequency::Biweekly);
    offer(tr("Monthly"), Frequency::Monthly);
    offer(tr("Quarterly"), Frequency::Quarterly);
    offer(tr("Semi-annual"), Frequency::SemiAnnual);
    offer(tr("Annual"), Frequency::Annual);
    m_frequency->setCurrentIndex(m_frequency->findData(frequencyToString(Frequency::Monthly)));

    m_startDate = makeDateEdit(this, u"startDateEdit"_s, m_today());
    m_hasEndDate = makeNamed<QCheckBox>(u"hasEndDateCheck"_s, tr("Has end date"), this);
    m_endDate = makeDateEdit(this, u"endDateEdit"_s, m_today());
    m_endDate->setEnabled(false);
    connect(m_hasEndDate, &QCheckBox::toggled, m_endDate, &QWidget::setEnabled);
    m_autoPost = makeNamed<QCheckBox>(u"autoPostCheck"_s, tr("Auto-post when due"), this);
    m_active = makeNamed<QCheckBox>(u"activeCheck"_s, tr("Active"), this);
    m_active->setChecked(true);
}

QWidget *RecurringFormDialog::buildType()
{
    auto *type = new QWidget(this);
    m_payment = makeNamed<QRadioButton>(u"paymentRadio"_s, tr("Payment"), type);
    m_deposit = makeNamed<QRadioButton>(u"depositRadio"_s, tr("Deposit"), type);
    m_payment->setChecked(true);
    auto *row = new QHBoxLayout(type);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_payment);
    row->addWidget(m_deposit);
    row->addStretch();
    return type;
}

void RecurringFormDialog::addRows(QFormLayout *form)
{
    form->addRow(tr("Account:"), m_account);
    QWidget *type = buildType();
    form->addRow(makeFieldLabel(tr("Type:"), m_payment), type);
    form->addRow(tr("Payee:"), m_payee);
    form->addRow(tr("Amount:"), m_amount);
    form->addRow(tr("Category:"), m_category);
    form->addRow(tr("Memo:"), m_memo);
    form->addRow(tr("Frequency:"), m_frequency);
    form->addRow(tr("Start Date:"), m_startDate);
    form->addRow(QString(), m_hasEndDate);
    form->addRow(tr("End Date:"), m_endDate);
    form->addRow(QString(), m_autoPost);
    form->addRow(QString(), m_active);
}

// Once the first account is selected, so that its payees are read only once.
void RecurringFormDialog::followAccount()
{
    connect(m_account, &QComboBox::currentIndexChanged, this,
            &RecurringFormDialog::onAccountChanged);
    onAccountChanged();
}

void RecurringFormDialog::onAccountChanged()
{
    const QString accountId = m_account->currentData().toString();
    m_payees->setStringList(accountId.isEmpty()
                                ? QStringList()
                                : m_appState->transactions()->payeesOfAccount(accountId));
    if (m_account->currentIndex() >= 0)
        m_amount->setPrefix(m_account->currentData(kSymbolRole).toString());
}

void RecurringFormDialog::showOriginal()
{
    m_account->setCurrentIndex(m_account->findData(m_original.account_id)); // none if it has gone
    m_deposit->setChecked(m_original.amount >= 0);
    m_payee->setText(m_original.payee);
    AmountBox::show(m_amount, absoluteMoney(m_original.amount));
    m_shownAmount = m_amount->value();
    m_memo->setText(m_original.memo);
    CategoryChoices::select(*m_category, m_original.category_id, *m_appState->categories());
    m_frequency->setCurrentIndex(m_frequency->findData(frequencyToString(m_original.frequency)));
    m_startDate->setDate(m_original.start_date);
    m_hasEndDate->setChecked(m_original.end_date.has_value());
    m_endDate->setDate(m_original.end_date.value_or(m_endDate->date()));
    m_autoPost->setChecked(m_original.auto_post);
    m_active->setChecked(m_original.is_active);
}

RecurringTransaction RecurringFormDialog::recurring() const
{
    RecurringTransaction recurring = m_original;
    if (!m_editMode) {
        recurring.id = newId();
        recurring.created_at = currentStamp();
    }
    if (m_account->currentIndex() >= 0)
        recurring.account_id = m_account->currentData().toString();
    recurring.payee = m_payee->text().trimmed();
    recurring.memo = m_memo->text().trimmed();
    recurring.category_id = m_category->currentData().toString();
    recurring.frequency = frequencyFromString(m_frequency->currentData().toString());
    recurring.amount = typedAmount();
    takeSchedule(recurring);
    mendDates(recurring);
    recurring.auto_post = m_autoPost->isChecked();
    recurring.is_active = m_active->isChecked();
    recurring.sync_status = SyncStatus::Pending;
    recurring.updated_at = currentStamp();
    if (m_editMode)
        ++recurring.version;
    return recurring;
}

qint64 RecurringFormDialog::typedAmount() const
{
    // An amount that the box cannot hold shows as the box's limit; left alone, it stays as it was.
    const qint64 amount = m_amount->value() == m_shownAmount ? absoluteMoney(m_original.amount)
                                                             : AmountBox::amountOf(m_amount);
    return m_payment->isChecked() ? negateMoney(amount) : amount;
}

void RecurringFormDialog::takeSchedule(RecurringTransaction &recurring) const
{
    const QDate start = m_startDate->date();
    qInfo() << "RecurringFormDialog::recurring() — m_editMode=" << m_editMode
            << "isCreateFromSeed=" << m_isCreateFromSeed << "widget.date=" << start
            << "m_original.startDate=" << m_original.start_date
            << "m_original.nextDueDate=" << m_original.next_due_date;
    recurring.end_date.reset();
    if (m_hasEndDate->isChecked())
        recurring.end_date = m_endDate->date();
    // An edit that leaves the start alone must not move a schedule that has gone on since.
    if (m_editMode && start == m_original.start_date)
        return;
    recurring.start_date = start;
    recurring.next_due_date = start;
}

void RecurringFormDialog::mendDates(RecurringTransaction &recurring) const
{
    if (isBrokenDueDate(recurring.start_date)) {
        qWarning() << "RecurringFormDialog: rejecting invalid startDate" << recurring.start_date
                   << "— falling back to today";
        recurring.start_date = m_today();
    }
    if (isBrokenDueDate(recurring.next_due_date)) {
        qWarning() << "RecurringFormDialog: rejecting invalid nextDueDate"
                   << recurring.next_due_date << "— falling back to startDate"
                   << recurring.start_date;
        recurring.next_due_date = recurring.start_date;
    }
}
