#pragma once

#include <QTableWidget>

// The table of split lines, made for the keyboard: Tab goes from cell to cell and opens what it
// comes to, and leaves the table behind its last cell.
class SplitTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit SplitTable(QWidget *parent = nullptr);

    void setBox(int row, int column, QWidget *box); // takes ownership of the box

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    bool isAtEnd(bool next) const;
    bool leave(bool next);
};
