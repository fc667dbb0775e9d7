#pragma once

#include <QByteArray>
#include <QList>

#include <functional>

struct zip;
struct zip_source;

// Builds a ZIP archive in memory. libzip compresses nothing before an archive is closed and keeps
// every entry's bytes until then, so the archive is closed and opened again as it grows; otherwise
// a large backup would be held as plain text beside its archive.
class BackupArchiveWriter
{
public:
    explicit BackupArchiveWriter(std::function<void()> whileCompressing = {}); // now and then
    ~BackupArchiveWriter();
    BackupArchiveWriter(const BackupArchiveWriter &) = delete;
    BackupArchiveWriter &operator=(const BackupArchiveWriter &) = delete;

    // False when the path is taken already, or none that an archive can hold.
    bool add(const QString &path, const QByteArray &bytes);

    QByteArray finish(); // the archive; empty, with a line in the log, if it could not be built

private:
    bool open(int flags);
    bool close();
    QByteArray written() const;

    std::function<void()> m_whileCompressing;
    zip_source *m_target = nullptr;
    zip *m_archive = nullptr; // null also after a failure
    QList<QByteArray> m_waiting{}; // libzip reads them when the archive is closed
    qsizetype m_waitingBytes = 0;
    qsizetype m_compressedBytes = 0; // plain size of what has been compressed
};
