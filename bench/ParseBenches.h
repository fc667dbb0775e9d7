#pragma once

// Decoding and parsing of files to import, without the database, beside taking the same bytes apart
// with the C library.
void registerParseBenches();
