#pragma once

#include "BenchDatabase.h"

// What a person waits for in front of the screen, from the request until it is painted.
void registerScreenBenches(BenchDatabase::Shape shape);
