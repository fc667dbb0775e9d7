#include "Require.h"

#include "kestupdate/Manifest.h"
#include "kestupdate/Version.h"

#include <QByteArray>

using namespace KestUpdate;

namespace {

void checkArtifact(const Artifact &artifact)
{
    require(!artifact.version.isEmpty() && artifact.releasedAt.isValid());
    require(artifact.url.isValid() && artifact.size >= 1 && artifact.sha256.size() == 64);
}

// A manifest is whole or there is none, and then the text says why.
void checkManifest(const QByteArray &bytes)
{
    QString error;
    const Manifest manifest = parseManifest(bytes, &error);
    require(manifest.isValid() == error.isEmpty());
    require(manifest.isValid() || manifest.artifacts.isEmpty());
    for (const Artifact &artifact : manifest.artifacts)
        checkArtifact(artifact);
}

// Written out again a version is the same, and of two exactly one order holds.
void checkVersions(const QString &text)
{
    const Version left = parseVersion(text.section(u'\n', 0, 0));
    const Version right = parseVersion(text.section(u'\n', 1, 1));
    const QString written = QStringLiteral("%1.%2.%3")
                                .arg(QString::number(left.major), QString::number(left.minor),
                                     QString::number(left.patch));
    require(parseVersion(written) == left);
    require((left < right) + (right < left) + (left == right) == 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkManifest(bytes);
    checkVersions(QString::fromUtf8(bytes));
    return 0;
}
