#pragma once

// What a person waits for in front of the payee screen, with 5,000 payees.
void registerPayeeBenches();
