#pragma once

#include <QTableWidget>

#include <initializer_list>

// One report as a table of texts that nobody can edit. Its rows are written anew as a whole: start,
// each row, finish.
class ReportTable : public QTableWidget
{
    Q_OBJECT

public:
    // The columns from firstFigure on hold figures, which stand at the right.
    ReportTable(const QStringList &headers, int firstFigure, QWidget *parent = nullptr);

    void startRows(qsizetype count);
    void addRow(std::initializer_list<QString> texts);
    void addTotalRow(std::initializer_list<QString> texts); // in bold, after all others
    void finishRows();

    // As it is shown: one line per row, the headers first, each cell in double quotes.
    QString toCsv() const;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isFigure(int column) const { return column >= m_firstFigure; }
    void setCell(int row, int column, const QString &text);
    void fitColumns();
    int roomForText() const; // pixels

    int m_firstFigure;
    int m_nextRow = 0;
    bool m_hasTotalRow = false;
    QStringList m_longest{}; // text of each column
};
