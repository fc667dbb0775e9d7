#include "kestaccount/ShareMembersDialog.h"

#include "kestaccount/AccountClient.h"
#include "kestaccount/Client.h"
#include "kestaccount/Guarded.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PersonRow.h"
#include "kestaccount/Questions.h"
#include "kestaccount/SharingBackend.h"

#include <QFrame>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr QSize kMinimumSize(560, 560);
constexpr QSize kInitialSize(620, 620);
constexpr int kMargin = 20;
constexpr int kSectionGap = 8;
constexpr int kHighestError = 120; // a service may send a whole page

PageLabel *boldLabel(const QString &text, int morePoints, const QString &objectName)
{
    auto *label = new PageLabel(text, morePoints, QFont::Bold);
    label->setObjectName(objectName);
    label->wrapWords();
    return label;
}

QVBoxLayout *addList(QVBoxLayout *layout, const QString &objectName)
{
    auto *holder = new QWidget;
    holder->setObjectName(objectName);
    auto *list = new QVBoxLayout(holder);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(0);
    layout->addWidget(holder);
    return list;
}

// The rows go once their handlers have returned: one of them may have led here.
void empty(QVBoxLayout *list)
{
    while (const std::unique_ptr<QLayoutItem> item{list->takeAt(0)}) {
        item->widget()->hide();
        item->widget()->deleteLater();
    }
}

} // namespace

ShareMembersDialog::ShareMembersDialog(Client *client, SharingBackend *backend,
                                       const QString &accountId, const ShareWords &words,
                                       QWidget *parent)
    : QDialog(parent)
    , m_client(client)
    , m_backend(backend)
    , m_accountId(accountId)
    , m_words(withDefaults(words))
{
    setObjectName(u"shareMembersDialog"_s);
    setWindowTitle(m_words.windowTitle);
    setMinimumSize(kMinimumSize);
    buildLayout();
    resize(kInitialSize);
    load();
}

void ShareMembersDialog::buildLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    addHeading(layout);

    m_errorLabel = new PageLabel({});
    m_errorLabel->setObjectName(u"errorLabel"_s);
    m_errorLabel->setStyleSheet(u"QLabel { color: #b00020; padding: 4px 0; }"_s);
    m_errorLabel->wrapWords();
    m_errorLabel->setMaximumHeight(kHighestError);
    m_errorLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop); // a long one shows how it begins
    m_errorLabel->hide();
    layout->addWidget(m_errorLabel);

    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // Tab goes to its buttons, and it scrolls to them
    area->setWidgetResizable(true);
    area->setWidget(createLists());
    layout->addWidget(area, 1);
    addCloseButton(layout);
}

void ShareMembersDialog::addHeading(QVBoxLayout *layout)
{
    layout->addWidget(boldLabel(m_words.heading, 2, u"headingLabel"_s));
    PageLabel *description = PageLabel::muted(m_words.description, 0);
    description->setObjectName(u"descriptionLabel"_s);
    layout->addWidget(description);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setStyleSheet(u"color: rgba(128,128,128,0.25);"_s);
    layout->addWidget(line);
}

QWidget *ShareMembersDialog::createLists()
{
    auto *lists = new QWidget;
    auto *layout = new QVBoxLayout(lists);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(boldLabel(m_words.sharedWithTitle, 0, u"sharedWithTitle"_s));
    m_sharedList = addList(layout, u"sharedList"_s);
    layout->addSpacing(kSectionGap);
    layout->addWidget(boldLabel(m_words.addTitle, 0, u"addTitle"_s));
    m_addList = addList(layout, u"addList"_s);
    m_noGroupLabel = PageLabel::muted(m_words.noGroupText, 0);
    m_noGroupLabel->setObjectName(u"noGroupLabel"_s);
    m_noGroupLabel->hide();
    layout->addWidget(m_noGroupLabel);
    m_allSharedLabel = PageLabel::muted(m_words.allSharedText, 0);
    m_allSharedLabel->setObjectName(u"allSharedLabel"_s);
    m_allSharedLabel->hide();
    layout->addWidget(m_allSharedLabel);
    layout->addStretch(1);
    return lists;
}

void ShareMembersDialog::addCloseButton(QVBoxLayout *layout)
{
    auto *button = new QPushButton(m_words.closeButtonText);
    button->setObjectName(u"closeButton"_s);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(button, 0, Qt::AlignRight);
}

void ShareMembersDialog::load()
{
    loadGroupMembers();
    loadShares();
}

void ShareMembersDialog::loadGroupMembers()
{
    const auto takeGroup = [this](const Group &group) {
        m_groupMembers = group.members;
        rebuild();
    };
    const auto takeProfile = [this, takeGroup](const Profile &profile) {
        m_selfId = profile.id;
        m_client->accountClient()->getGroup(guarded(this, takeGroup));
    };
    m_client->accountClient()->getProfile(guarded(this, takeProfile));
}

void ShareMembersDialog::loadShares()
{
    m_backend->listMembers(m_accountId, guarded(this, [this](const QList<ShareMember> &shares) {
                               m_shares = shares;
                               rebuild();
                           }));
}

// Runs after each of the two answers, in whichever order they come.
void ShareMembersDialog::rebuild()
{
    m_isStale = m_asking;
    if (m_asking)
        return; // the button that asked is still inside its click
    const QWidget *focus = focusWidget();
    const bool focusGoes = focus
        && (m_sharedList->parentWidget()->isAncestorOf(focus)
            || m_addList->parentWidget()->isAncestorOf(focus));
    empty(m_sharedList);
    empty(m_addList);
    const QSet<QString> sharedKeys = fillShares();
    const bool hasGroup = !m_groupMembers.isEmpty();
    const int candidates = hasGroup ? fillCandidates(sharedKeys) : 0;
    m_noGroupLabel->setVisible(!hasGroup);
    m_allSharedLabel->setVisible(hasGroup && candidates == 0);
    if (focusGoes) // and with it the place of the keyboard
        findChild<QPushButton *>(u"closeButton"_s)->setFocus(Qt::OtherFocusReason);
}

QSet<QString> ShareMembersDialog::fillShares()
{
    QSet<QString> keys;
    for (const ShareMember &share : std::as_const(m_shares)) {
        if (share.role == "owner"_L1)
            continue;
        keys.insert(share.userId);
        m_sharedList->addWidget(shareRow(withGroupNames(share)));
    }
    if (m_sharedList->count() == 0) {
        PageLabel *label = PageLabel::muted(m_words.emptySharedText, 0);
        label->setObjectName(u"emptySharedLabel"_s);
        m_sharedList->addWidget(label);
    }
    return keys;
}

int ShareMembersDialog::fillCandidates(const QSet<QString> &sharedKeys)
{
    const QString self = selfKey();
    int count = 0;
    for (const GroupMember &member : std::as_const(m_groupMembers)) {
        const QString key = m_backend->memberKey(member);
        if (key == self || sharedKeys.contains(key))
            continue;
        m_addList->addWidget(candidateRow(member));
        ++count;
    }
    return count;
}

QString ShareMembersDialog::selfKey() const
{
    for (const GroupMember &member : m_groupMembers) {
        if (member.accountId == m_selfId)
            return m_backend->memberKey(member);
    }
    return {};
}

ShareMember ShareMembersDialog::withGroupNames(ShareMember share) const
{
    if (!share.displayName.isEmpty() && !share.email.isEmpty())
        return share;
    for (const GroupMember &member : m_groupMembers) {
        if (m_backend->memberKey(member) != share.userId)
            continue;
        if (share.displayName.isEmpty())
            share.displayName = member.displayName;
        if (share.email.isEmpty())
            share.email = member.email;
        break;
    }
    return share;
}

QWidget *ShareMembersDialog::shareRow(const ShareMember &share)
{
    auto *row = new PersonRow(share.displayName, share.email, share.userId);
    row->setObjectName(u"shareRow"_s);
    auto *button = new QToolButton;
    button->setObjectName(u"removeButton"_s);
    button->setText(u"×"_s);
    button->setAutoRaise(true);
    button->setToolTip(m_words.removeButtonText);
    button->setAccessibleName(m_words.removeButtonText);
    connect(
        button, &QToolButton::clicked, this,
        [this, userId = share.userId, name = row->primaryText()] { removeShare(userId, name); });
    row->addButton(button);
    return row;
}

QWidget *ShareMembersDialog::candidateRow(const GroupMember &member)
{
    auto *row = new PersonRow(member.displayName, member.email, {});
    row->setObjectName(u"candidateRow"_s);
    auto *button = new QPushButton(m_words.shareButtonText);
    button->setObjectName(u"shareButton"_s);
    button->setAutoDefault(false); // Return closes the dialog and shares nothing
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QPushButton::clicked, this,
            [this, key = m_backend->memberKey(member), name = row->primaryText()] {
                shareWithMember(key, name);
            });
    row->addButton(button);
    return row;
}

void ShareMembersDialog::shareWithMember(const QString &key, const QString &name)
{
    if (m_busy)
        return;
    startChange();
    m_backend->shareWith(
        m_accountId, key, m_words.role, guarded(this, [this, name](bool ok, const QString &error) {
            finishChange(ok, error.isEmpty() ? tr("Could not share with %1.").arg(name) : error);
        }));
}

void ShareMembersDialog::removeShare(const QString &userId, const QString &name)
{
    if (m_busy || m_asking)
        return;
    const QPointer self(this);
    m_asking = true;
    const bool isAgreed = confirm(this, m_words.removeConfirmTitle,
                                  m_words.removeConfirmText.arg(name), QMessageBox::No);
    if (!self)
        return;
    m_asking = false;
    if (m_isStale)
        rebuild();
    if (!isAgreed)
        return;
    startChange();
    m_backend->removeShare(m_accountId, userId, guarded(this, [this, name](bool ok) {
                               finishChange(ok, tr("Could not remove %1.").arg(name));
                           }));
}

void ShareMembersDialog::startChange()
{
    m_busy = true;
    m_errorLabel->hide();
}

// The error is only shown when the change was refused.
void ShareMembersDialog::finishChange(bool ok, const QString &error)
{
    m_busy = false;
    if (ok) {
        Q_EMIT sharingChanged();
        load();
        return;
    }
    m_errorLabel->setText(error);
    m_errorLabel->show();
}

} // namespace KestAccount
