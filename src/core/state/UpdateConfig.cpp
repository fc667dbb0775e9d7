#include "core/state/UpdateConfig.h"

#include "core/Deployment.h"
#include "core/state/ServiceEndpoints.h"

using namespace Qt::StringLiterals;

KestUpdate::Config updateClientConfig()
{
    return {
        .productId = u"pursewell"_s,
        .channel = u"stable"_s,
        .manifestBaseUrl = QUrl(serviceEndpoints().updateBaseUrl),
        .currentVersion = kApplicationVersion,
    };
}
