#pragma once

#include "Faults.h"
#include "Records.h"
#include "ServiceDatabase.h"
#include "Users.h"

#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace httplib {
class Server;
struct Request;
struct Response;
}

// The sign-in, account and sync services in one, on the loopback address: for tests and for trying
// the program out. It keeps no secrets and is not meant for anybody else's data.
class LocalService
{
public:
    explicit LocalService(const QString &databasePath);
    ~LocalService(); // stops

    // The folder's files below /downloads, read anew for each request. Before the start; false:
    // there is no such folder.
    bool serveFiles(const QString &folder);
    bool start(int port = 0); // 0: any free one; false: could not be had
    void stop();

    int port() const { return m_port; } // 0 until started
    QString address() const; // "http://127.0.0.1:…"
    Faults &faults() { return m_faults; }
    int requestCount(const QString &pathPart); // since the start, with that text in their path

    // A signed-in user without the detour through a browser.
    Users::Tokens signIn(const QString &email);
    void setTokenLife(int seconds);

private:
    struct Call
    {
        QString userId{};
        QString sessionId{};
        QStringList captures{}; // of the pattern
        QJsonObject body{};
        const httplib::Request *request = nullptr;
    };
    struct Reply
    {
        int status = 200;
        QJsonObject body{};
    };
    using Handler = std::function<Reply(const Call &)>;

    void addLoginPage();
    void addControl();
    void addAuthRoutes();
    void addProfileRoutes();
    void addGroupRoutes();
    void addDeviceRoutes();
    void addSyncRoutes();
    void addSharingRoutes();
    void route(const char *method, const std::string &pattern, bool needsUser, Handler handler);
    void serve(const httplib::Request &request, httplib::Response &response, bool needsUser,
               const Handler &handler);
    void notePath(const httplib::Request &request);
    Reply answer(const httplib::Request &request, bool needsUser, const Handler &handler);

    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread{};
    std::mutex m_mutex{}; // around everything below
    ServiceDatabase m_database;
    Users m_users;
    Records m_records;
    Faults m_faults{};
    QStringList m_paths{}; // of all requests so far
    int m_port = 0;
};
