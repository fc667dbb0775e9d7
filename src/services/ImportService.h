#pragma once

#include "services/ImportRecords.h"
#include "services/ImportStores.h"

#include <QObject>
#include <QStringList>

class ImportProgress;

// Brings the transactions of QIF and CSV files into the register, each import in one database
// transaction. It keeps nothing between calls. A call returns when all is done; meanwhile it lets
// everything but user input through, so call it only behind a modal dialog.
class ImportService : public QObject
{
    Q_OBJECT

public:
    ImportService(TransactionRepository *transactions, CategoryRepository *categories,
                  SplitLineRepository *splitLines, QObject *parent = nullptr); // not owned

    // Reads alone. A file that does not open is passed over, here and in the import.
    QifAnalysis analyzeQifFiles(const QStringList &paths);

    ImportResult importQifFiles(const QStringList &paths, const QifAccountMapping &mapping);

    // A file that does not open gives a result of zeros, and no signal.
    ImportResult importCsv(const QString &path, const QString &accountId,
                           const CsvColumnMapping &mapping);

Q_SIGNALS:
    void importStarted(int totalRecords);
    // After every hundredth record, and at the end with both alike, however it ended.
    void importProgress(int currentRecord, int totalRecords);

private:
    ImportProgress begin(int total);

    ImportStores m_stores;
};
