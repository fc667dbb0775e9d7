#include "services/ImportService.h"

#include "services/CsvImport.h"
#include "services/CsvReader.h"
#include "services/QifImport.h"
#include "services/TextDecoding.h"

#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

AccountType suggestedType(const QifAccount &account)
{
    switch (account.kind) {
    case QifAccountKind::CreditCard:
        return AccountType::CreditCard;
    case QifAccountKind::Investment:
        return AccountType::Investment;
    case QifAccountKind::Cash:
        return AccountType::Cash;
    case QifAccountKind::OtherAsset:
    case QifAccountKind::OtherLiability:
        return AccountType::Other;
    case QifAccountKind::Bank:
        break;
    }
    return account.name.contains(u"saving"_s, Qt::CaseInsensitive) ? AccountType::Savings
                                                                   : AccountType::Checking;
}

void addSources(const QList<QifAccount> &accounts, QSet<QString> &seen,
                QList<QifSourceAccount> &sources)
{
    for (const QifAccount &account : accounts) {
        const QString lowered = account.name.toLower();
        if (seen.contains(lowered))
            continue;
        seen.insert(lowered);
        sources << QifSourceAccount{account.name, account.name, false, suggestedType(account)};
    }
}

} // namespace

ImportService::ImportService(TransactionRepository *transactions, CategoryRepository *categories,
                             SplitLineRepository *splitLines, QObject *parent)
    : QObject(parent)
    , m_stores{transactions, categories, splitLines}
{
}

QifAnalysis ImportService::analyzeQifFiles(const QStringList &paths)
{
    QifAnalysis analysis;
    QSet<QString> seen;
    for (const QString &path : paths) {
        const std::optional<QifParseResult> parsed = readQifFile(path);
        if (!parsed)
            continue;
        analysis.totalTransactions += static_cast<int>(parsed->transactions.size());
        if (parsed->accounts.isEmpty()) {
            const QString fileName = path.sliced(path.lastIndexOf(u'/') + 1);
            analysis.sources << QifSourceAccount{path, tr("%1 (no account header)").arg(fileName),
                                                 true, AccountType::Checking};
        }
        addSources(parsed->accounts, seen, analysis.sources);
        ImportProgress::letWindowsPaint();
    }
    return analysis;
}

ImportResult ImportService::importQifFiles(const QStringList &paths,
                                           const QifAccountMapping &mapping)
{
    QifImport import(m_stores, paths, mapping);
    return import.run(begin(import.total()));
}

ImportResult ImportService::importCsv(const QString &path, const QString &accountId,
                                      const CsvColumnMapping &mapping)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    CsvImport import(m_stores, accountId, mapping, parseCsv(decodeText(file.readAll())));
    return import.run(begin(import.total()));
}

ImportProgress ImportService::begin(int total)
{
    Q_EMIT importStarted(total);
    return {total, [this](int current, int of) { Q_EMIT importProgress(current, of); }};
}
