#pragma once

#include <QByteArray>

// A manifest that offers version 1.0.11 to version 1.0.10, with one part exchanged for another.
inline QByteArray releaseManifest(const QByteArray &part = "*", const QByteArray &other = {})
{
    return QByteArray(
               R"({"schema":1,"app":"pursewell","channel":"stable","artifacts":{"linux-x64":{)"
               R"("version":"1.0.11","released_at":"2026-09-14T12:00:00Z","size":5,)"
               R"("url":"http://files.example/new","mandatory":false,"release_notes_url":"",)"
               R"("min_upgradable_from":"1.0.10","sha256":"0123456789abcdef0123456789abcdef)"
               R"(0123456789abcdef0123456789abcdef"}}})")
        .replace(part, other);
}
