#pragma once

#include "data/SplitLine.h"

#include <QDialog>
#include <QList>

#include <utility>

class AppState;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class SplitTable;
class QVBoxLayout;

// Divides one amount over several categories. Nothing is stored, and lines that do not add up are
// taken as they stand: the colour of what remains is the only sign.
class SplitEditorDialog : public QDialog
{
    Q_OBJECT

public:
    // The total is signed, the amounts are typed without a sign. The state is not owned.
    SplitEditorDialog(AppState *appState, qint64 totalAmount, const QList<SplitLine> &lines,
                      QWidget *parent = nullptr);

    // One line with a new id for each row that is not zero, in the sign of the total and without
    // a transaction_id. A row without a category has an empty category_id.
    QList<SplitLine> splitLines() const;

public Q_SLOTS:
    void addRow();
    void removeSelectedRow();
    void updateRemaining();

private:
    void buildTop(QVBoxLayout *layout);
    void buildTable(QVBoxLayout *layout);
    void buildButtons(QVBoxLayout *layout);
    void showLines(const QList<SplitLine> &lines);
    QComboBox *categoryBox(int row) const;
    QDoubleSpinBox *amountBox(int row) const;
    qint64 centsAt(int row) const;

    AppState *m_appState;
    qint64 m_totalAmount;
    QList<std::pair<QString, QString>> m_categoryChoices{}; // id and name
    SplitTable *m_table = nullptr;
    QLabel *m_remainingLabel = nullptr;
};
