#include "screens/ImportSummary.h"

#include "services/ImportRecords.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

struct ImportSummary
{
    Q_DECLARE_TR_FUNCTIONS(ImportSummary)

public:
    static QStringList failure();
    static QStringList counts(const ImportResult &result);
};

QStringList ImportSummary::failure()
{
    return {tr("Import failed."),
            tr("A database error stopped the import and all changes were "
               "rolled back. No transactions were added.")};
}

QStringList ImportSummary::counts(const ImportResult &result)
{
    QStringList lines{
        tr("Import complete!"), {}, tr("%n transaction(s) imported", nullptr, result.imported)};
    const auto add = [&lines](int count, const QString &line) {
        if (count > 0)
            lines << line;
    };
    add(result.transfersLinked,
        tr("%n transfer(s) linked across accounts", nullptr, result.transfersLinked));
    add(result.retroactiveLinks,
        tr("  (including %n linked to previously imported row(s))", nullptr,
           result.retroactiveLinks));
    add(result.duplicates, tr("%n duplicate(s) skipped", nullptr, result.duplicates));
    add(result.unparseable, tr("%n record(s) skipped (unparseable)", nullptr, result.unparseable));
    add(result.metadata, tr("%n metadata record(s) skipped", nullptr, result.metadata));
    add(result.unmapped,
        tr("%n record(s) skipped (unmapped source account)", nullptr, result.unmapped));
    add(result.databaseErrors,
        tr("%n record(s) skipped (database error — see log)", nullptr, result.databaseErrors));
    return lines;
}

} // namespace

QString importSummary(const ImportResult &result)
{
    const QStringList lines =
        result.aborted ? ImportSummary::failure() : ImportSummary::counts(result);
    return lines.join(u'\n');
}
