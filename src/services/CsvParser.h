#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

// Takes a comma-separated text apart, run by run of plain characters.
class CsvParser
{
public:
    explicit CsvParser(QStringView text);

    QList<QStringList> rows();

private:
    void readPlain();
    void readQuoted();
    void endField();
    void endLine();
    void endText();
    void takeRow();

    const QChar *m_next;
    const QChar *m_end;
    bool m_quoted = false;
    QString m_field{};
    QStringList m_row{};
    QList<QStringList> m_rows{};
};
