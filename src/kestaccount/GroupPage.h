#pragma once

#include "kestaccount/AccountPage.h"
#include "kestaccount/ServiceRecords.h"

namespace KestAccount {

class Client;

// The family group: its members, its invitations, joining and leaving. What an owner may do is
// offered by what the access token says at that moment.
class GroupPage : public AccountPage
{
    Q_OBJECT

public:
    explicit GroupPage(Client *client, QWidget *parent = nullptr); // not owned

    void refresh();

private:
    void rebuild(const Group &group);
    void addJoining(PageContent *content);
    void addMember(PageContent *content, const GroupMember &member, bool isOwner);
    void addInvitations(PageContent *content, const QList<GroupInvitation> &invitations);
    void addInviting(PageContent *content);
    void addLeaving(PageContent *content);
    void refreshSoon();

    void join();
    void removeMember(const QString &accountId, const QString &name);
    void revoke(const QString &invitationId);
    void inviteByEmail();
    void generateCode();
    void leave();

    Client *m_client;
};

} // namespace KestAccount
