#pragma once

#include "kestaccount/AccountPage.h"
#include "kestaccount/ServiceRecords.h"

namespace KestAccount {

class Client;

// Where the user is signed in.
class SecurityPage : public AccountPage
{
    Q_OBJECT

public:
    explicit SecurityPage(Client *client, QWidget *parent = nullptr); // not owned

    void refresh();

private:
    void rebuild(const QList<Session> &sessions);
    void addSession(PageContent *content, const Session &session);
    void revoke(const QString &sessionId);

    Client *m_client;
};

} // namespace KestAccount
