#include "kestaccount/SharingBackend.h"

namespace KestAccount {

SharingBackend::SharingBackend(QObject *parent)
    : QObject(parent)
{
}

QString SharingBackend::memberKey(const GroupMember &member) const
{
    return member.accountId;
}

} // namespace KestAccount
