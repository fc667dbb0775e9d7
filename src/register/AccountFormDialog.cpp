#include "register/AccountFormDialog.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "register/AccountTypeName.h"
#include "register/AmountBox.h"
#include "register/DateInput.h"
#include "shell/theme/FieldHint.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 400; // pixels

void selectData(QComboBox *combo, const QString &data)
{
    if (const int found = combo->findData(data); found >= 0)
        combo->setCurrentIndex(found);
}

} // namespace

AccountFormDialog::AccountFormDialog(QWidget *parent)
    : QDialog(parent)
    , m_editMode(false)
{
    build();
    setWindowTitle(tr("New Account"));
}

AccountFormDialog::AccountFormDialog(const Account &account, QWidget *parent)
    : QDialog(parent)
    , m_account(account)
    , m_editMode(true)
{
    build();
    setWindowTitle(tr("Edit Account"));
    showAccount();
}

void AccountFormDialog::build()
{
    setObjectName(u"accountFormDialog"_s);
    setMinimumWidth(kMinimumWidth);
    m_name = new QLineEdit(this);
    m_name->setObjectName(u"nameEdit"_s);
    setFieldHint(m_name, tr("Account name"));
    buildChoices();
    m_balance = new QDoubleSpinBox(this);
    m_balance->setObjectName(u"balanceSpin"_s);
    m_balance->setRange(-AmountBox::kLargest, AmountBox::kLargest);
    m_balance->setPrefix(u"$ "_s);
    m_balance->setValue(0.0);
    m_startDate = new QDateEdit(QDate::currentDate(), this);
    m_startDate->setObjectName(u"startDateEdit"_s);
    m_startDate->setCalendarPopup(true);
    DateInput::setUpCalendar(m_startDate->calendarWidget());
    m_institution = new QLineEdit(this);
    m_institution->setObjectName(u"institutionEdit"_s);
    setFieldHint(m_institution, tr("Bank name (optional)"));
    m_number = new QLineEdit(this);
    m_number->setObjectName(u"numberEdit"_s);
    setFieldHint(m_number, tr("Last 4 digits (optional)"));
    m_number->setMaxLength(4);

    auto *form = new QFormLayout(this);
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Type:"), m_type);
    form->addRow(tr("&Currency:"), m_currency);
    form->addRow(tr("Starting &Balance:"), m_balance);
    form->addRow(tr("&As of:"), m_startDate);
    form->setRowVisible(m_startDate, !m_editMode); // it dates the opening transaction only
    form->addRow(tr("&Institution:"), m_institution);
    form->addRow(tr("Account &Number:"), m_number);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    m_name->setFocus();
}

void AccountFormDialog::buildChoices()
{
    m_type = new QComboBox(this);
    m_type->setObjectName(u"typeCombo"_s);
    for (const AccountType type :
         {AccountType::Checking, AccountType::Savings, AccountType::CreditCard, AccountType::Cash,
          AccountType::Investment, AccountType::Other})
        m_type->addItem(AccountTypeName::of(type), accountTypeToString(type));

    m_currency = new QComboBox(this);
    m_currency->setObjectName(u"currencyCombo"_s);
    for (const Currency currency : {Currency::USD, Currency::EUR, Currency::GBP, Currency::CAD,
                                    Currency::AUD, Currency::JPY}) {
        const QString code = currencyToString(currency);
        m_currency->addItem(u"%1 (%2)"_s.arg(code, currencySymbol(currency)), code);
    }
}

void AccountFormDialog::showAccount()
{
    m_name->setText(m_account.name);
    selectData(m_type, accountTypeToString(m_account.account_type));
    selectData(m_currency, currencyToString(m_account.currency));
    AmountBox::show(m_balance, m_account.starting_balance);
    m_shownBalance = m_balance->value();
    m_institution->setText(m_account.institution);
    m_number->setText(m_account.account_number_last4);
}

QDate AccountFormDialog::startDate() const
{
    return m_startDate->date();
}

Account AccountFormDialog::account() const
{
    Account account = m_account;
    if (!m_editMode) {
        account.id = newId();
        account.created_at = currentStamp();
    }
    account.name = m_name->text().trimmed();
    account.account_type = accountTypeFromString(m_type->currentData().toString());
    account.currency = currencyFromString(m_currency->currentData().toString());
    // A balance that the box cannot hold shows as the box's limit; left alone, it stays as it was.
    if (m_balance->value() != m_shownBalance)
        account.starting_balance = AmountBox::amountOf(m_balance);
    account.institution = m_institution->text().trimmed();
    account.account_number_last4 = m_number->text().trimmed();
    account.updated_at = currentStamp();
    account.sync_status = SyncStatus::Pending;
    return account;
}
