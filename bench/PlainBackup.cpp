#include "PlainBackup.h"

#include "PlainSqlite.h"

#include <sqlite3.h>
#include <zip.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

struct Table
{
    const char *folder;
    const char *name;
};

constexpr Table kTables[]{{"accounts", "accounts"},
                          {"categories", "categories"},
                          {"transactions", "transactions"},
                          {"split_lines", "split_lines"},
                          {"recurring", "recurring_transactions"},
                          {"reconciliations", "reconciliations"}};

void appendText(QByteArray &json, const char *text)
{
    json += '"';
    for (; *text != '\0'; ++text) {
        if (*text == '"' || *text == '\\')
            json += '\\';
        json += *text;
    }
    json += '"';
}

QByteArray rowText(sqlite3_stmt *row)
{
    QByteArray json("{\n");
    for (int column = 0; column < sqlite3_column_count(row); ++column) {
        json += column > 0 ? ",\n    " : "    ";
        appendText(json, sqlite3_column_name(row, column));
        json += ": ";
        const int type = sqlite3_column_type(row, column);
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
        if (type == SQLITE_TEXT)
            appendText(json, text);
        else
            json += type == SQLITE_NULL ? "null" : text;
    }
    return json + "\n}\n";
}

void addEntry(zip_t *archive, const QByteArray &path, const QByteArray &bytes)
{
    void *copy = std::malloc(size_t(bytes.size()));
    std::memcpy(copy, bytes.constData(), size_t(bytes.size()));
    zip_source_t *source = zip_source_buffer(archive, copy, zip_uint64_t(bytes.size()), 1);
    const zip_int64_t index = zip_file_add(archive, path.constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0)
        qFatal("bench: no entry");
    zip_set_file_compression(archive, zip_uint64_t(index), ZIP_CM_DEFLATE, 1); // as the program
}

void exportTable(PlainSqlite &plain, zip_t *archive, const Table &table)
{
    sqlite3_stmt *rows = plain.prepare(QByteArray("SELECT * FROM ") + table.name);
    while (sqlite3_step(rows) == SQLITE_ROW) {
        const auto *id = reinterpret_cast<const char *>(sqlite3_column_text(rows, 0));
        addEntry(archive, QByteArray(table.folder) + '/' + id + ".json", rowText(rows));
    }
    sqlite3_finalize(rows);
}

QByteArray bytesOf(zip_source_t *source)
{
    zip_stat_t stat;
    zip_source_stat(source, &stat);
    QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
    zip_source_open(source);
    zip_source_read(source, bytes.data(), stat.size);
    zip_source_close(source);
    return bytes;
}

QByteArray bytesOf(zip_t *archive, zip_uint64_t index)
{
    zip_stat_t stat;
    zip_stat_index(archive, index, 0, &stat);
    QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
    zip_file_t *file = zip_fopen_index(archive, index, 0);
    if (zip_fread(file, bytes.data(), stat.size) != bytes.size())
        qFatal("bench: no entry");
    zip_fclose(file);
    return bytes;
}

struct Field
{
    QByteArray column{};
    QByteArray text{};
    bool isText = false;
};

QByteArray takeText(const char *&at)
{
    QByteArray text;
    for (++at; *at != '"'; ++at) {
        if (*at == '\\')
            ++at;
        text += *at;
    }
    ++at;
    return text;
}

// One flat object, line by line.
std::vector<Field> fieldsOf(const QByteArray &json)
{
    std::vector<Field> fields;
    const char *at = json.constData();
    while ((at = std::strchr(at, '"')) != nullptr) {
        Field field{takeText(at)};
        at += 2;
        field.isText = *at == '"';
        const char *begin = at;
        field.text = field.isText ? takeText(at) : QByteArray();
        at += std::strcspn(at, ",\n");
        if (!field.isText)
            field.text = QByteArray(begin, at - begin);
        fields.push_back(std::move(field));
    }
    return fields;
}

// As every backup is read: as a change that is still to be synced.
void resetSyncState(std::vector<Field> &fields)
{
    for (Field &field : fields) {
        if (field.column == "sync_status")
            field.text = "pending";
        else if (field.column == "server_id")
            field = {field.column, "null"};
        else if (field.column == "version")
            field.text = "1";
    }
}

void bind(sqlite3_stmt *statement, int place, const Field &field)
{
    if (field.isText)
        sqlite3_bind_text(statement, place, field.text.constData(), int(field.text.size()),
                          SQLITE_STATIC);
    else if (field.text == "null")
        sqlite3_bind_null(statement, place);
    else
        sqlite3_bind_int64(statement, place, field.text.toLongLong());
}

class RowWriter
{
public:
    RowWriter(PlainSqlite &plain, const Table &table, const std::vector<Field> &fields)
    {
        QByteArray columns, marks, assignments;
        for (const Field &field : fields) {
            columns += (columns.isEmpty() ? "" : ", ") + field.column;
            marks += marks.isEmpty() ? "?" : ", ?";
            if (field.column != "id") // writing it would look for every row that refers to it
                assignments += (assignments.isEmpty() ? "" : ", ") + field.column + " = ?";
        }
        const QByteArray name = table.name;
        m_find = plain.prepare("SELECT id, updated_at FROM " + name + " WHERE id = ?");
        m_insert =
            plain.prepare("INSERT INTO " + name + " (" + columns + ") VALUES (" + marks + ')');
        m_update = plain.prepare("UPDATE " + name + " SET " + assignments + " WHERE id = ?");
    }
    ~RowWriter()
    {
        for (sqlite3_stmt *statement : {m_find, m_insert, m_update})
            sqlite3_finalize(statement);
    }
    RowWriter(const RowWriter &) = delete;
    RowWriter &operator=(const RowWriter &) = delete;

    void write(const std::vector<Field> &fields)
    {
        const auto isId = [](const Field &field) { return field.column == "id"; };
        const Field &id = *std::find_if(fields.begin(), fields.end(), isId);
        bind(m_find, 1, id);
        const bool exists = sqlite3_step(m_find) == SQLITE_ROW;
        sqlite3_reset(m_find);
        sqlite3_stmt *statement = exists ? m_update : m_insert;
        int place = 0;
        for (const Field &field : fields) {
            if (!exists || field.column != "id")
                bind(statement, ++place, field);
        }
        if (exists)
            bind(statement, ++place, id);
        if (sqlite3_step(statement) != SQLITE_DONE)
            qFatal("bench database: a row was refused");
        sqlite3_reset(statement);
    }

private:
    sqlite3_stmt *m_find = nullptr;
    sqlite3_stmt *m_insert = nullptr;
    sqlite3_stmt *m_update = nullptr;
};

int restoreTable(PlainSqlite &plain, zip_t *archive, const Table &table)
{
    const QByteArray folder = QByteArray(table.folder) + '/';
    std::unique_ptr<RowWriter> writer;
    int rows = 0;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        const zip_uint64_t index = zip_uint64_t(i);
        if (std::strncmp(zip_get_name(archive, index, 0), folder.constData(), size_t(folder.size()))
            != 0)
            continue;
        std::vector<Field> fields = fieldsOf(bytesOf(archive, index));
        resetSyncState(fields);
        if (!writer)
            writer = std::make_unique<RowWriter>(plain, table, fields);
        writer->write(fields);
        ++rows;
    }
    return rows;
}

} // namespace

QByteArray plainExport(PlainSqlite &plain)
{
    zip_source_t *target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip_t *archive = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    for (const Table &table : kTables)
        exportTable(plain, archive, table);
    addEntry(archive, "manifest.json", "{\n    \"version\": 1\n}\n");
    if (zip_close(archive) != 0)
        qFatal("bench: no archive");
    const QByteArray bytes = bytesOf(target);
    zip_source_free(target);
    return bytes;
}

int plainRestore(PlainSqlite &plain, const QByteArray &bytes)
{
    // As the program has it.
    plain.execute("PRAGMA journal_mode=WAL; PRAGMA foreign_keys=ON; PRAGMA synchronous=NORMAL");
    zip_source_t *source =
        zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, nullptr);
    zip_t *archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
    int rows = 0;
    for (const Table &table : kTables)
        rows += restoreTable(plain, archive, table);
    zip_discard(archive);
    plain.execute("PRAGMA wal_checkpoint");
    return rows;
}
