#pragma once

#include "kestaccount/ClientConfig.h"

// Where the services stand: the deployment's addresses, each replaced by its variable of the
// environment when that holds something.
struct ServiceEndpoints
{
    KestAccount::ClientConfig account{};
    QString syncApiUrl{};
    QString updateBaseUrl{}; // the directory of the manifest of releases
};

ServiceEndpoints serviceEndpoints(); // read afresh from the environment
