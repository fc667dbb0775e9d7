#include "kestaccount/Client.h"

#include "kestaccount/AccountClient.h"
#include "kestaccount/ApiClient.h"
#include "kestaccount/AuthClient.h"
#include "kestaccount/DeviceIdentity.h"
#include "kestaccount/TokenManager.h"

#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace KestAccount {

Client::Client(const ClientConfig &config, QObject *parent)
    : QObject(parent)
    , m_config(config)
    , m_tokenManager(new TokenManager(createTokenStore(config.appId), this))
    , m_authApi(createApi(u"%1/api/v1/realms/%2"_s.arg(config.authBaseUrl, config.realmSlug)))
    , m_accountApi(createApi(config.accountApiUrl))
    , m_syncApi(createApi({}))
    , m_authClient(new AuthClient(config.authBaseUrl, config.realmSlug, config.clientId, m_authApi,
                                  m_tokenManager, this))
    , m_accountClient(nullptr)
{
    connect(m_authClient, &AuthClient::stateChanged, this, &Client::passOnState);
    m_accountClient = new AccountClient(m_accountApi, m_authClient, config, this);
}

ApiClient *Client::createApi(const QString &baseUrl)
{
    auto *api = new ApiClient(m_tokenManager, this);
    api->setBaseUrl(QUrl(baseUrl));
    api->setAppIdentity(m_config.appId, m_config.appVersion,
                        m_config.platform.isEmpty() ? platformWord(QSysInfo::kernelType())
                                                    : m_config.platform);
    return api;
}

void Client::initialize()
{
    m_authClient->initialize();
}

bool Client::isAuthenticated() const
{
    return m_authClient->isAuthenticated();
}

KesClaims Client::claims() const
{
    return parseKesClaims(m_tokenManager->accessToken());
}

void Client::passOnState(AuthState state)
{
    Q_EMIT authStateChanged(state);
    if (state == AuthState::Authenticated)
        Q_EMIT claimsUpdated(claims());
}

} // namespace KestAccount
