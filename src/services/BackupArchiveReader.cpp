#include "services/BackupArchiveReader.h"

#include <QDebug>

#include <array>
#include <memory>
#include <zip.h>

namespace {

struct CloseFile
{
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

bool isWithin(const zip_stat_t &stat, qint64 limit)
{
    return limit >= 0 && (stat.valid & ZIP_STAT_SIZE) != 0 && stat.size <= zip_uint64_t(limit);
}

} // namespace

BackupArchiveReader::BackupArchiveReader(const QByteArray &bytes)
    : m_bytes(bytes)
{
    if (m_bytes.isEmpty())
        return; // libzip would take it for an archive without entries
    zip_error_t error{};
    zip_source_t *source =
        zip_source_buffer_create(m_bytes.constData(), zip_uint64_t(m_bytes.size()), 0, &error);
    m_archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (m_archive == nullptr) {
        qWarning() << "BackupService cannot open the archive:" << zip_error_strerror(&error);
        zip_source_free(source);
    } else if (count() > kMostEntries) {
        qWarning() << "BackupService refuses an archive of" << count() << "entries";
        zip_discard(m_archive);
        m_archive = nullptr;
    }
}

BackupArchiveReader::~BackupArchiveReader()
{
    if (m_archive != nullptr)
        zip_discard(m_archive);
}

qint64 BackupArchiveReader::count() const
{
    return zip_get_num_entries(m_archive, 0);
}

QString BackupArchiveReader::path(qint64 index) const
{
    return QString::fromUtf8(zip_get_name(m_archive, zip_uint64_t(index), ZIP_FL_ENC_GUESS));
}

QByteArray BackupArchiveReader::read(const QString &path)
{
    const zip_int64_t index = zip_name_locate(m_archive, path.toUtf8().constData(), 0);
    return index < 0 ? QByteArray() : read(index);
}

QByteArray BackupArchiveReader::read(qint64 index)
{
    const qint64 limit = qMin(kLargestEntry, kLargestTotal - m_total);
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_stat_index(m_archive, zip_uint64_t(index), 0, &stat) != 0 || !isWithin(stat, limit)) {
        qWarning() << "BackupService refuses an entry beyond its limits:" << path(index);
        return {};
    }
    return inflate(index, qint64(stat.size));
}

// An entry may hold more than the archive's list says. No more than that is ever kept, and what is
// longer is refused like what is damaged.
QByteArray BackupArchiveReader::inflate(qint64 index, qint64 size)
{
    const std::unique_ptr<zip_file_t, CloseFile> file(
        zip_fopen_index(m_archive, zip_uint64_t(index), 0));
    if (!file) {
        qWarning() << "BackupService cannot open" << path(index) << ":" << zip_strerror(m_archive);
        return {};
    }
    QByteArray bytes;
    std::array<char, 16 * 1024> part;
    zip_int64_t count = 0;
    while ((count = zip_fread(file.get(), part.data(), part.size())) > 0) {
        bytes.append(part.data(), count);
        m_total += count;
        if (bytes.size() > size)
            break;
    }
    if (count == 0)
        return bytes;
    qWarning() << "BackupService cannot read" << path(index) << ":"
               << zip_file_strerror(file.get());
    return {};
}
