#pragma once

#include "services/ImportService.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"

#include <QFile>

using namespace Qt::StringLiterals;

// A register with the accounts "a" and "b" and the category "Food", into which files are brought.
struct ImportHome : TestDatabase
{
    ImportHome()
    {
        addSampleOwners();
        run(u"UPDATE categories SET name = 'Food'"_s);
    }

    QString file(const QString &text, const QString &name = u"file"_s)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            qFatal("no test file");
        return file.fileName();
    }
    // Each row with its account, and the payee or "none" of the row that it is linked to.
    QString rows()
    {
        return value(u"SELECT group_concat(t.account_id || ' ' || t.date || ' ' || t.payee || ' ' "
                     "|| t.amount || COALESCE(' \"' || NULLIF(t.memo, '') || '\"', '') "
                     "|| COALESCE(' #' || NULLIF(t.check_number, ''), '') "
                     "|| COALESCE(' ' || c.name || ':' || c.category_type, '') "
                     "|| CASE WHEN t.transfer_link_id != '' THEN ' -> ' || "
                     "COALESCE(t.transfer_dest_account_id, '') || ' ' || COALESCE(o.payee, 'none') "
                     "ELSE '' END, "
                     "'; ') FROM transactions t LEFT JOIN categories c ON c.id = t.category_id "
                     "LEFT JOIN transactions o ON o.id = t.transfer_link_id"_s)
            .toString();
    }
    int count(const QString &table)
    {
        return value(u"SELECT COUNT(*) FROM %1"_s.arg(table)).toInt();
    }
    // Runs an import with room for ever more pages until it succeeds: how often it failed.
    // The caller's function tells whether what it left behind is right.
    int untilThereIsRoom(const std::function<bool()> &import)
    {
        const QString before = rows();
        int failures = 0;
        for (int pages = value(u"PRAGMA page_count"_s).toInt(); rows() == before; ++pages) {
            value(u"PRAGMA max_page_count = %1"_s.arg(pages));
            if (!import())
                return -1;
            failures += rows() == before ? 1 : 0;
        }
        return failures;
    }

    QTemporaryDir folder{};
    ImportService service{&transactions, &categories, &splitLines};
};

// Those that are not zero.
inline QString counts(const ImportResult &result)
{
    const QList<std::pair<int, QString>> all{
        {result.imported, u"imported"_s},        {result.duplicates, u"duplicates"_s},
        {result.unparseable, u"unparseable"_s},  {result.metadata, u"metadata"_s},
        {result.unmapped, u"unmapped"_s},        {result.transfersLinked, u"linked"_s},
        {result.retroactiveLinks, u"earlier"_s}, {result.databaseErrors, u"errors"_s},
        {result.aborted ? 1 : 0, u"aborted"_s}};
    QStringList words;
    for (const auto &[number, name] : all) {
        if (number != 0)
            words << u"%1 %2"_s.arg(QString::number(number), name);
    }
    return words.join(u", "_s);
}
