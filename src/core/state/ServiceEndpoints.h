#pragma once

#include "kestaccount/ClientConfig.h"

// Where the services stand: the deployment's addresses, each replaced by its variable of the
// environment when that holds something.
struct ServiceEndpoints
{
    KestAccount::ClientConfig account{};
    QString syncApiUrl{};
};

ServiceEndpoints serviceEndpoints(); // read afresh from the environment
