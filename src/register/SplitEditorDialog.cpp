#include "register/SplitEditorDialog.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "register/AmountBox.h"
#include "register/CategoryChoices.h"
#include "register/SplitTable.h"
#include "shell/theme/FontRoles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAmountWidth = 120; // pixels

enum Column { CategoryColumn, AmountColumn, MemoColumn };

} // namespace

SplitEditorDialog::SplitEditorDialog(AppState *appState, qint64 totalAmount,
                                     const QList<SplitLine> &lines, QWidget *parent)
    : QDialog(parent)
    , m_appState(appState)
    , m_totalAmount(totalAmount)
{
    setObjectName(u"splitEditorDialog"_s);
    setWindowTitle(tr("Split Transaction"));
    setMinimumSize(550, 350);
    m_categoryChoices.emplaceBack(QString(), tr("(none)"));
    const QList<Category> categories = m_appState->categories()->listActive();
    for (const Category &category : categories)
        m_categoryChoices.emplaceBack(category.id, category.name);
    auto *layout = new QVBoxLayout(this);
    buildTop(layout);
    buildTable(layout);
    buildButtons(layout);
    showLines(lines);
    updateRemaining();
}

void SplitEditorDialog::buildTop(QVBoxLayout *layout)
{
    auto *totalLabel =
        new QLabel(tr("Total: %1").arg(formatMoney(absoluteMoney(m_totalAmount))), this);
    totalLabel->setObjectName(u"totalLabel"_s);
    m_remainingLabel = new QLabel(this);
    m_remainingLabel->setObjectName(u"remainingLabel"_s);
    applyFontRole(m_remainingLabel, FontRole::Body, QFont::Bold);
    auto *row = new QHBoxLayout;
    row->addWidget(totalLabel);
    row->addStretch();
    row->addWidget(m_remainingLabel);
    layout->addLayout(row);
}

void SplitEditorDialog::buildTable(QVBoxLayout *layout)
{
    m_table = new SplitTable(this);
    m_table->setObjectName(u"splitTable"_s);
    m_table->setAccessibleName(windowTitle());
    m_table->setColumnCount(3);
    m_table->setHorizontalHeaderLabels({tr("Category"), tr("Amount"), tr("Memo")});
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(CategoryColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(AmountColumn, QHeaderView::Fixed);
    header->resizeSection(AmountColumn, kAmountWidth);
    header->setSectionResizeMode(MemoColumn, QHeaderView::Stretch);
    m_table->setWordWrap(false); // the rows are as high as their boxes, too low for two lines
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    layout->addWidget(m_table, 1);
}

void SplitEditorDialog::buildButtons(QVBoxLayout *layout)
{
    auto *addButton = new QPushButton(tr("+ Add Line"), this);
    addButton->setObjectName(u"addLineButton"_s);
    connect(addButton, &QPushButton::clicked, this, &SplitEditorDialog::addRow);
    auto *removeButton = new QPushButton(tr("- Remove"), this);
    removeButton->setObjectName(u"removeLineButton"_s);
    connect(removeButton, &QPushButton::clicked, this, &SplitEditorDialog::removeSelectedRow);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(addButton);
    row->addWidget(removeButton);
    row->addStretch();
    row->addWidget(buttons);
    layout->addLayout(row);
}

void SplitEditorDialog::showLines(const QList<SplitLine> &lines)
{
    for (const SplitLine &line : lines) {
        addRow();
        const int row = m_table->rowCount() - 1;
        CategoryChoices::select(*categoryBox(row), line.category_id, *m_appState->categories());
        AmountBox::show(amountBox(row), absoluteMoney(line.amount));
        m_table->item(row, MemoColumn)->setText(line.memo);
    }
    if (lines.isEmpty()) {
        addRow();
        addRow();
    }
}

void SplitEditorDialog::addRow()
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    auto *category = new QComboBox;
    for (const auto &[id, name] : std::as_const(m_categoryChoices))
        category->addItem(name, id);
    m_table->setBox(row, CategoryColumn, category);
    auto *amount = new QDoubleSpinBox;
    amount->setRange(0.0, AmountBox::kLargest);
    amount->setPrefix(tr("$ "));
    connect(amount, &QDoubleSpinBox::valueChanged, this, &SplitEditorDialog::updateRemaining);
    m_table->setBox(row, AmountColumn, amount);
    m_table->setItem(row, MemoColumn, new QTableWidgetItem);
    m_table->scrollToBottom();
}

void SplitEditorDialog::removeSelectedRow()
{
    const int row = m_table->currentRow();
    if (row < 0)
        return;
    m_table->removeRow(row);
    updateRemaining();
}

QComboBox *SplitEditorDialog::categoryBox(int row) const
{
    return qobject_cast<QComboBox *>(m_table->cellWidget(row, CategoryColumn));
}

QDoubleSpinBox *SplitEditorDialog::amountBox(int row) const
{
    return qobject_cast<QDoubleSpinBox *>(m_table->cellWidget(row, AmountColumn));
}

qint64 SplitEditorDialog::centsAt(int row) const
{
    return AmountBox::amountOf(amountBox(row));
}

void SplitEditorDialog::updateRemaining()
{
    qint64 remaining = absoluteMoney(m_totalAmount);
    for (int row = 0; row < m_table->rowCount(); ++row)
        remaining -= centsAt(row);
    m_remainingLabel->setText(tr("Remaining: %1").arg(formatMoney(remaining)));
    if (remaining == 0)
        m_remainingLabel->setStyleSheet(u"color: green;"_s);
    else
        m_remainingLabel->setStyleSheet(remaining < 0 ? u"color: #cc0000;"_s : QString());
}

QList<SplitLine> SplitEditorDialog::splitLines() const
{
    QList<SplitLine> lines;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const qint64 cents = centsAt(row);
        if (cents == 0)
            continue;
        SplitLine line;
        line.id = newId();
        line.category_id = categoryBox(row)->currentData().toString();
        line.amount = m_totalAmount < 0 ? -cents : cents;
        line.memo = m_table->item(row, MemoColumn)->text();
        line.created_at = currentStamp();
        line.updated_at = line.created_at;
        lines << line;
    }
    return lines;
}
