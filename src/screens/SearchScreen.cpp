#include "screens/SearchScreen.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/TransactionRepository.h"
#include "register/CategoryChoices.h"
#include "register/FieldLabel.h"
#include "register/RegisterColumn.h"
#include "register/RegisterModel.h"
#include "screens/ScreenDates.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kTypingPause = 300; // milliseconds
constexpr int kFilterSpacing = 4;
constexpr int kComboFrame = 32; // pixels, with the arrow
constexpr int kCheckNumberChars = 10;
constexpr int kMemoChars = 20;

QComboBox *makeFilterCombo(const QString &name, QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(1);
    return combo;
}

// As wide as "all" needs: a long name must not widen the window.
void fitFirstItem(QComboBox *combo)
{
    const int width = combo->fontMetrics().horizontalAdvance(combo->itemText(0));
    combo->setMinimumWidth(width + kComboFrame);
}

} // namespace

SearchScreen::SearchScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_model(new RegisterModel(this))
{
    setObjectName(u"searchScreen"_s);
    build();
    listen();
}

void SearchScreen::build()
{
    m_searchField = new QLineEdit(this);
    m_searchField->setObjectName(u"searchField"_s);
    m_searchField->setPlaceholderText(tr("Search payee, memo, check number..."));
    m_searchField->setAccessibleName(m_searchField->placeholderText());
    m_searchField->setClearButtonEnabled(true);
    QHBoxLayout *filters = buildFilters();
    setUpTable();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(m_searchField);
    column->addLayout(filters);
    column->addWidget(m_resultsView, 1);
}

QHBoxLayout *SearchScreen::buildFilters()
{
    m_accountCombo = makeFilterCombo(u"accountCombo"_s, this);
    m_categoryCombo = makeFilterCombo(u"categoryCombo"_s, this);
    m_dateRangeCheck = new QCheckBox(tr("Date range:"), this);
    m_dateRangeCheck->setObjectName(u"dateRangeCheck"_s);
    const QDate today = QDate::currentDate();
    m_dateFrom = makeDateEdit(u"dateFrom"_s, today.addMonths(-1));
    m_dateFrom->setAccessibleName(m_dateRangeCheck->text());
    m_dateTo = makeDateEdit(u"dateTo"_s, today);
    m_clearedCheck = new QCheckBox(tr("Cleared only"), this);
    m_clearedCheck->setObjectName(u"clearedCheck"_s);

    auto *row = new QHBoxLayout;
    row->setSpacing(kFilterSpacing);
    row->addWidget(makeFieldLabel(tr("Account:"), m_accountCombo));
    row->addWidget(m_accountCombo, 1);
    row->addWidget(makeFieldLabel(tr("Category:"), m_categoryCombo));
    row->addWidget(m_categoryCombo, 1);
    row->addWidget(m_dateRangeCheck);
    row->addWidget(m_dateFrom);
    row->addWidget(makeFieldLabel(tr("to"), m_dateTo));
    row->addWidget(m_dateTo);
    row->addWidget(m_clearedCheck);
    return row;
}

QDateEdit *SearchScreen::makeDateEdit(const QString &name, QDate date)
{
    auto *edit = new QDateEdit(date, this);
    edit->setObjectName(name);
    setUpDateEdit(edit, u"MM/dd/yyyy"_s);
    edit->setEnabled(false);
    return edit;
}

void SearchScreen::setUpTable()
{
    m_resultsView = new QTableView(this);
    m_resultsView->setObjectName(u"resultsView"_s);
    m_resultsView->setAccessibleName(tr("Results"));
    m_resultsView->setModel(m_model);
    m_resultsView->setAlternatingRowColors(true);
    m_resultsView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_resultsView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_resultsView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_resultsView->setWordWrap(false);
    m_resultsView->setTabKeyNavigation(false);
    m_resultsView->verticalHeader()->hide();
    QHeaderView *header = m_resultsView->horizontalHeader();
    header->setHighlightSections(false);
    for (const int column : {RegisterColumn::Date, RegisterColumn::Payment, RegisterColumn::Deposit,
                             RegisterColumn::Clr, RegisterColumn::Balance})
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(RegisterColumn::Payee, QHeaderView::Stretch);
    header->setSectionResizeMode(RegisterColumn::Category, QHeaderView::Stretch);
    const int charWidth = fontMetrics().averageCharWidth();
    header->resizeSection(RegisterColumn::CheckNumber, kCheckNumberChars * charWidth);
    header->resizeSection(RegisterColumn::Memo, kMemoChars * charWidth);
}

void SearchScreen::listen()
{
    m_searchTimer.setSingleShot(true);
    m_searchTimer.setInterval(kTypingPause);
    connect(&m_searchTimer, &QTimer::timeout, this, &SearchScreen::performSearch);
    connect(m_searchField, &QLineEdit::textChanged, this, [this] { m_searchTimer.start(); });
    for (const QComboBox *combo : {m_accountCombo, m_categoryCombo})
        connect(combo, &QComboBox::currentIndexChanged, this, &SearchScreen::performSearch);
    connect(m_dateRangeCheck, &QCheckBox::toggled, this, &SearchScreen::onDateRangeToggled);
    for (const QDateEdit *edit : {m_dateFrom, m_dateTo})
        connect(edit, &QDateEdit::dateChanged, this, [this] {
            if (m_dateRangeCheck->isChecked())
                performSearch();
        });
    connect(m_clearedCheck, &QCheckBox::toggled, this, &SearchScreen::performSearch);
    connect(m_resultsView, &QAbstractItemView::doubleClicked, this, &SearchScreen::onDoubleClicked);
}

void SearchScreen::reloadFilters()
{
    const QString account = m_accountCombo->currentData().toString();
    const QString category = m_categoryCombo->currentData().toString();
    {
        const QSignalBlocker accountBlocker(m_accountCombo);
        const QSignalBlocker categoryBlocker(m_categoryCombo);
        m_accountCombo->clear();
        m_accountCombo->addItem(tr("All Accounts"), QString());
        for (const Account &active : m_appState->accounts()->listActive())
            m_accountCombo->addItem(active.name, active.id);
        m_accountCombo->setCurrentIndex(qMax(0, m_accountCombo->findData(account)));
        m_categoryCombo->clear();
        m_categoryCombo->addItem(tr("All Categories"), QString());
        CategoryChoices::addPaths(*m_categoryCombo, m_appState->categories()->listActive());
        m_categoryCombo->setCurrentIndex(qMax(0, m_categoryCombo->findData(category)));
    }
    fitFirstItem(m_accountCombo);
    fitFirstItem(m_categoryCombo);
    performSearch();
}

void SearchScreen::focusSearchField()
{
    m_searchField->setFocus();
    m_searchField->selectAll();
}

void SearchScreen::onDateRangeToggled(bool checked)
{
    m_dateFrom->setEnabled(checked);
    m_dateTo->setEnabled(checked);
    performSearch();
}

void SearchScreen::performSearch()
{
    m_searchTimer.stop(); // whatever was typed is searched for now
    SearchFilters filters;
    filters.account_id = m_accountCombo->currentData().toString();
    filters.category_id = m_categoryCombo->currentData().toString();
    if (m_dateRangeCheck->isChecked()) {
        filters.date_from = m_dateFrom->date();
        filters.date_to = m_dateTo->date();
    }
    if (m_clearedCheck->isChecked())
        filters.cleared = true;
    m_model->setRows(m_appState->transactions()->search(m_searchField->text().trimmed(), filters));
}

void SearchScreen::onDoubleClicked(const QModelIndex &index)
{
    if (const RegisterRow *row = m_model->rowAt(index.row()))
        Q_EMIT editTransactionRequested(row->id);
}
