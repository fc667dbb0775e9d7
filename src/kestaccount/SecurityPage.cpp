#include "kestaccount/SecurityPage.h"

#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PageRow.h"
#include "kestaccount/RelativeTime.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kLongestUserAgent = 60;

} // namespace

SecurityPage::SecurityPage(Client *client, QWidget *parent)
    : AccountPage(tr("Security"), parent)
    , m_client(client)
{
}

void SecurityPage::refresh()
{
    m_client->authClient()->listSessions(
        guarded(this, [this](const QList<Session> &sessions) { rebuild(sessions); }));
}

void SecurityPage::rebuild(const QList<Session> &sessions)
{
    auto *content = new PageContent;
    content->addSection(tr("Active Sessions"), tr("Sessions currently signed in to your account."));
    for (const Session &session : sessions)
        addSession(content, session);
    if (sessions.isEmpty()) {
        auto *label = new PageLabel(tr("No active sessions."));
        label->setObjectName(u"emptyLabel"_s);
        content->addLabel(label);
    }
    setContent(content);
}

void SecurityPage::addSession(PageContent *content, const Session &session)
{
    QString agent = session.userAgent.isEmpty() ? tr("Unknown client") : session.userAgent;
    if (agent.size() > kLongestUserAgent)
        agent = agent.first(kLongestUserAgent) + u"..."_s;
    QString activity = session.isCurrent ? tr("This session") : relativeTime(session.lastActiveAt);
    if (!session.ipAddress.isEmpty())
        activity += tr("  ·  %1").arg(session.ipAddress);

    auto *row = new PageRow;
    row->setObjectName(u"sessionRow"_s);
    auto *agentLabel = new PageLabel(agent);
    agentLabel->wrapWords();
    row->addLine(agentLabel);
    row->addLine(PageLabel::muted(activity, -1));
    if (session.isCurrent)
        row->addBadge(tr("Current"), u"#2E7D32"_s);
    else
        connect(row->addButton(tr("Revoke"), u"revokeSessionButton"_s, agent),
                &QPushButton::clicked, this, [this, id = session.id] { revoke(id); });
    content->addRow(row);
}

void SecurityPage::revoke(const QString &sessionId)
{
    m_client->authClient()->revokeSession(sessionId);
    Q_EMIT succeeded(tr("Session revoked."));
    QTimer::singleShot(kSettlingMs, this, &SecurityPage::refresh);
}

} // namespace KestAccount
