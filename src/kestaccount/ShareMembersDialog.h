#pragma once

#include "kestaccount/ServiceRecords.h"
#include "kestaccount/ShareMember.h"
#include "kestaccount/ShareWords.h"

#include <QDialog>
#include <QSet>

class QVBoxLayout;

namespace KestAccount {

class Client;
class PageLabel;
class SharingBackend;

// Who has access to one shared thing, and which members of the family group could get it. Opened
// modally for a signed-in user. It starts to load at once; each change is one request, and while
// one is under way further clicks do nothing.
class ShareMembersDialog : public QDialog
{
    Q_OBJECT

public:
    // The client and the backend are not owned. The id is the backend's, handed on as it stands.
    ShareMembersDialog(Client *client, SharingBackend *backend, const QString &accountId,
                       const ShareWords &words, QWidget *parent = nullptr);

    bool isBusy() const { return m_busy; } // a change is under way; closed now, it tells no more

Q_SIGNALS:
    void sharingChanged(); // after each share or removal that the backend accepted

private:
    void buildLayout();
    void addHeading(QVBoxLayout *layout);
    QWidget *createLists();
    void addCloseButton(QVBoxLayout *layout);

    void load();
    void loadGroupMembers();
    void loadShares();
    void rebuild();
    QSet<QString> fillShares(); // the keys of those with access
    int fillCandidates(const QSet<QString> &sharedKeys); // how many there are
    QWidget *shareRow(const ShareMember &share);
    QWidget *candidateRow(const GroupMember &member);
    ShareMember withGroupNames(ShareMember share) const;
    QString selfKey() const; // empty: not in the group

    void shareWithMember(const QString &key, const QString &name);
    void removeShare(const QString &userId, const QString &name);
    void startChange();
    void finishChange(bool ok, const QString &error);

    PageLabel *m_errorLabel = nullptr;
    PageLabel *m_noGroupLabel = nullptr;
    PageLabel *m_allSharedLabel = nullptr;
    QVBoxLayout *m_sharedList = nullptr;
    QVBoxLayout *m_addList = nullptr;

    Client *m_client;
    SharingBackend *m_backend;
    QString m_accountId;
    ShareWords m_words; // with the defaults filled in
    QList<GroupMember> m_groupMembers{};
    QList<ShareMember> m_shares{};
    QString m_selfId{}; // the signed-in user's profile
    bool m_busy = false;
    bool m_asking = false; // a question is open that a button of the lists asked
    bool m_isStale = false; // an answer came meanwhile
};

} // namespace KestAccount
