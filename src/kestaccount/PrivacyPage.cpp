#include "kestaccount/PrivacyPage.h"

#include "kestaccount/AccountClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/Questions.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kNoticeMargin = 12;

// The disabled rule keeps the owner's button from looking as if it could be pressed.
const char16_t kDangerStyle[] =
    u"QPushButton { color: white; background: #C62828; border: none;  border-radius: 4px; "
    "padding: 6px 16px; font-weight: 600; }"
    "QPushButton:hover { background: #8E0000; }"
    "QPushButton:focus { border: 2px solid palette(window-text); padding: 4px 14px; }"
    "QPushButton:disabled { background: rgba(198, 40, 40, 0.35); }";

} // namespace

PrivacyPage::PrivacyPage(Client *client, QWidget *parent)
    : AccountPage(tr("Data & Privacy"), parent)
    , m_client(client)
{
    auto *content = new PageContent;
    content->addSection(
        tr("Danger Zone"),
        tr("Permanently delete your account. This cannot be undone after 30 days."));
    QPushButton *deleteButton = content->addButton(tr("Delete Account"), u"deleteAccountButton"_s);
    deleteButton->setStyleSheet(QString::fromUtf16(kDangerStyle));
    connect(deleteButton, &QPushButton::clicked, this, &PrivacyPage::deleteAccount);
    // Asked once: whoever comes to own a group later is refused by the service.
    if (m_client->claims().role == "owner"_L1) {
        deleteButton->setEnabled(false);
        addOwnerNotice(content);
    }
    setContent(content);
}

void PrivacyPage::addOwnerNotice(PageContent *content)
{
    PageLabel *notice = PageLabel::muted(
        tr("You are the group owner. Transfer ownership or remove all members before deleting your "
           "account."),
        0);
    notice->setObjectName(u"ownerNotice"_s);
    notice->setContentsMargins(kNoticeMargin, 0, 0, 0);
    content->addLabel(notice);
}

void PrivacyPage::deleteAccount()
{
    const std::optional<QString> typed =
        askForText(this, tr("Delete Account"),
                   tr("This will schedule your account for permanent deletion after 30 days.\n\n"
                      "Type DELETE to confirm:"));
    if (typed != u"DELETE"_s)
        return;
    m_client->accountClient()->deleteAccount(
        guarded(this, [this](bool ok) { finishDeletion(ok); }));
}

void PrivacyPage::finishDeletion(bool ok)
{
    if (!ok)
        Q_EMIT failed(tr("Failed to delete account."));
    else if (inform(this, tr("Account Scheduled for Deletion"),
                    tr("Your account will be permanently deleted in 30 days. You can recover it by "
                       "signing in before then.")))
        Q_EMIT deletionScheduled();
}

} // namespace KestAccount
