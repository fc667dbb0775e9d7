#pragma once

#include "kestaccount/AccountPage.h"
#include "kestaccount/ServiceRecords.h"

namespace KestAccount {

class Client;
class PageLabel;

// The user's name, address and password.
class ProfilePage : public AccountPage
{
    Q_OBJECT

public:
    explicit ProfilePage(Client *client, QWidget *parent = nullptr); // not owned

    void refresh();

private:
    void showName(const QString &displayName);
    void editDisplayName();
    void showUpdated(const User &user);
    void changePassword();
    void finishPassword(bool ok);

    Client *m_client;
    PageLabel *m_nameLabel;
    PageLabel *m_emailLabel;
};

} // namespace KestAccount
