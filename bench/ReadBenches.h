#pragma once

#include "BenchDatabase.h"

// What the program reads from a database of this shape, beside the same statements through the
// C API.
void registerReadBenches(BenchDatabase::Shape shape);
