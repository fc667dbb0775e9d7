#pragma once

#include <QLineEdit>

// The line edit of the grid. While its completion list is open, Enter takes the highlighted entry
// and stays in the cell.
class RegisterLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent *event) override;
};
