#include "services/BackupArchiveWriter.h"

#include <QDebug>

#include <utility>
#include <zip.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// Entries are small and many, so a higher level costs time and saves next to nothing.
constexpr zip_uint32_t kCompressionLevel = 1;

// Each opening reads the list of entries again, so it has to come at growing distances.
constexpr qsizetype kSmallestBatch = 2 * 1024 * 1024; // bytes of plain text
constexpr qsizetype kBatchShare = 8; // of what is compressed already

constexpr qsizetype kLongestPath =
    65535; // bytes, of the format; libzip would cut it without a word

constexpr double kProgressStep = 0.01;

void logError(const char *what, zip_error_t *error)
{
    qWarning() << "BackupService" << what << zip_error_strerror(error);
}

// libzip's list of entries leaves as much memory in small pieces as the archive takes, and glibc
// would keep it while the archive is copied.
void returnFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

bool isPath(const QByteArray &bytes)
{
    return bytes.size() <= kLongestPath && !bytes.contains('\0');
}

} // namespace

BackupArchiveWriter::BackupArchiveWriter(std::function<void()> whileCompressing)
    : m_whileCompressing(std::move(whileCompressing))
{
    zip_error_t error{};
    m_target = zip_source_buffer_create(nullptr, 0, 0, &error);
    if (m_target == nullptr)
        logError("cannot start an archive:", &error);
    else
        open(ZIP_TRUNCATE);
}

BackupArchiveWriter::~BackupArchiveWriter()
{
    if (m_archive != nullptr)
        zip_discard(m_archive);
    zip_source_free(m_target);
}

// An archive takes over a reference to what it is written to; this object keeps its own.
bool BackupArchiveWriter::open(int flags)
{
    zip_error_t error{};
    zip_source_keep(m_target);
    m_archive = zip_open_from_source(m_target, flags, &error);
    if (m_archive == nullptr) {
        zip_source_free(m_target);
        logError("cannot open its archive:", &error);
        return false;
    }
    const auto report = [](zip_t *, double, void *writer) {
        static_cast<BackupArchiveWriter *>(writer)->m_whileCompressing();
    };
    if (m_whileCompressing)
        zip_register_progress_callback_with_state(m_archive, kProgressStep, report, nullptr, this);
    return true;
}

bool BackupArchiveWriter::close()
{
    const bool closed = zip_close(m_archive) == 0;
    if (!closed) {
        logError("cannot write its archive:", zip_get_error(m_archive));
        zip_discard(m_archive);
    }
    m_archive = nullptr;
    m_waiting.clear();
    m_compressedBytes += std::exchange(m_waitingBytes, 0);
    return closed;
}

bool BackupArchiveWriter::add(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = path.toUtf8();
    if (m_archive == nullptr || !isPath(name))
        return false;
    zip_source_t *entry =
        zip_source_buffer(m_archive, bytes.constData(), zip_uint64_t(bytes.size()), 0);
    const zip_int64_t index = zip_file_add(m_archive, name.constData(), entry, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        logError("cannot add an entry:", zip_get_error(m_archive));
        zip_source_free(entry);
        return false;
    }
    zip_set_file_compression(m_archive, zip_uint64_t(index), ZIP_CM_DEFLATE, kCompressionLevel);
    m_waiting.append(bytes);
    m_waitingBytes += bytes.size();
    if (m_waitingBytes < qMax(kSmallestBatch, m_compressedBytes / kBatchShare))
        return true;
    return close() && open(0);
}

QByteArray BackupArchiveWriter::finish()
{
    if (m_archive == nullptr || !close())
        return {};
    returnFreeMemory();
    return written();
}

QByteArray BackupArchiveWriter::written() const
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(m_target, &stat) != 0 || zip_source_open(m_target) != 0) {
        logError("cannot read its archive:", zip_source_error(m_target));
        return {};
    }
    QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
    const zip_int64_t count = zip_source_read(m_target, bytes.data(), stat.size);
    zip_source_close(m_target);
    return count == bytes.size() ? bytes : QByteArray();
}
