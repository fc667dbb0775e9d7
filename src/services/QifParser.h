#pragma once

#include "services/QifRecords.h"

#include <QSet>
#include <QStringView>

#include <optional>

// Collects the records of a QIF file, line by line.
class QifParser
{
public:
    explicit QifParser(QifDateOrder order); // never Auto

    void readLine(QStringView line); // cleaned, not empty
    QifParseResult finish(); // the last call

private:
    void startSection(QStringView header);
    void readAccountLine(QChar code, QStringView value);
    void readCategoryLine(QChar code, QStringView value);
    void readTransactionLine(QChar code, QStringView value);
    void readSplitLine(QChar code, QStringView value);
    void readDate(QStringView value);
    void readAmount(QStringView value);
    void readCleared(QStringView value);
    void closeSplit();
    void finishRecord();
    void finishAccount();
    void finishCategory();
    void finishTransaction();
    void listAccount();

    QifParseResult m_result{};
    QifSection m_section = QifSection::None;
    QifAccountKind m_kind = QifAccountKind::Bank;
    QString m_account{}; // of the transactions that follow
    bool m_accountListed = true; // also while there is none
    QSet<QString> m_listedAccounts{}; // lower case
    bool m_open = false; // the record has a line
    QString m_pendingAccount{};
    QifCategory m_category{};
    QifTransaction m_transaction{};
    bool m_hasDate = false;
    bool m_hasAmount = false;
    std::optional<QifSplit> m_split{};
};
