#pragma once

#include <QString>

namespace KestAccount {

// One person's access to a shared thing.
struct ShareMember
{
    QString id{}; // of the share
    QString userId{}; // as SharingBackend::memberKey names the person
    QString email{};
    QString displayName{};
    QString role{}; // "owner" marks the owner of the thing
    QString createdAt{}; // as the service gave it

    bool operator==(const ShareMember &) const = default;
};

} // namespace KestAccount
