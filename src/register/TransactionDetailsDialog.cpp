#include "register/TransactionDetailsDialog.h"

#include "core/Dates.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"
#include "register/DateInput.h"
#include "register/TransactionDeletion.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSemiBold = 600;

QLabel *makeLabel(QWidget *parent, const QString &text)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText); // payees and memos are a person's words
    label->setText(text);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QString stampText(const QDateTime &stamp)
{
    return stamp.isValid() ? QLocale().toString(stamp.toLocalTime(), QLocale::LongFormat) : u"—"_s;
}

} // namespace

TransactionDetailsDialog::TransactionDetailsDialog(AppState *appState,
                                                   const Transaction &transaction, QWidget *parent)
    : QDialog(parent)
    , m_appState(appState)
    , m_transaction(transaction)
{
    setObjectName(u"transactionDetailsDialog"_s);
    setWindowTitle(tr("Transaction Details"));
    setMinimumSize(480, 420);
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    buildFields(form);
    layout->addLayout(form);
    if (m_transaction.is_split)
        buildSplitLines(layout);
    buildStamps(layout);
    layout->addStretch();
    buildButtons(layout);
}

QLabel *TransactionDetailsDialog::addField(QFormLayout *form, const QString &name,
                                           const QString &value, const QString &objectName)
{
    QLabel *label = makeLabel(this, value);
    label->setObjectName(objectName);
    form->addRow(name, label);
    return label;
}

void TransactionDetailsDialog::buildFields(QFormLayout *form)
{
    addField(form, tr("Date:"), DateInput::toText(m_transaction.date), u"dateValue"_s);
    addField(form, tr("Payee:"), m_transaction.payee, u"payeeValue"_s);
    const bool payment = m_transaction.amount < 0;
    const QString amount = formatMoney(absoluteMoney(m_transaction.amount));
    QLabel *amountLabel =
        addField(form, tr("Amount:"), payment ? u"- %1"_s.arg(amount) : amount, u"amountValue"_s);
    const QColor color = payment ? negativeColor() : positiveColor();
    amountLabel->setStyleSheet(u"color: %1; font-weight: 600;"_s.arg(color.name()));
    addField(form, tr("Category:"), categoryText(), u"categoryValue"_s);
    QLabel *memo = addField(form, tr("Memo:"), m_transaction.memo, u"memoValue"_s);
    memo->setWordWrap(true);
    // All the width of the row: the form would break a short memo in two and show the first line.
    memo->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    addField(form, tr("Check #:"), m_transaction.check_number, u"checkNumberValue"_s);
    const QString otherId = m_transaction.transfer_dest_account_id;
    if (!otherId.isEmpty()) {
        const auto other = m_appState->accounts()->findById(otherId);
        addField(form, tr("Transfer to:"), other ? other->name : otherId, u"transferValue"_s);
    }
    m_statusLabel = addField(form, tr("Status:"), QString(), u"statusValue"_s);
}

QString TransactionDetailsDialog::categoryName(const QString &categoryId) const
{
    const auto category = m_appState->categories()->findById(categoryId);
    return category ? category->name : QString();
}

QString TransactionDetailsDialog::categoryText() const
{
    return m_transaction.is_split ? tr("—Split—") : categoryName(m_transaction.category_id);
}

void TransactionDetailsDialog::buildSplitLines(QVBoxLayout *layout)
{
    QLabel *heading = makeLabel(this, tr("Split lines"));
    applyFontRole(heading, FontRole::Subheading, kSemiBold);
    layout->addWidget(heading);
    const QList<SplitLine> lines = m_appState->splitLines()->listByTransaction(m_transaction.id);
    if (lines.isEmpty()) {
        layout->addWidget(makeLabel(this, tr("(no split lines on record)")));
        return;
    }
    auto *grid = new QGridLayout;
    grid->setColumnStretch(2, 1);
    int row = 0;
    const auto addAmount = [&](qint64 amount) {
        QLabel *label = makeLabel(this, formatMoney(absoluteMoney(amount)));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, row, 1);
        return label;
    };
    for (const SplitLine &line : lines) {
        const QString name = categoryName(line.category_id);
        grid->addWidget(makeLabel(this, name.isEmpty() ? tr("(uncategorized)") : name), row, 0);
        applyFontRole(addAmount(line.amount), FontRole::Monospace);
        if (!line.memo.isEmpty()) {
            QLabel *memo = makeLabel(this, line.memo);
            memo->setWordWrap(true);
            applyFontRole(memo, FontRole::Caption);
            grid->addWidget(memo, row, 2);
        }
        ++row;
    }
    QLabel *total = makeLabel(this, tr("Total"));
    applyFontRole(total, FontRole::Body, kSemiBold);
    grid->addWidget(total, row, 0);
    // The transaction's own amount: a difference to its lines should be seen, not hidden.
    applyFontRole(addAmount(m_transaction.amount), FontRole::Monospace, kSemiBold);
    layout->addLayout(grid);
}

void TransactionDetailsDialog::buildStamps(QVBoxLayout *layout)
{
    for (const QString &text : {tr("Entered: %1").arg(stampText(m_transaction.created_at)),
                                tr("Last modified: %1").arg(stampText(m_transaction.updated_at))}) {
        QLabel *label = makeLabel(this, text);
        applyFontRole(label, FontRole::Caption);
        label->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
        layout->addWidget(label);
    }
}

void TransactionDetailsDialog::buildButtons(QVBoxLayout *layout)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *editButton = buttons->addButton(tr("Edit..."), QDialogButtonBox::ActionRole);
    editButton->setObjectName(u"editButton"_s);
    connect(editButton, &QPushButton::clicked, this, &TransactionDetailsDialog::requestEdit);
    if (!m_transaction.reconciled) {
        m_markButton = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        m_markButton->setObjectName(u"markButton"_s);
        connect(m_markButton, &QPushButton::clicked, this, [this] { toggleCleared(); });
    }
    QPushButton *deleteButton =
        buttons->addButton(tr("Delete..."), QDialogButtonBox::DestructiveRole);
    deleteButton->setObjectName(u"deleteButton"_s);
    connect(deleteButton, &QPushButton::clicked, this, [this] { deleteTransaction(); });
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    buttons->button(QDialogButtonBox::Close)->setFocus(); // a stray Enter must not meet Delete
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    showStatus();
}

void TransactionDetailsDialog::showStatus()
{
    const QString uncleared = m_transaction.cleared ? tr("Cleared") : tr("Uncleared");
    m_statusLabel->setText(m_transaction.reconciled ? tr("Reconciled") : uncleared);
    if (m_markButton)
        m_markButton->setText(m_transaction.cleared ? tr("Mark Uncleared") : tr("Mark Cleared"));
}

void TransactionDetailsDialog::requestEdit()
{
    m_editRequested = true;
    accept();
}

void TransactionDetailsDialog::toggleCleared()
{
    m_transaction.cleared = !m_transaction.cleared;
    m_transaction.updated_at = currentStamp();
    m_transaction.sync_status = SyncStatus::Pending;
    m_appState->transactions()->update(m_transaction);
    showStatus();
}

void TransactionDetailsDialog::deleteTransaction()
{
    if (!confirmAndDeleteTransaction(*m_appState, m_transaction, this))
        return;
    m_deleted = true;
    accept();
}

void TransactionDetailsDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QTimer::singleShot(0, this, [this] {
        layout()->activate();
        adjustSize();
    });
}
