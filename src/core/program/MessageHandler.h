#pragma once

// Keeps debug and info messages off the standard error stream and marks warnings as such, unless
// the environment variable PURSEWELL_VERBOSE holds any text.
void installMessageHandler();
