#pragma once

#include "BenchDatabase.h"

// The lines of the table about syncing, and a count of rows against time that is no line of it.
void registerSyncBenches(BenchDatabase::Shape shape);
