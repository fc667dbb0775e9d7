#pragma once

#include <QString>

namespace KestAccount {

// Which services the account library speaks to, and for which application.
struct ClientConfig
{
    QString authBaseUrl{}; // scheme and host of the sign-in service, no path
    QString realmSlug{}; // path word of the sign-in realm
    QString accountApiUrl{}; // of the account service, with its path
    QString clientId{}; // what the login page knows the application by
    QString appId{};
    QString appName{};
    QString appVersion{};
    QString platform{}; // empty: the word of this system
    QString portalUrl{}; // the web page of the account; carried, not opened here
};

} // namespace KestAccount
