#pragma once

#include "services/ImportRecords.h"

#include <QStringList>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QTableWidget;

// Which column of a CSV file holds what, beside the file's first rows.
class CsvMappingForm : public QWidget
{
    Q_OBJECT

public:
    explicit CsvMappingForm(QWidget *parent = nullptr);

    void showFile(const QString &path); // stays empty when the file cannot be read
    void clear();
    CsvColumnMapping mapping() const; // -1 for a column that is not chosen

private:
    QGridLayout *buildFields();
    QComboBox *addField(QGridLayout *grid, const QString &name, const QString &label);
    void buildPreview();
    void fillColumns(const QStringList &firstRow);
    void showRows(const QList<QStringList> &rows);

    QComboBox *m_dateColumn = nullptr;
    QComboBox *m_payeeColumn = nullptr;
    QComboBox *m_amountColumn = nullptr;
    QComboBox *m_memoColumn = nullptr;
    QComboBox *m_categoryColumn = nullptr;
    QComboBox *m_dateFormat = nullptr;
    QCheckBox *m_header = nullptr;
    QTableWidget *m_preview = nullptr;
};
