#include "services/QifImportInput.h"

#include "core/Ids.h"
#include "services/QifReader.h"
#include "services/TextDecoding.h"

#include <QFile>
#include <QSet>

namespace {

QString decodedFile(QFile &file)
{
    return decodeText(file.readAll()); // the bytes are gone before the text is read
}

ImportRow rowOf(QifTransaction &&transaction, const QString &path, const QifTargets &targets)
{
    ImportRow row{std::move(transaction)};
    row.targetAccountId =
        targets.accountFor(row.sourceAccount.isEmpty() ? path : row.sourceAccount);
    row.newId = newId();
    return row;
}

} // namespace

QifTargets::QifTargets(const QifAccountMapping &mapping)
    : m_accountByKey(mapping)
{
    for (auto entry = mapping.cbegin(); entry != mapping.cend(); ++entry)
        m_accountByLoweredKey.insert(entry.key().toLower(), entry.value());
}

QString QifTargets::accountFor(const QString &sourceKey) const
{
    const auto exact = m_accountByKey.constFind(sourceKey);
    return exact != m_accountByKey.constEnd() ? *exact
                                              : m_accountByLoweredKey.value(sourceKey.toLower());
}

std::optional<QifParseResult> readQifFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parseQif(decodedFile(file), QifDateOrder::Auto);
}

QifImportInput readQifFiles(const QStringList &paths, const QifTargets &targets)
{
    QifImportInput input;
    QSet<QString> seenCategories;
    for (const QString &path : paths) {
        std::optional<QifParseResult> parsed = readQifFile(path);
        if (!parsed)
            continue;
        input.malformed += parsed->malformedCount;
        input.skipped += parsed->skippedCount;
        for (const QifCategory &category : std::as_const(parsed->categories)) {
            if (!category.name.isEmpty() && !seenCategories.contains(category.name)) {
                seenCategories.insert(category.name);
                input.categories << category;
            }
        }
        for (QifTransaction &transaction : parsed->transactions)
            input.rows << rowOf(std::move(transaction), path, targets);
    }
    return input;
}
