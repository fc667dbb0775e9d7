#pragma once

#include <QLatin1StringView>

// Who we are and where our pages stand. Addresses are values of the deployment.

inline constexpr QLatin1StringView kApplicationVersion{"1.0.10"};
inline constexpr QLatin1StringView kOrganizationName{"Kestrelwood"};
inline constexpr QLatin1StringView kOrganizationDomain{"kestrelwood.example"};
inline constexpr QLatin1StringView kApplicationName{"Pursewell"};
inline constexpr QLatin1StringView kDesktopFileName{"com.kestrelwood.pursewell"};
inline constexpr QLatin1StringView kDisplayName{"Kestrelwood Pursewell"};

inline constexpr QLatin1StringView kFeedbackUrl{"https://feedback.kestrelwood.example/"};
inline constexpr QLatin1StringView kProductUrl{"https://www.kestrelwood.example/pursewell/"};
inline constexpr QLatin1StringView kSourceUrl{"https://source.kestrelwood.example/pursewell/"};

// The defaults of the services' addresses, which variables of the environment replace.
inline constexpr QLatin1StringView kAuthUrl{"https://auth.kestrelwood.example"};
inline constexpr QLatin1StringView kAccountApiUrl{"https://account.kestrelwood.example/account/v1"};
inline constexpr QLatin1StringView kSyncApiUrl{"https://sync.kestrelwood.example/pursewell/v1"};
inline constexpr QLatin1StringView kAccountPortalUrl{"https://account.kestrelwood.example/"};

// Where the manifest of the newest release lies.
inline constexpr QLatin1StringView kUpdateUrl{
    "https://downloads.kestrelwood.example/pursewell/stable/"};
