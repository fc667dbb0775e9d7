#include "core/state/ServiceEndpoints.h"

#include "core/Deployment.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString variableOr(const char *name, QLatin1StringView defaultValue)
{
    const QByteArray value = qgetenv(name);
    return value.isEmpty() ? QString(defaultValue) : QString::fromUtf8(value);
}

} // namespace

ServiceEndpoints serviceEndpoints()
{
    return {
        .account =
            {
                .authBaseUrl = variableOr("AUTH_BASE_URL", kAuthUrl),
                .realmSlug = variableOr("AUTH_REALM_SLUG", "kestrelwood"_L1),
                .accountApiUrl = variableOr("ACCOUNT_API_URL", kAccountApiUrl),
                .clientId = variableOr("AUTH_CLIENT_ID", "7f3e2a91c04d5b68e1a7d2c39b60f418"_L1),
                .appId = u"com.kestrelwood.pursewell"_s,
                .appName = kDisplayName,
                .appVersion = QCoreApplication::applicationVersion(),
                .platform = {},
                .portalUrl = variableOr("ACCOUNT_PORTAL_URL", kAccountPortalUrl),
            },
        .syncApiUrl = variableOr("SYNC_API_URL", kSyncApiUrl),
        .updateBaseUrl = variableOr("UPDATE_BASE_URL", kUpdateUrl),
    };
}
