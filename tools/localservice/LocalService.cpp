#include "LocalService.h"

#include "FaultyAnswers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QUrlQuery>

#include <httplib.h>

#include <sys/socket.h>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kMaxBody = 64UL * 1024 * 1024;
constexpr int kDefaultPage = 200;
constexpr int kLargestPage = 1000;

constexpr const char *kAuth = "/api/v1/realms/[^/]+";
constexpr const char *kAccount = "/account/v1";
constexpr const char *kSync = "/pursewell/v1";

QString text(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toString();
}

// Without the library's own SO_REUSEPORT, which lets two services share a port and its requests.
void setSocketOptions(int socket)
{
    const int yes = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

// A body of unknown length is refused: the library would take it in without end.
httplib::Server::HandlerResponse refuseUnmeasured(const httplib::Request &request,
                                                  httplib::Response &response)
{
    if (!request.has_header("Transfer-Encoding"))
        return httplib::Server::HandlerResponse::Unhandled;
    response.status = 411;
    return httplib::Server::HandlerResponse::Handled;
}

bool isLoopback(const QUrl &url)
{
    return url.scheme() == "http"_L1
        && (url.host() == "localhost"_L1 || url.host() == "127.0.0.1"_L1);
}

const char kLoginPage[] = R"(<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>Sign in</title></head>
<body style="font-family: sans-serif; max-width: 24em; margin: 3em auto">
<h2>Sign in to the local service</h2>
<p>Any address will do; its first sign-in makes the user and sets the password.</p>
<form method="post">
<p><label>E-mail<br><input name="email" value="ann@example.com"></label></p>
<p><label>Password<br><input name="password" type="password" value="secret"></label></p>
<p><button>Sign in</button></p>
</form></body></html>)";

} // namespace

LocalService::LocalService(const QString &databasePath)
    : m_server(std::make_unique<httplib::Server>())
    , m_database(databasePath)
    , m_users(m_database)
    , m_records(m_database)
{
    m_server->set_payload_max_length(kMaxBody);
    m_server->set_socket_options(setSocketOptions);
    m_server->set_pre_routing_handler(
        [this](const httplib::Request &request, httplib::Response &response) {
            notePath(request);
            return refuseUnmeasured(request, response);
        });
    // One request a connection: none is cut off because it came when an idle one was being closed,
    // and nobody waits for idle ones when the service ends.
    m_server->set_keep_alive_max_count(1);
    addLoginPage();
    addControl();
    addAuthRoutes();
    addProfileRoutes();
    addGroupRoutes();
    addDeviceRoutes();
    addSyncRoutes();
    addSharingRoutes();
}

LocalService::~LocalService()
{
    stop();
}

bool LocalService::serveFiles(const QString &folder)
{
    return m_server->set_mount_point("/downloads", folder.toStdString());
}

bool LocalService::start(int port)
{
    m_port = port;
    if (port == 0)
        m_port = m_server->bind_to_any_port("127.0.0.1");
    else if (!m_server->bind_to_port("127.0.0.1", port))
        m_port = 0;
    if (m_port <= 0)
        return false;
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    while (!m_server->is_running())
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return true;
}

void LocalService::stop()
{
    m_server->stop();
    if (m_thread.joinable())
        m_thread.join();
}

QString LocalService::address() const
{
    return u"http://127.0.0.1:%1"_s.arg(m_port);
}

int LocalService::requestCount(const QString &pathPart)
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_paths.filter(pathPart).size());
}

Users::Tokens LocalService::signIn(const QString &email)
{
    const std::lock_guard lock(m_mutex);
    return m_users.signIn(email, u"secret"_s, u"local"_s);
}

void LocalService::setTokenLife(int seconds)
{
    const std::lock_guard lock(m_mutex);
    m_users.setTokenLife(seconds);
}

void LocalService::addLoginPage()
{
    m_server->Get("/[^/]+/account/login",
                  [](const httplib::Request &, httplib::Response &response) {
                      response.set_content(kLoginPage, "text/html");
                  });
    m_server->Post(
        "/[^/]+/account/login",
        [this](const httplib::Request &request, httplib::Response &response) {
            const std::lock_guard lock(m_mutex);
            const Users::Tokens tokens =
                m_users.signIn(QString::fromStdString(request.get_param_value("email")),
                               QString::fromStdString(request.get_param_value("password")),
                               QString::fromStdString(request.get_header_value("User-Agent")));
            QUrl redirect(QString::fromStdString(request.get_param_value("redirect_uri")));
            if (tokens.access.isEmpty() || !isLoopback(redirect)) {
                response.status = 403;
                response.set_content("Wrong password, or no local address to go back to.",
                                     "text/plain");
                return;
            }
            redirect.setQuery(QUrlQuery{{u"access_token"_s, tokens.access},
                                        {u"refresh_token"_s, tokens.refresh}});
            response.set_redirect(redirect.toString(QUrl::FullyEncoded).toStdString());
        });
}

void LocalService::addControl()
{
    m_server->Post("/control/fault",
                   [this](const httplib::Request &request, httplib::Response &response) {
                       const QByteArray body = QByteArray::fromStdString(request.body);
                       if (!m_faults.setFrom(QJsonDocument::fromJson(body).object()))
                           response.status = 400;
                   });
    m_server->Get("/control/requests",
                  [this](const httplib::Request &, httplib::Response &response) {
                      const std::lock_guard lock(m_mutex);
                      response.set_content(m_paths.join(u'\n').toStdString() + '\n', "text/plain");
                  });
}

void LocalService::addAuthRoutes()
{
    route("POST", std::string(kAuth) + "/auth/token/refresh", false,
          [this](const Call &call) -> Reply {
              const Users::Tokens tokens = m_users.refresh(text(call.body, "refresh_token"_L1));
              if (tokens.access.isEmpty())
                  return {.status = 401};
              return {.body = {{"access_token"_L1, tokens.access},
                               {"refresh_token"_L1, tokens.refresh}}};
          });
    route("POST", std::string(kAuth) + "/auth/logout", true, [this](const Call &call) -> Reply {
        m_users.endSession(call.userId, call.sessionId);
        return {.status = 204};
    });
    route("GET", std::string(kAuth) + "/users/me", true,
          [this](const Call &call) -> Reply { return {.body = m_users.user(call.userId)}; });
    route("PATCH", std::string(kAuth) + "/users/me", true, [this](const Call &call) -> Reply {
        m_users.rename(call.userId, text(call.body, "display_name"_L1));
        return {.body = m_users.user(call.userId)};
    });
    route("POST", std::string(kAuth) + "/users/me/password", true,
          [this](const Call &call) -> Reply {
              const bool isChanged =
                  m_users.changePassword(call.userId, text(call.body, "current_password"_L1),
                                         text(call.body, "new_password"_L1));
              return {.status = isChanged ? 204 : 400};
          });
    route("GET", std::string(kAuth) + "/users/me/sessions", true,
          [this](const Call &call) -> Reply {
              return {.body = {{"sessions"_L1, m_users.sessions(call.userId, call.sessionId)}}};
          });
    route("DELETE", std::string(kAuth) + "/users/me/sessions/([^/]+)", true,
          [this](const Call &call) -> Reply {
              m_users.endSession(call.userId, call.captures.at(0));
              return {.status = 204};
          });
}

void LocalService::addProfileRoutes()
{
    route("GET", std::string(kAccount) + "/profile", true,
          [this](const Call &call) -> Reply { return {.body = m_users.profile(call.userId)}; });
    route("DELETE", std::string(kAccount) + "/profile", true, [this](const Call &call) -> Reply {
        m_users.remove(call.userId);
        return {.status = 204};
    });
}

void LocalService::addGroupRoutes()
{
    route("GET", std::string(kAccount) + "/group", true, [this](const Call &call) -> Reply {
        const QJsonObject group = m_users.group(call.userId);
        return {.status = group.isEmpty() ? 404 : 200, .body = group};
    });
    route("POST", std::string(kAccount) + "/group/invite", true, [this](const Call &call) -> Reply {
        const QJsonObject invitation = m_users.invite(call.userId, text(call.body, "email"_L1));
        return {.status = invitation.isEmpty() ? 403 : 201, .body = invitation};
    });
    route("POST", std::string(kAccount) + "/group/join/([^/]+)", true,
          [this](const Call &call) -> Reply {
              return {.status = m_users.join(call.userId, call.captures.at(0)) ? 204 : 404};
          });
    route("POST", std::string(kAccount) + "/group/leave", true, [this](const Call &call) -> Reply {
        return {.status = m_users.leave(call.userId) ? 204 : 404};
    });
    route("DELETE", std::string(kAccount) + "/group/members/([^/]+)", true,
          [this](const Call &call) -> Reply {
              return {.status = m_users.removeMember(call.userId, call.captures.at(0)) ? 204 : 403};
          });
    route("DELETE", std::string(kAccount) + "/group/invitations/([^/]+)", true,
          [this](const Call &call) -> Reply {
              return {.status =
                          m_users.revokeInvitation(call.userId, call.captures.at(0)) ? 204 : 403};
          });
}

void LocalService::addDeviceRoutes()
{
    route("GET", std::string(kAccount) + "/devices", true, [this](const Call &call) -> Reply {
        return {.body = {{"devices"_L1, m_users.devices(call.userId)}}};
    });
    route("POST", std::string(kAccount) + "/devices/register", true,
          [this](const Call &call) -> Reply {
              m_users.registerDevice(call.userId, call.body);
              return {.status = 201};
          });
    route("DELETE", std::string(kAccount) + "/devices/([^/]+)", true,
          [this](const Call &call) -> Reply {
              m_users.removeDevice(call.userId, call.captures.at(0));
              return {.status = 204};
          });
}

void LocalService::addSyncRoutes()
{
    route("POST", std::string(kSync) + "/sync/push", true, [this](const Call &call) -> Reply {
        const QJsonValue changes = call.body.value("changes"_L1);
        if (!changes.isArray())
            return {.status = 400, .body = {{"error"_L1, u"No changes"_s}}};
        m_users.noteSync(call.userId);
        return {.body = {{"results"_L1, m_records.push(call.userId, changes.toArray())}}};
    });
    route("GET", std::string(kSync) + "/sync/pull", true, [this](const Call &call) -> Reply {
        const auto item = [&call](const char *key) {
            return QString::fromStdString(call.request->get_param_value(key));
        };
        const int limit = item("limit").toInt();
        return {.body = m_records.pull(call.userId, item("since"),
                                       limit > 0 ? std::min(limit, kLargestPage) : kDefaultPage)};
    });
}

void LocalService::addSharingRoutes()
{
    route("GET", std::string(kSync) + "/accounts/([^/]+)/members", true,
          [this](const Call &call) -> Reply {
              if (!m_records.mayRead(call.userId, call.captures.at(0)))
                  return {.status = 404};
              return {.body = {{"members"_L1, m_records.sharedWith(call.captures.at(0))}}};
          });
    route("POST", std::string(kSync) + "/accounts/([^/]+)/share", true,
          [this](const Call &call) -> Reply {
              const QString memberId =
                  m_users.fellowMember(call.userId, text(call.body, "user_id"_L1));
              if (!m_records.owns(call.userId, call.captures.at(0)))
                  return {.status = 404, .body = {{"error"_L1, u"No such account"_s}}};
              if (memberId.isEmpty())
                  return {.status = 404,
                          .body = {{"error"_L1, u"Not a member of your family group"_s}}};
              m_records.share(call.userId, call.captures.at(0), memberId,
                              text(call.body, "role"_L1));
              return {.status = 201};
          });
    route("DELETE", std::string(kSync) + "/accounts/([^/]+)/share/([^/]+)", true,
          [this](const Call &call) -> Reply {
              return {.status =
                          m_records.unshare(call.userId, call.captures.at(0), call.captures.at(1))
                          ? 204
                          : 404};
          });
}

void LocalService::route(const char *method, const std::string &pattern, bool needsUser,
                         Handler handler)
{
    const auto serveIt = [this, needsUser, handler](const httplib::Request &request,
                                                    httplib::Response &response) {
        serve(request, response, needsUser, handler);
    };
    const std::string verb = method;
    if (verb == "GET")
        m_server->Get(pattern, serveIt);
    else if (verb == "POST")
        m_server->Post(pattern, serveIt);
    else if (verb == "PATCH")
        m_server->Patch(pattern, serveIt);
    else
        m_server->Delete(pattern, serveIt);
}

void LocalService::serve(const httplib::Request &request, httplib::Response &response,
                         bool needsUser, const Handler &handler)
{
    const Fault fault = m_faults.next(QString::fromStdString(request.path));
    std::this_thread::sleep_for(std::chrono::milliseconds(fault.delay_ms));
    if (fault.kind == Fault::Kind::Status) {
        response.status = fault.status;
        response.set_content(R"({"error":"as told"})", "application/json");
        return;
    }
    Reply reply = answer(request, needsUser, handler);
    response.status = reply.status;
    if (fault.kind == Fault::Kind::WrongTypes)
        reply.body = withWrongTypes(reply.body);
    std::string body = reply.status == 204
        ? std::string()
        : QJsonDocument(reply.body).toJson(QJsonDocument::Compact).toStdString();
    if (fault.kind == Fault::Kind::NotJson)
        body = "<html>Service temporarily unavailable</html>";
    else if (fault.kind == Fault::Kind::JsonArray)
        body = "[" + body + "]";
    else if (fault.kind == Fault::Kind::Huge)
        body = R"({"filler":")" + std::string(100UL * 1024 * 1024, 'x') + R"("})";

    if (fault.kind == Fault::Kind::Drop)
        dropConnection(m_port, request.remote_port);
    else if (fault.kind == Fault::Kind::Truncated)
        sendTruncated(response, body);
    else if (!body.empty())
        response.set_content(body, "application/json");
}

void LocalService::notePath(const httplib::Request &request)
{
    const std::lock_guard lock(m_mutex);
    m_paths.append(QString::fromStdString(request.path));
}

LocalService::Reply LocalService::answer(const httplib::Request &request, bool needsUser,
                                         const Handler &handler)
{
    const std::lock_guard lock(m_mutex);
    Call call{.body = QJsonDocument::fromJson(QByteArray::fromStdString(request.body)).object(),
              .request = &request};
    for (std::size_t index = 1; index < request.matches.size(); ++index)
        call.captures.append(QString::fromStdString(request.matches[index].str()));
    if (!needsUser)
        return handler(call);

    const QString authorization = QString::fromStdString(request.get_header_value("Authorization"));
    const QJsonObject session = m_users.sessionOf(
        authorization.startsWith("Bearer "_L1) ? authorization.sliced(7) : QString());
    if (session.isEmpty())
        return {.status = 401, .body = {{"error"_L1, u"Sign in again"_s}}};
    call.userId = text(session, "user_id"_L1);
    call.sessionId = text(session, "id"_L1);
    return handler(call);
}
