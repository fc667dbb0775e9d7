#include "kestaccount/GroupPage.h"

#include "kestaccount/AccountClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PageRow.h"
#include "kestaccount/Questions.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace KestAccount {

GroupPage::GroupPage(Client *client, QWidget *parent)
    : AccountPage(tr("Group"), parent)
    , m_client(client)
{
}

void GroupPage::refresh()
{
    m_client->accountClient()->getGroup(
        guarded(this, [this](const Group &group) { rebuild(group); }));
}

void GroupPage::refreshSoon()
{
    QTimer::singleShot(kSettlingMs, this, &GroupPage::refresh);
}

void GroupPage::rebuild(const Group &group)
{
    auto *content = new PageContent;
    if (group.id.isEmpty()) {
        addJoining(content);
        setContent(content);
        return;
    }
    content->addSection(
        group.name,
        tr("%1 of %2 seats used")
            .arg(QString::number(group.members.size()), QString::number(group.maxSeats)));
    content->addSection(tr("Members"));
    const bool isOwner = m_client->claims().role == "owner"_L1;
    for (const GroupMember &member : group.members)
        addMember(content, member, isOwner);
    if (isOwner && !group.pendingInvitations.isEmpty())
        addInvitations(content, group.pendingInvitations);
    if (isOwner)
        addInviting(content);
    else
        addLeaving(content);
    setContent(content);
}

void GroupPage::addJoining(PageContent *content)
{
    content->addSection(tr("No Group"),
                        tr("You're not part of a group. The group owner can invite you, or you can "
                           "join with an invite code."));
    connect(content->addButton(tr("Join with Invite Code"), u"joinButton"_s), &QPushButton::clicked,
            this, &GroupPage::join);
}

void GroupPage::addMember(PageContent *content, const GroupMember &member, bool isOwner)
{
    auto *row = new PageRow;
    row->setObjectName(u"memberRow"_s);
    const QString name = member.displayName.isEmpty() ? member.email : member.displayName;
    auto *nameLabel = new PageLabel(name, 0, QFont::Medium);
    nameLabel->wrapWords();
    row->addLine(nameLabel);
    if (!member.email.isEmpty() && member.email != name)
        row->addLine(PageLabel::muted(member.email, -1));
    if (member.role == "owner"_L1)
        row->addBadge(tr("Owner"), u"#00897B"_s);
    else if (isOwner)
        connect(row->addButton(tr("Remove"), u"removeMemberButton"_s, name), &QPushButton::clicked,
                this,
                [this, accountId = member.accountId, name] { removeMember(accountId, name); });
    content->addRow(row);
}

void GroupPage::addInvitations(PageContent *content, const QList<GroupInvitation> &invitations)
{
    content->addSeparator();
    content->addSection(tr("Pending Invitations"));
    for (const GroupInvitation &invitation : invitations) {
        auto *row = new PageRow;
        row->setObjectName(u"invitationRow"_s);
        const QString text = invitation.invitedEmail.isEmpty()
            ? tr("Invite code: %1").arg(invitation.inviteCode)
            : invitation.invitedEmail;
        auto *label = new PageLabel(text);
        label->wrapWords();
        row->addLine(label);
        connect(row->addButton(tr("Revoke"), u"revokeInvitationButton"_s, text),
                &QPushButton::clicked, this, [this, id = invitation.id] { revoke(id); });
        content->addRow(row);
    }
}

void GroupPage::addInviting(PageContent *content)
{
    content->addSeparator();
    content->addSection(tr("Invite Members"));
    connect(content->addButton(tr("Invite by Email"), u"inviteByEmailButton"_s),
            &QPushButton::clicked, this, &GroupPage::inviteByEmail);
    connect(content->addButton(tr("Generate Invite Code"), u"generateCodeButton"_s),
            &QPushButton::clicked, this, &GroupPage::generateCode);
}

void GroupPage::addLeaving(PageContent *content)
{
    content->addSeparator();
    connect(content->addButton(tr("Leave Group"), u"leaveButton"_s), &QPushButton::clicked, this,
            &GroupPage::leave);
}

void GroupPage::join()
{
    const QString code =
        askForText(this, tr("Join Group"), tr("Enter invite code:")).value_or(QString()).trimmed();
    if (code.isEmpty())
        return;
    m_client->accountClient()->joinGroup(code, guarded(this, [this](bool ok) {
                                             if (!ok) {
                                                 Q_EMIT failed(
                                                     tr("Invalid or expired invite code."));
                                                 return;
                                             }
                                             Q_EMIT succeeded(tr("Joined group."));
                                             refresh();
                                         }));
}

void GroupPage::removeMember(const QString &accountId, const QString &name)
{
    if (!confirm(this, tr("Remove Member"), tr("Remove %1 from the group?").arg(name)))
        return;
    m_client->accountClient()->removeMember(accountId);
    Q_EMIT succeeded(tr("%1 removed.").arg(name));
    refreshSoon();
}

void GroupPage::revoke(const QString &invitationId)
{
    m_client->accountClient()->revokeInvitation(invitationId);
    Q_EMIT succeeded(tr("Invitation revoked."));
    refreshSoon();
}

void GroupPage::inviteByEmail()
{
    const QString email =
        askForText(this, tr("Invite by Email"), tr("Email address:")).value_or(QString()).trimmed();
    if (email.isEmpty())
        return;
    const auto finish = [this](const GroupInvitation &invitation) {
        if (invitation.id.isEmpty()) {
            Q_EMIT failed(tr("Failed to send invitation."));
            return;
        }
        Q_EMIT succeeded(tr("Invitation sent."));
        refresh();
    };
    m_client->accountClient()->inviteByEmail(email, guarded(this, finish));
}

void GroupPage::generateCode()
{
    const auto finish = [this](const GroupInvitation &invitation) {
        if (invitation.inviteCode.isEmpty()) {
            Q_EMIT failed(tr("Failed to generate code."));
            return;
        }
        if (inform(this, tr("Invite Code"),
                   tr("Share this code with the person you want to invite:\n\n%1")
                       .arg(invitation.inviteCode)))
            refresh();
    };
    m_client->accountClient()->generateInviteCode(guarded(this, finish));
}

// Told at once: whether the service let the user go shows in the group that comes back.
void GroupPage::leave()
{
    if (!confirm(this, tr("Leave Group"),
                 tr("Leave this group? You will lose access to shared data.")))
        return;
    m_client->accountClient()->leaveGroup();
    Q_EMIT succeeded(tr("Left group."));
    refreshSoon();
}

} // namespace KestAccount
