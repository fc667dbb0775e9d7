#pragma once

#include <QJsonArray>
#include <QJsonObject>

struct Account;
struct Category;
struct Reconciliation;
struct RecurringTransaction;
struct SyncRepositories;
struct Transaction;

// The wire form of the synced rows: booleans are the numbers 0 and 1, money is whole minor units,
// NULL is the empty string, and every reference is the local id, which all devices share.
QJsonObject payloadOf(const Account &account);
QJsonObject payloadOf(const Category &category);
QJsonObject payloadOf(const RecurringTransaction &recurring);
QJsonObject payloadOf(const Transaction &transaction);
QJsonObject payloadOf(const Reconciliation &reconciliation);

// One change for each pending row, soft-deleted rows included; parents before what refers to them.
QJsonArray pendingChanges(const SyncRepositories &repositories);
