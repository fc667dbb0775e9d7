#pragma once

#include "kestaccount/AccountPage.h"

namespace KestAccount {

class Client;

// The end of the account.
class PrivacyPage : public AccountPage
{
    Q_OBJECT

public:
    explicit PrivacyPage(Client *client, QWidget *parent = nullptr); // not owned

Q_SIGNALS:
    void deletionScheduled(); // after the user has read of it

private:
    void addOwnerNotice(PageContent *content);
    void deleteAccount();
    void finishDeletion(bool ok);

    Client *m_client;
};

} // namespace KestAccount
