#pragma once

#include "data/Frequency.h"

#include <QtGlobal>

#include <span>

// The rows of the sample household, in English. Days count from the day of loading, so that the
// household always looks recent; amounts are minor units.

enum class SampleAccount { Checking, Savings, Visa };

struct SampleCategory
{
    const char *parent = nullptr; // null at the top level
    const char *name = nullptr; // null for no category
};

// What the transactions of one kind have in common.
struct SampleEntry
{
    SampleAccount account = SampleAccount::Checking;
    const char *payee = "";
    const char *memo = "";
    SampleCategory category{};
    bool is_transfer = false; // between checking and savings; its two sides share the day
};

struct SampleTransaction
{
    const SampleEntry &entry;
    int day = 0;
    qint64 amount = 0;
    const char *check_number = "";
};

struct SampleTemplate
{
    const SampleEntry &entry;
    qint64 amount = 0;
    Frequency frequency = Frequency::Monthly;
    int day = 0; // next due
};

std::span<const SampleTransaction> sampleTransactions();
std::span<const SampleTemplate> sampleTemplates();
