#pragma once

// What posting the due occurrences of recurring templates costs, alone and as a part of the start.
void registerRecurringBenches();
