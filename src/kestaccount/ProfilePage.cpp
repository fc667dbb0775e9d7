#include "kestaccount/ProfilePage.h"

#include "kestaccount/AuthClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/Questions.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kShortestPassword = 8;

} // namespace

ProfilePage::ProfilePage(Client *client, QWidget *parent)
    : AccountPage(tr("Profile"), parent)
    , m_client(client)
    , m_nameLabel(new PageLabel({}))
    , m_emailLabel(PageLabel::muted({}, 0))
{
    m_nameLabel->setObjectName(u"displayNameLabel"_s);
    m_nameLabel->wrapWords();
    m_emailLabel->setObjectName(u"emailLabel"_s);

    auto *content = new PageContent;
    content->addSection(tr("Personal Information"));
    content->addLabel(m_nameLabel);
    content->addLabel(m_emailLabel);
    connect(content->addButton(tr("Edit Display Name"), u"editDisplayNameButton"_s),
            &QPushButton::clicked, this, &ProfilePage::editDisplayName);
    content->addSeparator();
    content->addSection(tr("Password"), tr("Change your account password."));
    connect(content->addButton(tr("Change Password"), u"changePasswordButton"_s),
            &QPushButton::clicked, this, &ProfilePage::changePassword);
    setContent(content);
}

void ProfilePage::refresh()
{
    m_client->authClient()->fetchCurrentUser(guarded(this, [this](const User &user) {
        showName(user.displayName);
        m_emailLabel->setText(user.email);
    }));
}

void ProfilePage::showName(const QString &displayName)
{
    m_nameLabel->setText(displayName.isEmpty() ? tr("(not set)") : displayName);
}

void ProfilePage::editDisplayName()
{
    AuthClient *auth = m_client->authClient();
    const std::optional<QString> name = askForText(
        this, tr("Edit Display Name"), tr("Display name:"), auth->currentUser().displayName);
    if (!name || name->trimmed().isEmpty())
        return;
    auth->updateProfile(name->trimmed(),
                        guarded(this, [this](const User &user) { showUpdated(user); }));
}

// A failed update hands over the last known user and looks like a good one: the old name stays, and
// only somebody whose user was never fetched reads of the failure.
void ProfilePage::showUpdated(const User &user)
{
    if (user.id.isEmpty()) {
        Q_EMIT failed(tr("Failed to update profile."));
        return;
    }
    showName(user.displayName);
    Q_EMIT succeeded(tr("Display name updated."));
}

void ProfilePage::changePassword()
{
    const auto ask = [this](const QString &prompt) {
        return askForText(this, tr("Change Password"), prompt, {}, QLineEdit::Password)
            .value_or(QString());
    };
    const QString current = ask(tr("Current password:"));
    if (current.isEmpty())
        return;
    const QString chosen = ask(tr("New password (min 8 characters):"));
    if (chosen.isEmpty())
        return;
    if (chosen.size() < kShortestPassword) {
        Q_EMIT failed(tr("Password must be at least 8 characters."));
        return;
    }
    const QString repeated = ask(tr("Confirm new password:"));
    if (repeated.isEmpty())
        return;
    if (repeated != chosen) {
        Q_EMIT failed(tr("Passwords do not match."));
        return;
    }
    m_client->authClient()->changePassword(current, chosen,
                                           guarded(this, [this](bool ok) { finishPassword(ok); }));
}

void ProfilePage::finishPassword(bool ok)
{
    if (ok)
        Q_EMIT succeeded(tr("Password changed."));
    else
        Q_EMIT failed(tr("Failed to change password."));
}

} // namespace KestAccount
