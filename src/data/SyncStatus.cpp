#include "data/SyncStatus.h"

#include "core/EnumWords.h"

using namespace Qt::StringLiterals;

namespace {
constexpr EnumWords<3> kSyncStatusWords{"pending"_L1, "synced"_L1, "conflict"_L1};
}

QString syncStatusToString(SyncStatus status)
{
    return enumToWord(kSyncStatusWords, status, SyncStatus::Pending);
}

SyncStatus syncStatusFromString(const QString &word)
{
    return enumFromWord(kSyncStatusWords, word, SyncStatus::Pending);
}
