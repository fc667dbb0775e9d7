#pragma once

// Backups of a household written, and read in each way of merging, beside libzip and SQLite's C API
// doing the same.
void registerBackupBenches();

// Writes or reads a backup once and prints the sizes of the archive and of the largest table and
// the peak of this process's memory in kilobytes. The arguments are those that follow the name of
// the program; false, when they ask for something else.
bool backupOnce(int count, char *arguments[]);
