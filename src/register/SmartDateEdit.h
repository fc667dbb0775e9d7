#pragma once

#include "register/RegisterLineEdit.h"

#include <QDate>

// The date editor of the grid. Starts on today; the grid reads date() when the cell is left.
class SmartDateEdit : public RegisterLineEdit
{
    Q_OBJECT

public:
    explicit SmartDateEdit(QWidget *parent = nullptr);

    // The date that the current text means, or the last accepted date when it means none.
    QDate date() const;
    // Also rewrites the text and selects it, so that the next key replaces it.
    void setDate(QDate date);

public Q_SLOTS:
    void openCalendarPopup();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QDate m_date;
};
