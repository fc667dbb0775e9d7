#include "data/StatementSplitter.h"

using namespace Qt::StringLiterals;

namespace {

class StatementSplitter
{
public:
    void addLine(QStringView line)
    {
        const QString trimmed = line.trimmed().toString();
        if (trimmed.startsWith("--"_L1))
            return;
        m_current += line;
        m_current += u'\n';
        const QString upper = trimmed.toUpper();
        if (upper.contains("BEGIN"_L1))
            ++m_depth;
        if (upper.startsWith("END"_L1) && m_depth > 0)
            --m_depth;
        if (m_depth == 0 && trimmed.endsWith(u';'))
            endStatement();
    }

    void endStatement()
    {
        QString statement = m_current.trimmed();
        m_current.clear();
        if (statement.endsWith(u';')) {
            statement.chop(1);
            statement = statement.trimmed();
        }
        if (!statement.isEmpty())
            m_statements << statement;
    }

    QStringList statements() const { return m_statements; }

private:
    QStringList m_statements{};
    QString m_current{};
    int m_depth = 0; // how many BEGIN still wait for their END
};

} // namespace

QStringList splitStatements(const QString &script)
{
    StatementSplitter splitter;
    for (const QStringView line : QStringView(script).split(u'\n'))
        splitter.addLine(line);
    splitter.endStatement(); // the last statement needs no ';'
    return splitter.statements();
}
