#pragma once

// The import of QIF and CSV files into an empty register, beside the same rows written through the
// C API; and the same with the main window open, beside the import without it.
void registerImportBenches();

// Imports once and prints the peak of this process's memory in kilobytes: the table asks a process
// of its own for each size, since the others hold what is measured beside it. The arguments are
// those that follow the name of the program; false, when they ask for something else.
bool importOnce(int count, char *arguments[]);
