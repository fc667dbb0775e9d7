#pragma once

#include "data/RegisterRow.h"
#include "register/RegisterEditBuffers.h"

#include <QAbstractTableModel>

// The table behind the register: the rows of one account, one extra row in which a new transaction
// is typed (the insertion row), and the texts of the row being typed. Nothing is saved here, and no
// balance computed: each row carries the balance of its chronological place, however it is sorted.
class RegisterModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit RegisterModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    // Takes the rows in chronological order and sorts them; ends any edit and empties the
    // insertion row.
    void setRows(QList<RegisterRow> rows);
    const QList<RegisterRow> &rows() const { return m_rows; }

    // On top only while the dates run newest first, otherwise at the bottom.
    int insertionRow() const;
    // The stored row at a model row, or null for the insertion row and anything outside.
    const RegisterRow *rowAt(int modelRow) const;
    bool isSplitRow(int modelRow) const;
    QString spokenColumnName(int column) const; // in full, where the head has a short form

    // The model row of the stored row under edit, or -1 while the buffers are the insertion row's.
    int editRow() const { return m_editRow; }
    void setEditRow(int row);
    // Whether the buffers hold the texts of this row.
    bool ownsBuffers(int modelRow) const;

    RegisterEditBuffers &buffers() { return m_buffers; }
    const RegisterEditBuffers &buffers() const { return m_buffers; }
    void loadRowIntoBuffers(int modelRow);
    void resetInsertionBuffers(); // the date starts from the last one entered, or today

    void setLastEnteredDate(const QString &text) { m_lastEnteredDate = text; }

    void setTwoLineMode(bool enabled) { m_twoLineMode = enabled; }
    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }

Q_SIGNALS:
    void sortChanged(int column, Qt::SortOrder order);

private:
    bool newestFirst() const;
    void emitRowChanged(int modelRow);
    QString columnName(int column) const;
    QVariant insertionText(int column, int role) const;
    QVariant rowText(int modelRow, int column, int role) const;
    QVariant spokenText(const QModelIndex &index) const;
    QString spokenInsertionText(int column) const;
    QVariant alignment(int column) const;
    QVariant foreground(const RegisterRow &row, int column) const;
    QVariant background(int modelRow) const;

    QList<RegisterRow> m_rows; // in display order
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_twoLineMode = false;
    int m_editRow = -1;
    RegisterEditBuffers m_buffers;
    QString m_lastEnteredDate;
};
