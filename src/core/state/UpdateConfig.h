#pragma once

#include "kestupdate/Config.h"

// Where this program's releases stand, and which of them is running.
KestUpdate::Config updateClientConfig();
