#pragma once

// The reports over the 100,000 rows of ten accounts, each beside its own statement through the
// C API, and the windows that show reports and search results.
void registerReportBenches();
