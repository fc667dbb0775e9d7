#include "register/TransactionFormDialog.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"
#include "register/AmountBox.h"
#include "register/CategoryChoices.h"
#include "register/DateField.h"
#include "register/FieldLabel.h"
#include "register/SmartAmountField.h"
#include "register/SplitEditorDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinimumWidth = 480; // pixels

// A pile of receipts is typed in with many dialogs, mostly of one day.
QDate &lastFormDate()
{
    static QDate date;
    return date;
}

} // namespace

TransactionFormDialog::TransactionFormDialog(AppState *appState, const QString &accountId,
                                             QWidget *parent)
    : QDialog(parent)
    , m_appState(appState)
    , m_accountId(accountId)
    , m_editMode(false)
{
    build();
    setWindowTitle(tr("New Transaction"));
    if (lastFormDate().isValid())
        m_date->setDate(lastFormDate());
    updateSplitDisplay();
}

TransactionFormDialog::TransactionFormDialog(AppState *appState, const Transaction &transaction,
                                             QWidget *parent)
    : QDialog(parent)
    , m_appState(appState)
    , m_accountId(transaction.account_id)
    , m_transaction(transaction)
    , m_editMode(true)
{
    build();
    setWindowTitle(tr("Edit Transaction"));
    showTransaction();
}

// In the order of the rows, which is the order of Tab.
void TransactionFormDialog::build()
{
    setObjectName(u"transactionFormDialog"_s);
    setMinimumWidth(kMinimumWidth);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    QHBoxLayout *type = buildType();
    form->addRow(makeFieldLabel(tr("Type:"), m_payment), type);
    m_date = new DateField(this);
    m_date->setObjectName(u"dateField"_s);
    form->addRow(tr("Date:"), m_date);
    buildPayee();
    form->addRow(tr("Payee:"), m_payee);
    buildAmount();
    form->addRow(tr("Amount:"), m_amount);
    QHBoxLayout *category = buildCategory();
    form->addRow(makeFieldLabel(tr("Category:"), m_category), category);
    m_memo = makeOptionalEdit(u"memoEdit"_s);
    form->addRow(tr("Memo:"), m_memo);
    m_checkNumber = makeOptionalEdit(u"checkNumberEdit"_s);
    form->addRow(tr("Check #:"), m_checkNumber);
    m_cleared = new QCheckBox(tr("Cleared"), this);
    m_cleared->setObjectName(u"clearedCheck"_s);
    form->addRow(QString(), m_cleared);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(12);
    layout->addWidget(buttons);
    m_payee->setFocus();
}

QHBoxLayout *TransactionFormDialog::buildType()
{
    m_payment = new QRadioButton(tr("Payment"), this);
    m_payment->setObjectName(u"paymentRadio"_s);
    m_payment->setChecked(true);
    m_deposit = new QRadioButton(tr("Deposit"), this);
    m_deposit->setObjectName(u"depositRadio"_s);
    connect(m_payment, &QRadioButton::toggled, this, &TransactionFormDialog::negateLines);
    auto *row = new QHBoxLayout;
    row->addWidget(m_payment);
    row->addWidget(m_deposit);
    row->addStretch();
    return row;
}

void TransactionFormDialog::buildPayee()
{
    m_payee = new QLineEdit(this);
    m_payee->setObjectName(u"payeeEdit"_s);
    m_payee->setPlaceholderText(tr("Start typing to search payees..."));
    auto *completer = new QCompleter(m_appState->transactions()->allPayees(), m_payee);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setMaxVisibleItems(10);
    m_payee->setCompleter(completer);
    connect(completer, qOverload<const QString &>(&QCompleter::activated), this,
            &TransactionFormDialog::onPayeeSelected);
}

void TransactionFormDialog::buildAmount()
{
    m_amount = new SmartAmountField(this);
    m_amount->setObjectName(u"amountField"_s);
    m_amount->setRange(0.0, AmountBox::kLargest);
    m_amount->setPrefix(tr("$ "));
}

QHBoxLayout *TransactionFormDialog::buildCategory()
{
    m_category = new QComboBox(this);
    m_category->setObjectName(u"categoryCombo"_s);
    m_category->setEditable(true);
    m_category->setInsertPolicy(QComboBox::NoInsert);
    // One long name must not make the dialog as wide as the screen.
    m_category->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_category->setMinimumContentsLength(12);
    m_category->addItem(tr("(none)"), QString());
    CategoryChoices::addPaths(*m_category, m_appState->categories()->listActive());
    m_category->setCurrentIndex(0);
    QCompleter *completer = m_category->completer();
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    connect(completer, qOverload<const QString &>(&QCompleter::activated), m_category,
            [this](const QString &text) {
                if (const int found = CategoryChoices::find(*m_category, text); found >= 0)
                    m_category->setCurrentIndex(found);
            });
    m_splitButton = new QPushButton(this);
    m_splitButton->setObjectName(u"splitButton"_s);
    m_splitButton->setToolTip(
        tr("Split this transaction across multiple categories with their own amounts and memos."));
    connect(m_splitButton, &QPushButton::clicked, this, &TransactionFormDialog::onOpenSplitEditor);
    m_clearSplitButton = new QPushButton(tr("Clear split"), this);
    m_clearSplitButton->setObjectName(u"clearSplitButton"_s);
    m_clearSplitButton->setToolTip(
        tr("Drop the split and return to a single-category transaction."));
    connect(m_clearSplitButton, &QPushButton::clicked, this, &TransactionFormDialog::onClearSplit);
    auto *row = new QHBoxLayout;
    row->addWidget(m_category, 1);
    // Return saves the form, also from here: the editor gives the focus back to its button.
    m_splitButton->setAutoDefault(false);
    m_clearSplitButton->setAutoDefault(false);
    row->addWidget(m_splitButton);
    row->addWidget(m_clearSplitButton);
    return row;
}

QLineEdit *TransactionFormDialog::makeOptionalEdit(const QString &objectName)
{
    auto *edit = new QLineEdit(this);
    edit->setObjectName(objectName);
    edit->setPlaceholderText(tr("Optional"));
    return edit;
}

void TransactionFormDialog::showTransaction()
{
    if (m_transaction.date.isValid()) // otherwise today, as in the grid
        m_date->setDate(m_transaction.date);
    m_payee->setText(m_transaction.payee);
    showAmount(m_transaction.amount);
    m_shownAmount = m_amount->value();
    CategoryChoices::select(*m_category, m_transaction.category_id, *m_appState->categories());
    m_memo->setText(m_transaction.memo);
    m_checkNumber->setText(m_transaction.check_number);
    m_cleared->setChecked(m_transaction.cleared);
    if (m_transaction.is_split)
        m_splitLines = m_appState->splitLines()->listByTransaction(m_transaction.id);
    updateSplitDisplay();
}

void TransactionFormDialog::showAmount(qint64 amount)
{
    (amount < 0 ? m_payment : m_deposit)->setChecked(true);
    AmountBox::show(m_amount, absoluteMoney(amount));
}

void TransactionFormDialog::updateSplitDisplay()
{
    const bool split = !m_splitLines.isEmpty();
    m_category->setEnabled(!split);
    m_category->setEditText(split ? tr("—Split—")
                                  : m_category->itemText(m_category->currentIndex()));
    m_clearSplitButton->setVisible(split);
    m_splitButton->setText(split ? tr("Edit splits...") : tr("Split..."));
}

// Lines carry the sign of their transaction, also when that becomes a deposit after they were made.
void TransactionFormDialog::negateLines()
{
    for (SplitLine &line : m_splitLines)
        line.amount = negateMoney(line.amount);
}

void TransactionFormDialog::onPayeeSelected(const QString &payee)
{
    const auto last = m_appState->transactions()->lastForPayee(payee, m_accountId);
    if (!last)
        return;
    showAmount(last->amount);
    m_memo->setText(last->memo);
    const int found = last->category_id.isEmpty() ? -1 : m_category->findData(last->category_id);
    if (found < 0)
        return;
    m_category->setCurrentIndex(found);
    updateSplitDisplay(); // the box of a split does not name one category
}

void TransactionFormDialog::onOpenSplitEditor()
{
    const qint64 total = typedAmount();
    if (total == 0 && m_splitLines.isEmpty()) {
        m_amount->setFocus();
        m_amount->selectAll();
        return;
    }
    SplitEditorDialog editor(m_appState, total, m_splitLines, this);
    if (editor.exec() != QDialog::Accepted)
        return;
    m_splitLines = editor.splitLines();
    if (total == 0 && m_payment->isChecked()) // a total of zero has no sign
        negateLines();
    updateSplitDisplay();
}

void TransactionFormDialog::onClearSplit()
{
    m_splitLines.clear();
    updateSplitDisplay();
}

qint64 TransactionFormDialog::typedAmount() const
{
    // An amount that the box cannot hold shows as the box's limit; left alone, it stays as it was.
    const qint64 amount = m_amount->value() == m_shownAmount ? absoluteMoney(m_transaction.amount)
                                                             : AmountBox::amountOf(m_amount);
    return m_payment->isChecked() ? negateMoney(amount) : amount;
}

QString TransactionFormDialog::typedCategoryId() const
{
    // Two categories can share a name; the one that was picked is meant then.
    const QString text = m_category->currentText();
    const int current = m_category->currentIndex();
    const int found =
        m_category->itemText(current) == text ? current : CategoryChoices::find(*m_category, text);
    return m_category->itemData(found).toString();
}

Transaction TransactionFormDialog::transaction() const
{
    Transaction transaction = m_transaction;
    if (!m_editMode) {
        transaction.id = newId();
        transaction.account_id = m_accountId;
        transaction.created_at = currentStamp();
    }
    transaction.date = m_date->date();
    transaction.payee = m_payee->text().trimmed();
    transaction.amount = typedAmount();
    transaction.is_split = !m_splitLines.isEmpty();
    if (!transaction.is_split)
        transaction.category_id = typedCategoryId();
    transaction.memo = m_memo->text().trimmed();
    transaction.check_number = m_checkNumber->text().trimmed();
    transaction.cleared = m_cleared->isChecked();
    transaction.updated_at = currentStamp();
    transaction.sync_status = SyncStatus::Pending;
    lastFormDate() = transaction.date;
    return transaction;
}
