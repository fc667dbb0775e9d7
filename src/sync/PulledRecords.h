#pragma once

#include <QDate>
#include <QJsonObject>

struct Account;
struct Category;
struct Reconciliation;
struct RecurringTransaction;
struct Transaction;

// The service's records as rows of ours. A key that is missing or of another type leaves its field
// empty, 0, false or invalid. `id` is the row's id on all devices, empty if the service knows none;
// `version` is 0 if absent; `sync_status` is Synced, which keeps the row out of the next push.
void readPulled(const QJsonObject &json, Account &account);
void readPulled(const QJsonObject &json, Category &category);
void readPulled(const QJsonObject &json, RecurringTransaction &recurring);
void readPulled(const QJsonObject &json, Transaction &transaction);
void readPulled(const QJsonObject &json, Reconciliation &reconciliation);

QDate parseFlexibleDate(const QString &text); // a date or a date-time; a null date: neither
