#pragma once

#include <QDateTime>
#include <QHash>
#include <QMetaType>
#include <QString>
#include <QUrl>

namespace KestUpdate {

// One release for one platform.
struct Artifact
{
    QString version{};
    QDateTime releasedAt{};
    QUrl url{}; // for the browser; nothing is downloaded here
    qint64 size = -1; // bytes; -1: not given
    QString sha256{}; // 64 characters; carried for whatever opens the URL
    bool mandatory = false;
    QString minUpgradableFrom{}; // empty: from any version
    QUrl releaseNotesUrl{}; // invalid: none

    bool operator==(const Artifact &) const = default;
};

// What a channel offers.
struct Manifest
{
    int schema = 0;
    QString app{};
    QString channel{};
    QHash<QString, Artifact> artifacts{}; // by platform key

    bool isValid() const;
};

// Stops at the first error, whose text goes to errorOut, and gives a manifest that is not valid.
Manifest parseManifest(const QByteArray &bytes, QString *errorOut = nullptr);

QString platformKey(); // of the running system in a manifest; empty: no releases for it

} // namespace KestUpdate

Q_DECLARE_METATYPE(KestUpdate::Artifact)
