#pragma once

#include <QString>

#include <compare>

namespace KestUpdate {

// A release number; there is no notion of a pre-release.
struct Version
{
    int major = 0;
    int minor = 0;
    int patch = 0;

    auto operator<=>(const Version &) const = default;
};

// "1.2" is 1.2.0. What is not one to three whole numbers is 0.0.0, older than any release.
Version parseVersion(const QString &text);

} // namespace KestUpdate
