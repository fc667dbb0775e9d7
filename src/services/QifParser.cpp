#include "services/QifParser.h"

#include "services/QifAmount.h"
#include "services/QifDate.h"
#include "services/QifReader.h"

QifParser::QifParser(QifDateOrder order)
    : m_result{.dateOrder = order}
{
}

void QifParser::readLine(QStringView line)
{
    const QChar code = line.front();
    if (code == u'!')
        return startSection(line);
    if (code == u'^')
        return finishRecord();
    m_open = true;
    const QStringView value = line.sliced(1).trimmed();
    switch (m_section) {
    case QifSection::AccountBlock:
        return readAccountLine(code, value);
    case QifSection::CategoryList:
        return readCategoryLine(code, value);
    case QifSection::Transactions:
    case QifSection::None:
        return readTransactionLine(code, value);
    case QifSection::Ignored:
        break;
    }
}

QifParseResult QifParser::finish()
{
    finishRecord();
    return std::move(m_result);
}

void QifParser::startSection(QStringView header)
{
    finishRecord();
    m_section = classifyHeader(header);
    if (m_section == QifSection::Transactions)
        m_kind = accountKindOf(header);
}

void QifParser::readAccountLine(QChar code, QStringView value)
{
    if (code == u'N')
        m_pendingAccount = value.toString();
}

void QifParser::readCategoryLine(QChar code, QStringView value)
{
    if (code == u'N')
        m_category.name = value.toString();
    else if (code == u'D')
        m_category.description = value.toString();
    else if (code == u'I')
        m_category.isIncome = true;
    else if (code == u'E')
        m_category.isIncome = false;
}

void QifParser::readTransactionLine(QChar code, QStringView value)
{
    switch (code.unicode()) {
    case u'D':
        return readDate(value);
    case u'T':
    case u'U':
        return readAmount(value);
    case u'P':
        m_transaction.payee = value.toString();
        break;
    case u'M':
        m_transaction.memo = value.toString();
        break;
    case u'N':
        m_transaction.number = value.toString();
        break;
    case u'Y':
        m_transaction.security = value.toString();
        break;
    case u'C':
        return readCleared(value);
    case u'L': {
        QifCategoryField field = parseCategoryField(value);
        m_transaction.category = std::move(field.category);
        m_transaction.transferAccount = std::move(field.transferAccount);
        break;
    }
    default:
        return readSplitLine(code, value);
    }
}

void QifParser::readSplitLine(QChar code, QStringView value)
{
    if (code == u'S') {
        closeSplit();
        QifCategoryField field = parseCategoryField(value);
        m_split = QifSplit{.category = std::move(field.category),
                           .transferAccount = std::move(field.transferAccount)};
    } else if (code == u'E' && m_split) {
        m_split->memo = value.toString();
    } else if (code == u'$' && m_split) {
        m_split->amount = parseQifAmount(value).value_or(m_split->amount);
    } else if (code == u'$') {
        readAmount(value);
    }
}

void QifParser::readDate(QStringView value)
{
    const std::optional<QDate> date = parseQifDate(value, m_result.dateOrder);
    if (!date)
        return;
    m_transaction.date = *date;
    m_hasDate = true;
}

void QifParser::readAmount(QStringView value)
{
    const std::optional<qint64> amount = parseQifAmount(value);
    if (!amount)
        return;
    m_transaction.amount = *amount;
    m_hasAmount = true;
}

// An empty or unknown mark takes nothing back.
void QifParser::readCleared(QStringView value)
{
    if (value.isEmpty())
        return;
    const QChar mark = value.front().toLower();
    if (mark == u'r')
        m_transaction.reconciled = true;
    if (mark == u'r' || mark == u'x' || mark == u'*' || mark == u'c')
        m_transaction.cleared = true;
}

void QifParser::closeSplit()
{
    if (m_split)
        m_transaction.splits.append(std::move(*m_split));
    m_split.reset();
}

void QifParser::finishRecord()
{
    closeSplit();
    switch (m_section) {
    case QifSection::AccountBlock:
        finishAccount();
        break;
    case QifSection::CategoryList:
        finishCategory();
        break;
    case QifSection::Ignored:
        if (m_open)
            ++m_result.skippedCount;
        break;
    case QifSection::Transactions:
    case QifSection::None:
        if (m_open)
            finishTransaction();
        break;
    }
    m_open = false;
}

// A block without a name leaves the account as it was.
void QifParser::finishAccount()
{
    if (!m_pendingAccount.isEmpty()) {
        m_account = std::move(m_pendingAccount);
        m_accountListed = m_listedAccounts.contains(m_account.toLower());
    }
    m_pendingAccount.clear();
}

void QifParser::finishCategory()
{
    if (!m_category.name.isEmpty())
        m_result.categories.append(std::move(m_category));
    m_category = {};
}

void QifParser::finishTransaction()
{
    if (m_hasDate && m_hasAmount) {
        m_transaction.sourceAccount = m_account;
        m_result.transactions.append(std::move(m_transaction));
        listAccount();
    } else {
        ++m_result.malformedCount;
    }
    m_transaction = {};
    m_hasDate = false;
    m_hasAmount = false;
}

// An account enters the list with the kind that its first transaction stands under.
void QifParser::listAccount()
{
    if (m_accountListed)
        return;
    m_accountListed = true;
    m_listedAccounts.insert(m_account.toLower());
    m_result.accounts.append({.name = m_account, .kind = m_kind});
}
