#include "services/CsvParser.h"

#include <algorithm>
#include <iterator>

namespace {

bool isMark(QChar character)
{
    return character == u'"' || character == u',' || character == u'\n' || character == u'\r';
}

} // namespace

CsvParser::CsvParser(QStringView text)
    : m_next(text.begin())
    , m_end(text.end())
{
}

QList<QStringList> CsvParser::rows()
{
    while (m_next != m_end) {
        if (m_quoted)
            readQuoted();
        else
            readPlain();
    }
    endText();
    return std::move(m_rows);
}

void CsvParser::readPlain()
{
    const QChar *mark = std::find_if(m_next, m_end, isMark);
    m_field.append(QStringView(m_next, mark));
    m_next = mark;
    if (mark == m_end)
        return;
    ++m_next;
    if (*mark == u'"')
        m_quoted = true; // also behind other characters of the field
    else if (*mark == u',')
        endField();
    else if (*mark == u'\n')
        endLine();
}

void CsvParser::readQuoted()
{
    const QChar *quote = std::find(m_next, m_end, u'"');
    m_field.append(QStringView(m_next, quote));
    m_next = quote;
    if (quote == m_end)
        return;
    ++m_next;
    if (m_next == m_end || *m_next != u'"') {
        m_quoted = false;
        return;
    }
    m_field.append(u'"');
    ++m_next;
}

void CsvParser::endField()
{
    m_row.append(QStringView(m_field).trimmed().toString());
    m_field.resize(0); // unlike clear(), keeps the memory for the next field
}

void CsvParser::endLine()
{
    endField();
    if (m_row.size() > 1 || !m_row.front().isEmpty())
        takeRow();
    m_row.resize(0);
}

void CsvParser::endText()
{
    if (!m_field.isEmpty() || !m_row.isEmpty())
        endField();
    if (!m_row.isEmpty())
        takeRow();
}

// Not the list itself: it has room for the longest row so far.
void CsvParser::takeRow()
{
    m_rows.append(
        QStringList(std::make_move_iterator(m_row.begin()), std::make_move_iterator(m_row.end())));
}
