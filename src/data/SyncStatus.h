#pragma once

#include <QString>

// Whether a row still has to go to the server.
enum class SyncStatus { Pending, Synced, Conflict };

QString syncStatusToString(SyncStatus status); // an unknown value gives "pending"
SyncStatus syncStatusFromString(const QString &word); // an unknown word reads as Pending
