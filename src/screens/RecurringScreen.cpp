#include "screens/RecurringScreen.h"

#include "core/state/AppState.h"
#include "data/RecurringRepository.h"
#include "register/RecurringFormDialog.h"
#include "services/RecurringService.h"
#include "shell/theme/FontRoles.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kAccountWidth = 140; // pixels

QLabel *makeBoldLabel(QWidget *parent, const QString &name, int role)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    applyFontRole(label, role, QFont::Bold);
    return label;
}

} // namespace

RecurringScreen::RecurringScreen(AppState *appState, QWidget *parent, RecurringModel::Clock today)
    : QWidget(parent)
    , m_appState(appState)
    , m_today(std::move(today))
    , m_model(new RecurringModel(appState->accounts(), this, m_today))
{
    setObjectName(u"recurringScreen"_s);
    build();
    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, &RecurringScreen::refresh);
}

void RecurringScreen::build()
{
    QLabel *title = makeBoldLabel(this, u"titleLabel"_s, FontRole::Heading);
    title->setText(tr("Recurring Transactions"));
    m_dueLabel = makeBoldLabel(this, u"dueLabel"_s, FontRole::Body);
    auto *confirmAll = new QPushButton(tr("Confirm All Due"), this);
    confirmAll->setObjectName(u"confirmAllButton"_s);
    connect(confirmAll, &QPushButton::clicked, this, &RecurringScreen::confirmAllDue);
    auto *newButton = new QPushButton(tr("New Recurring"), this);
    newButton->setObjectName(u"newButton"_s);
    connect(newButton, &QPushButton::clicked, this, &RecurringScreen::showNewForm);
    setUpTable();

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(confirmAll);
    buttons->addWidget(newButton);
    buttons->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(title);
    column->addWidget(m_dueLabel);
    column->addLayout(buttons);
    column->addWidget(m_table, 1);
}

void RecurringScreen::setUpTable()
{
    m_table = new QTableView(this);
    m_table->setObjectName(u"recurringTable"_s);
    m_table->setAccessibleName(tr("Recurring Transactions"));
    m_table->setModel(m_model);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false); // Tab leads on to the buttons
    m_table->verticalHeader()->hide();
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    // A long name must not take the place of all other columns.
    header->setSectionResizeMode(RecurringModel::kAccount, QHeaderView::Interactive);
    header->resizeSection(RecurringModel::kAccount, kAccountWidth);
    header->setSectionResizeMode(RecurringModel::kPayee, QHeaderView::Stretch);
    connect(m_table, &QWidget::customContextMenuRequested, this, &RecurringScreen::onContextMenu);
    connect(m_table, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &index) { showEditForm(index.row()); });
}

void RecurringScreen::scheduleRefresh()
{
    m_refreshTimer.start(0);
}

void RecurringScreen::refresh()
{
    m_refreshTimer.stop();
    const RecurringTransaction *current = selected();
    const QString currentId = current ? current->id : QString();
    m_model->setTemplates(m_appState->recurringService()->listAll());
    const int row = m_model->rowOf(currentId);
    if (row >= 0)
        m_table->setCurrentIndex(m_model->index(row, RecurringModel::kPayee));
    showDueCount();
}

void RecurringScreen::showDueCount()
{
    const int count = m_appState->recurringService()->pendingCount();
    m_dueLabel->setStyleSheet(count > 0 ? u"color: #008800;"_s : QString());
    m_dueLabel->setText(count > 0 ? tr("(%1 due)").arg(count) : QString());
}

const RecurringTransaction *RecurringScreen::selected() const
{
    return m_model->templateAt(m_table->currentIndex().row());
}

void RecurringScreen::confirmAllDue()
{
    if (m_appState->recurringService()->confirmAllDue() == 0)
        return;
    Q_EMIT transactionsChanged();
    refresh();
}

void RecurringScreen::confirmSelected()
{
    const RecurringTransaction *recurring = selected();
    if (!recurring)
        return;
    // Also after a refusal: it may have posted one side of a transfer, or made the template
    // inactive.
    m_appState->recurringService()->confirm(RecurringTransaction(*recurring));
    Q_EMIT transactionsChanged();
    refresh();
}

void RecurringScreen::skipSelected()
{
    const RecurringTransaction *recurring = selected();
    if (!recurring)
        return;
    m_appState->recurringService()->skip(RecurringTransaction(*recurring));
    refresh();
}

void RecurringScreen::deleteSelected()
{
    const RecurringTransaction *recurring = selected();
    if (!recurring)
        return;
    const QString id = recurring->id; // the list may be read anew while the question is open
    if (!confirmDelete(recurring->payee))
        return;
    m_appState->recurring()->softDelete(id);
    refresh();
}

bool RecurringScreen::confirmDelete(const QString &payee)
{
    QMessageBox question(QMessageBox::Question, tr("Delete"),
                         tr("Delete recurring \"%1\"?").arg(payee),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"deleteRecurringQuestion"_s);
    question.setTextFormat(Qt::PlainText); // a payee is a person's words
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

void RecurringScreen::onContextMenu(QPoint pos)
{
    const QModelIndex index = m_table->indexAt(pos);
    if (!index.isValid())
        return;
    m_table->setCurrentIndex(index); // what the entries work on
    const bool due = m_model->isDue(index.row());
    QMenu menu(this);
    menu.setObjectName(u"recurringMenu"_s);
    menu.addAction(tr("&Edit"), this, [this] { showEditForm(m_table->currentIndex().row()); });
    menu.addAction(tr("&Confirm"), this, &RecurringScreen::confirmSelected)->setEnabled(due);
    menu.addAction(tr("&Skip"), this, &RecurringScreen::skipSelected)->setEnabled(due);
    menu.addSeparator();
    menu.addAction(tr("&Delete"), this, &RecurringScreen::deleteSelected);
    menu.exec(m_table->viewport()->mapToGlobal(pos));
}

void RecurringScreen::showNewForm()
{
    RecurringFormDialog dialog(m_appState, m_appState->currentAccountId(), this, m_today);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_appState->recurring()->insert(dialog.recurring());
    refresh();
}

void RecurringScreen::showEditForm(int row)
{
    const RecurringTransaction *recurring = m_model->templateAt(row);
    if (!recurring)
        return;
    RecurringFormDialog dialog(m_appState, RecurringFormDialog::Purpose::Edit, *recurring, this,
                               m_today);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_appState->recurring()->update(dialog.recurring());
    refresh();
}
