#include "Require.h"

#include "kestaccount/TokenClaims.h"

#include <QJsonDocument>

using namespace KestAccount;
using namespace Qt::StringLiterals;

namespace {

QString base64Url(const QByteArray &bytes)
{
    return QString::fromLatin1(
        bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

// Whatever the text is, no claim appears that its payload does not hold.
void checkClaims(const QString &token)
{
    const QJsonObject payload = tokenPayload(token);
    const QJsonValue subject = payload.value("sub"_L1);
    const QJsonValue expiry = payload.value("exp"_L1);
    const int seconds = parseTokenExpiry(token);
    require(parseTokenSubject(token) == (subject.isString() ? subject.toString() : QString()));
    require(seconds == 0 || (expiry.isDouble() && expiry.toDouble() == seconds));
    const KesClaims claims = parseKesClaims(token);
    require(payload.contains("custom"_L1) || claims == KesClaims());
}

// The bytes as a payload: read back as JSON would have it, between any other parts.
void checkPayload(const QByteArray &bytes)
{
    const QJsonObject expected = QJsonDocument::fromJson(bytes).object();
    const QString part = base64Url(bytes);
    require(tokenPayload(u"e30.%1.x"_s.arg(part)) == expected);
    require(tokenPayload(u'.' + part) == expected);
    require(tokenPayload(part).isEmpty());
    checkClaims(u"e30.%1.x"_s.arg(part));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkClaims(QString::fromUtf8(bytes));
    checkPayload(bytes);
    return 0;
}
