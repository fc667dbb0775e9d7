#pragma once

// What a person waits for in front of the reconciliation screen, with many rows and with few.
void registerReconciliationBenches();
