#include "Require.h"

#include "data/Database.h"
#include "services/BackupArchiveWriter.h"
#include "services/BackupService.h"

#include <QCoreApplication>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

constexpr char kAsItIs = 'Z'; // the rest is an archive; otherwise one is made of it

void silence(QtMsgType, const QMessageLogContext &, const QString &) { }

Database &openDatabase()
{
    static int argumentCount = 1;
    static char name[] = "BackupFuzzer";
    static char *arguments[] = {name, nullptr};
    static QCoreApplication application(argumentCount, arguments);
    static const auto previousHandler = qInstallMessageHandler(silence);
    Q_UNUSED(previousHandler)
    static Database database;
    static const bool opened = database.open(u":memory:"_s) && database.migrate();
    require(opened);
    return database;
}

void startAnew()
{
    for (const char *statement :
         {"DELETE FROM split_lines", "DELETE FROM transactions",
          "DELETE FROM recurring_transactions", "DELETE FROM reconciliations",
          "UPDATE categories SET parent_id = NULL", "DELETE FROM categories",
          "DELETE FROM accounts"})
        require(QSqlQuery().exec(QString::fromLatin1(statement)));
}

// Entries parted by empty lines: a line with the path, then the bytes. The fuzzer would hardly find
// its way through checksums and compression.
QByteArray archiveOf(const QByteArray &text)
{
    BackupArchiveWriter archive;
    qsizetype begin = 0;
    while (begin < text.size()) {
        const qsizetype gap = text.indexOf("\n\n", begin);
        const qsizetype end = gap < 0 ? text.size() : gap;
        const QByteArray entry = text.mid(begin, end - begin);
        const qsizetype line = entry.indexOf('\n');
        if (line > 0)
            archive.add(QString::fromUtf8(entry.left(line)), entry.mid(line + 1));
        begin = end + 2;
    }
    archive.add(u"manifest.json"_s, "{\"version\": 1}"); // refused, if there is one already
    return archive.finish();
}

int number(const char *statement)
{
    QSqlQuery query(QString::fromLatin1(statement));
    return query.next() ? query.value(0).toInt() : 0;
}

void checkTables(int objects)
{
    require(number("SELECT COUNT(*) FROM sqlite_master") == objects);
    require(number("SELECT COUNT(*) FROM pragma_foreign_key_check") == 0);
    for (const char *statement :
         {"SELECT COUNT(*) FROM accounts WHERE sync_status <> 'pending'",
          "SELECT COUNT(*) FROM categories WHERE id = '' OR parent_id = ''",
          "SELECT COUNT(*) FROM transactions WHERE server_id IS NOT NULL OR version <> 1",
          "SELECT COUNT(*) FROM transactions WHERE typeof(payee) <> 'text'"})
        require(number(statement) == 0);
}

int storedRows()
{
    return number("SELECT (SELECT COUNT(*) FROM accounts) + (SELECT COUNT(*) FROM categories) + "
                  "(SELECT COUNT(*) FROM transactions) + (SELECT COUNT(*) FROM split_lines) + "
                  "(SELECT COUNT(*) FROM recurring_transactions) + "
                  "(SELECT COUNT(*) FROM reconciliations)");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    Database &database = openDatabase();
    startAnew();
    const int objects = number("SELECT COUNT(*) FROM sqlite_master");
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArray bytes = input.front() == kAsItIs ? input.mid(1) : archiveOf(input);
    BackupService service(&database);
    require(service.importBackup(bytes, BackupMergeMode::Skip).imported.total() == storedRows());
    checkTables(objects);
    require(service.importBackup(bytes, BackupMergeMode::KeepNewer).errors
            == service.importBackup(bytes, BackupMergeMode::Replace).errors);
    checkTables(objects);
    // What was stored comes out again whole, and is found to be there.
    const int rows = storedRows();
    const BackupImportResult again =
        service.importBackup(service.exportBackup(), BackupMergeMode::Skip);
    require(again.errors.isEmpty() && again.imported.total() == 0);
    require(again.skipped.total() == rows);
    return 0;
}
