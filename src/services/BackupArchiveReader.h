#pragma once

#include <QByteArray>
#include <QString>

struct zip;

// Reads a ZIP archive in memory. It names no file of the system, so that a path in it can lead
// nowhere, and what it inflates is limited.
class BackupArchiveReader
{
public:
    // Far beyond what a household's backup holds.
    static constexpr qint64 kMostEntries = 2'000'000;
    static constexpr qint64 kLargestEntry = 64LL * 1024 * 1024; // bytes
    static constexpr qint64 kLargestTotal = 4LL * 1024 * 1024 * 1024; // bytes of all that was read

    explicit BackupArchiveReader(const QByteArray &bytes);
    ~BackupArchiveReader();
    BackupArchiveReader(const BackupArchiveReader &) = delete;
    BackupArchiveReader &operator=(const BackupArchiveReader &) = delete;

    bool isOpen() const { return m_archive != nullptr; } // false: no archive, or too many entries
    qint64 count() const; // of entries
    QString path(qint64 index) const;

    // Empty, with a line in the log, when the entry is missing, damaged, encrypted or too large.
    QByteArray read(qint64 index);
    QByteArray read(const QString &path);

private:
    QByteArray inflate(qint64 index, qint64 size);

    QByteArray m_bytes;
    zip *m_archive = nullptr;
    qint64 m_total = 0;
};
