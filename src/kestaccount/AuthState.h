#pragma once

#include <QMetaType>
#include <QObject>

namespace KestAccount {
Q_NAMESPACE

enum class AuthState {
    Unknown = 0, // until the stored session has been looked at
    Unauthenticated = 1,
    // 2 is reserved for a state between these two; nothing enters it.
    Authenticated = 3, // a session exists; its access token may be stale
};
Q_ENUM_NS(AuthState)

} // namespace KestAccount
