#include "support/LanguageRows.h"
#include "support/TestSupport.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct Message
{
    QString source{};
    bool finished = false;
    bool plural = false;
    QStringList forms{}; // one, unless plural
};

using Catalogue = QMap<QString, Message>; // by context, source and what tells equal sources apart

void readTranslation(QXmlStreamReader &xml, Message &message)
{
    message.finished = !xml.attributes().hasAttribute(u"type"_s); // unfinished, vanished
    if (!message.plural)
        message.forms << xml.readElementText();
    else
        while (xml.readNextStartElement())
            message.forms << xml.readElementText();
    message.finished = message.finished && !message.forms.contains(QString());
}

void readMessage(QXmlStreamReader &xml, const QString &context, Catalogue &catalogue)
{
    Message message{.plural = xml.attributes().value(u"numerus"_s) == u"yes"};
    QString comment;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source")
            message.source = xml.readElementText();
        else if (xml.name() == u"comment")
            comment = xml.readElementText();
        else if (xml.name() == u"translation")
            readTranslation(xml, message);
        else
            xml.skipCurrentElement();
    }
    catalogue.insert(u"%1: \"%2\" %3"_s.arg(context, message.source, comment).trimmed(), message);
}

Catalogue readCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"message")
            readMessage(xml, context, catalogue);
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return catalogue;
}

QString catalogueOf(const QString &language)
{
    return QStringLiteral(PURSEWELL_CATALOGUES) + u"/pursewell_%1.ts"_s.arg(language);
}

// The catalogue as scripts/update-translations would write it now.
Catalogue updatedCatalogue(const QString &language)
{
    const QTemporaryDir directory;
    const QString copy = directory.filePath(u"copy.ts"_s);
    if (!QFile::copy(catalogueOf(language), copy)
        || !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner))
        qFatal("%s cannot be copied", qPrintable(catalogueOf(language)));
    QStringList arguments{
        u"-silent"_s,          u"-no-obsolete"_s, u"-locations"_s,       u"none"_s,
        u"-source-language"_s, u"en"_s,           u"-target-language"_s, language};
    if (language == u"en"_s)
        arguments << u"-pluralonly"_s;
    arguments << QStringLiteral(PURSEWELL_SOURCE) << u"-ts"_s << copy;
    QProcess lupdate;
    lupdate.start(QStringLiteral(PURSEWELL_LUPDATE), arguments);
    if (!lupdate.waitForFinished(120000) || lupdate.exitCode() != 0)
        qFatal("lupdate failed: %s", lupdate.readAllStandardError().constData());
    return readCatalogue(copy);
}

// What a program fills in or acts upon: placeholders, tags and entities, access keys, line breaks,
// the dots of an entry that asks for more, the colon of a label, the blanks of a joined text.
QStringList partsOf(const QString &text)
{
    static const QRegularExpression part(uR"(%L?(?:\d{1,2}|n)|</?\w[^>]*>|&\w+;|&(?=[^\s&])|\n)"
                                         uR"(|\.\.\.$|:$|^ +| +$)"_s);
    QStringList parts;
    for (const QRegularExpressionMatch &match : part.globalMatch(text))
        parts << match.captured();
    parts.sort();
    return parts;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cataloguesFollowTheSource_data() { addLanguageRows(); }
    void cataloguesFollowTheSource();
    void textsKeepTheirParts_data() { addLanguageRows(); }
    void textsKeepTheirParts();
};

void TranslationsTest::cataloguesFollowTheSource()
{
    QFETCH(QString, language);
    const Catalogue kept = readCatalogue(catalogueOf(language));
    const Catalogue updated = updatedCatalogue(language);
    QVERIFY(!updated.isEmpty());
    QStringList faults;
    for (const auto &[key, message] : updated.asKeyValueRange()) {
        if (!kept.value(key).finished)
            faults << u"not translated: "_s + key;
        else if (kept.value(key).forms.size() != message.forms.size()) // Qt knows how many
            faults << u"%1 forms wanted: %2"_s.arg(QString::number(message.forms.size()), key);
        else if (language == u"en"_s && !message.plural)
            faults << u"stands in the source already: "_s + key;
    }
    for (const auto &[key, message] : kept.asKeyValueRange()) {
        if (!updated.contains(key))
            faults << u"not in the source: "_s + key;
    }
    for (const QString &fault : std::as_const(faults)) // a message of QVERIFY2 is cut off
        qWarning("%s", qPrintable(fault));
    QCOMPARE(faults.size(), 0);
}

void TranslationsTest::textsKeepTheirParts()
{
    QFETCH(QString, language);
    QStringList faults;
    for (const auto &[key, message] : readCatalogue(catalogueOf(language)).asKeyValueRange()) {
        for (const QString &form : message.forms) {
            if (message.finished && partsOf(form) != partsOf(message.source))
                faults << u"%1 is \"%2\""_s.arg(key, form);
        }
    }
    for (const QString &fault : std::as_const(faults)) // a message of QVERIFY2 is cut off
        qWarning("%s", qPrintable(fault));
    QCOMPARE(faults.size(), 0);
}

PURSEWELL_TEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
