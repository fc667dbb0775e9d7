#include "screens/PayeeScreen.h"

#include "core/state/AppState.h"
#include "data/Database.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"
#include "register/FieldLabel.h"
#include "shell/theme/FontRoles.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSqlQuery>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMargin = 16;
constexpr int kHeadingGap = 8;
constexpr int kMinNameWidth = 160; // pixels
constexpr qsizetype kNamesWorthAnIndex = 8;
}

PayeeScreen::PayeeScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_payeeList(new QListWidget(this))
    , m_renameEdit(new QLineEdit(this))
{
    setObjectName(u"payeeScreen"_s);
    build();
}

void PayeeScreen::build()
{
    auto *heading = new QLabel(tr("Payee Management"), this);
    applyFontRole(heading, FontRole::Heading, QFont::Bold);
    m_payeeList->setObjectName(u"payeeList"_s);
    m_payeeList->setAccessibleName(tr("Payees"));
    m_payeeList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_payeeList->setUniformItemSizes(true); // thousands of names, all of one line
    m_renameEdit->setObjectName(u"renameEdit"_s);
    m_renameEdit->setMinimumWidth(kMinNameWidth); // the buttons grow with the font
    QLabel *label = makeFieldLabel(tr("Rename to:"), m_renameEdit);
    auto *rename = new QPushButton(tr("Rename Selected"), this);
    rename->setObjectName(u"renameButton"_s);
    connect(rename, &QPushButton::clicked, this, &PayeeScreen::onRename);
    auto *merge = new QPushButton(tr("Merge Selected"), this);
    merge->setObjectName(u"mergeButton"_s);
    connect(merge, &QPushButton::clicked, this, &PayeeScreen::onMerge);

    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_renameEdit, 1);
    row->addWidget(rename);
    row->addWidget(merge);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(heading);
    column->addSpacing(kHeadingGap);
    column->addWidget(m_payeeList, 1);
    column->addLayout(row);
}

void PayeeScreen::refresh()
{
    m_payeeList->clear();
    m_payeeList->addItems(m_appState->transactions()->allPayees());
}

QString PayeeScreen::typedName() const
{
    return m_renameEdit->text().trimmed();
}

QStringList PayeeScreen::selectedPayees() const
{
    QStringList payees;
    for (const QListWidgetItem *item : m_payeeList->selectedItems())
        payees << item->text();
    return payees;
}

int PayeeScreen::renamePayees(const QStringList &oldNames, const QString &newName)
{
    SqlTransaction together(m_appState->database());
    QSqlQuery query(m_appState->database()->connection());
    // Each name is looked for in the whole table. For many an index is quicker, its making
    // included; it goes again before anyone else can see it.
    const bool indexed = oldNames.size() >= kNamesWorthAnIndex
        && query.exec(u"CREATE INDEX payees_being_renamed ON transactions(payee)"_s);
    // A tidied name is no edit of the transaction: its version stays, and the stamp is SQLite's
    // own, which as text sorts before the other stamps of the same day.
    query.prepare(u"UPDATE transactions SET payee = ?, updated_at = datetime('now'), "
                  "sync_status = 'pending' WHERE payee = ? AND deleted_at IS NULL"_s);
    int renamed = 0;
    for (const QString &oldName : oldNames) {
        query.bindValue(0, newName);
        query.bindValue(1, oldName);
        if (query.exec())
            renamed += query.numRowsAffected();
    }
    if (indexed && !query.exec(u"DROP INDEX payees_being_renamed"_s))
        return 0;
    return together.commit() ? renamed : 0;
}

void PayeeScreen::onRename()
{
    const QString newName = typedName();
    const QStringList payees = selectedPayees();
    if (newName.isEmpty() || payees.isEmpty())
        return;
    const int renamed = renamePayees(payees, newName);
    finish(tr("Rename Complete"), tr("Renamed %n transaction(s).", nullptr, renamed));
}

void PayeeScreen::onMerge()
{
    const QStringList payees = selectedPayees();
    if (payees.size() < 2) {
        tell(tr("Merge"), tr("Select 2 or more payees to merge."));
        return;
    }
    const QString target = typedName().isEmpty() ? payees.first() : typedName();
    if (!confirmMerge(payees.size(), target))
        return;
    QStringList others = payees;
    others.removeAll(target);
    const int merged = renamePayees(others, target);
    finish(tr("Merge Complete"), tr("Merged %n transaction(s).", nullptr, merged));
}

bool PayeeScreen::confirmMerge(qsizetype count, const QString &target)
{
    QMessageBox question(QMessageBox::Question, tr("Merge Payees"),
                         tr("Merge %1 payees into \"%2\"?").arg(QString::number(count), target),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"mergeQuestion"_s);
    question.setTextFormat(Qt::PlainText); // a payee is a person's words
    question.setDefaultButton(QMessageBox::No); // nothing brings the old names back
    return question.exec() == QMessageBox::Yes;
}

void PayeeScreen::tell(const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, this);
    box.setObjectName(u"payeeNotice"_s);
    box.exec();
}

void PayeeScreen::finish(const QString &title, const QString &text)
{
    tell(title, text);
    refresh();
    Q_EMIT payeesChanged();
}
