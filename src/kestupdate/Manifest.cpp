#include "kestupdate/Manifest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace KestUpdate {

namespace {

constexpr int kSchema = 1;
constexpr qsizetype kSha256Length = 64; // hexadecimal digits

// Reads the fields of one object and keeps the first error.
class Fields
{
public:
    explicit Fields(const QJsonObject &object)
        : m_object(object)
    {
    }

    QString required(QLatin1StringView key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isString() && m_error.isEmpty())
            m_error = u"missing or non-string field: %1"_s.arg(key);
        return value.toString();
    }
    QString optional(QLatin1StringView key) const { return m_object.value(key).toString(); }
    QJsonValue value(QLatin1StringView key) const { return m_object.value(key); }
    const QString &error() const { return m_error; }

private:
    QJsonObject m_object;
    QString m_error{};
};

// A double beyond 64 bits cannot be cut to an integer; such a size is no size.
qint64 sizeFrom(const QJsonValue &value)
{
    const double size = value.toDouble(-1);
    return size >= -1 && size < 9.2e18 ? static_cast<qint64>(size) : -1;
}

bool isSound(const Artifact &artifact)
{
    return !artifact.version.isEmpty() && artifact.releasedAt.isValid() && artifact.url.isValid()
        && artifact.size >= 1 && artifact.sha256.size() == kSha256Length;
}

Artifact parseArtifact(const QJsonObject &object, const QString &platform, QString &error)
{
    Fields fields(object);
    Artifact artifact;
    artifact.version = fields.required("version"_L1);
    artifact.releasedAt = QDateTime::fromString(fields.required("released_at"_L1), Qt::ISODate);
    artifact.url = QUrl(fields.required("url"_L1));
    artifact.size = sizeFrom(fields.value("size"_L1));
    artifact.sha256 = fields.required("sha256"_L1);
    artifact.mandatory = fields.value("mandatory"_L1).toBool();
    artifact.minUpgradableFrom = fields.optional("min_upgradable_from"_L1);
    artifact.releaseNotesUrl = QUrl(fields.optional("release_notes_url"_L1));
    error = fields.error();
    if (error.isEmpty() && !isSound(artifact))
        error = u"artifact %1 failed validation"_s.arg(platform);
    return artifact;
}

QString readArtifacts(const QJsonObject &artifacts, Manifest &manifest)
{
    for (auto entry = artifacts.constBegin(); entry != artifacts.constEnd(); ++entry) {
        if (!entry.value().isObject())
            return u"artifact %1 is not an object"_s.arg(entry.key());
        QString error;
        const Artifact artifact = parseArtifact(entry.value().toObject(), entry.key(), error);
        if (!error.isEmpty())
            return error;
        manifest.artifacts.insert(entry.key(), artifact);
    }
    return {};
}

QString readManifest(const QJsonObject &root, Manifest &manifest)
{
    const QJsonValue schema = root.value("schema"_L1);
    if (!schema.isDouble())
        return u"missing or non-integer field: schema"_s;
    manifest.schema = schema.toInt();
    if (manifest.schema != kSchema)
        return u"unsupported manifest schema: %1 (expected %2)"_s.arg(
            QString::number(manifest.schema), QString::number(kSchema));
    Fields fields(root);
    manifest.app = fields.required("app"_L1);
    manifest.channel = fields.required("channel"_L1);
    if (!fields.error().isEmpty())
        return fields.error();
    const QJsonValue artifacts = root.value("artifacts"_L1);
    if (!artifacts.isObject())
        return u"missing or non-object field: artifacts"_s;
    const QString error = readArtifacts(artifacts.toObject(), manifest);
    if (!error.isEmpty())
        return error;
    return manifest.isValid() ? QString() : u"manifest failed validation"_s;
}

} // namespace

bool Manifest::isValid() const
{
    return schema == kSchema && !app.isEmpty() && !channel.isEmpty() && !artifacts.isEmpty();
}

Manifest parseManifest(const QByteArray &bytes, QString *errorOut)
{
    Manifest manifest;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    QString error;
    if (parseError.error != QJsonParseError::NoError)
        error = u"JSON parse error: %1"_s.arg(parseError.errorString());
    else if (!document.isObject())
        error = u"manifest root is not a JSON object"_s;
    else
        error = readManifest(document.object(), manifest);
    if (errorOut)
        *errorOut = error;
    return error.isEmpty() ? manifest : Manifest();
}

QString platformKey()
{
    if (QSysInfo::currentCpuArchitecture() != "x86_64"_L1)
        return {};
#if defined(Q_OS_WIN)
    return u"windows-x64"_s;
#elif defined(Q_OS_LINUX)
    return u"linux-x64"_s;
#else
    return {};
#endif
}

} // namespace KestUpdate
