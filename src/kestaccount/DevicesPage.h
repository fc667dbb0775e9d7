#pragma once

#include "kestaccount/AccountPage.h"
#include "kestaccount/ServiceRecords.h"

namespace KestAccount {

class Client;

// The devices on which the user's data is kept.
class DevicesPage : public AccountPage
{
    Q_OBJECT

public:
    explicit DevicesPage(Client *client, QWidget *parent = nullptr); // not owned

    void refresh();

private:
    void rebuild(const QList<Device> &devices);
    void addDevice(PageContent *content, const Device &device);
    void remove(const QString &deviceId, const QString &name);

    Client *m_client;
};

} // namespace KestAccount
