#include "Require.h"

#include "core/Dates.h"
#include "services/CsvReader.h"

using namespace Qt::StringLiterals;

namespace {

// The same reading, one character at a time.
class SlowCsv
{
public:
    explicit SlowCsv(const QString &text)
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (m_quoted && text.at(i) == u'"' && i + 1 < text.size() && text.at(i + 1) == u'"')
                m_field += text.at(++i);
            else
                read(text.at(i));
        }
        if (!m_field.isEmpty() || !m_row.isEmpty())
            endField();
        if (!m_row.isEmpty())
            m_rows << m_row;
    }

    const QList<QStringList> &rows() const { return m_rows; }

private:
    void read(QChar character)
    {
        if (character == u'"')
            m_quoted = !m_quoted;
        else if (m_quoted)
            m_field += character;
        else if (character == u',')
            endField();
        else if (character == u'\n')
            endLine();
        else if (character != u'\r')
            m_field += character;
    }

    void endField()
    {
        m_row << m_field.trimmed();
        m_field.clear();
    }

    void endLine()
    {
        endField();
        if (m_row != QStringList{QString()})
            m_rows << m_row;
        m_row.clear();
    }

    bool m_quoted = false;
    QString m_field{};
    QStringList m_row{};
    QList<QStringList> m_rows{};
};

QString quoted(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList fields = row;
        for (QString &field : fields)
            field = u'"' + field.replace(u'"', u"\"\""_s) + u'"';
        text += fields.join(u',') + u"\r\n"_s;
    }
    return text;
}

void checkRows(const QString &text)
{
    QList<QStringList> rows = parseCsv(text);
    require(rows == SlowCsv(text).rows());
    rows.removeAll(QStringList{QString()}); // a last line of spaces alone, which a break would drop
    require(parseCsv(quoted(rows)) == rows);
}

void checkDate(const QString &text)
{
    QDate expected;
    for (const QString &form : {u"yyyy-MM-dd"_s, u"MM/dd/yyyy"_s, u"M/d/yyyy"_s, u"M/dd/yyyy"_s,
                                u"MM/d/yyyy"_s, u"dd/MM/yyyy"_s, u"d/M/yyyy"_s, u"d/MM/yyyy"_s,
                                u"dd/M/yyyy"_s, u"MM/dd/yy"_s, u"M/d/yy"_s, u"yyyy/MM/dd"_s}) {
        if (!expected.isValid())
            expected = dateFromText(text, form);
    }
    const QDate date = parseCsvDate(text);
    require(date.isValid() ? date == expected : date.isNull() && !expected.isValid());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkRows(text);
    if (size <= 16) // Qt's parser is slow, and no date is longer
        checkDate(text);
    return 0;
}
