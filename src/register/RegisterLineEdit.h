#pragma once

#include <QLineEdit>

// The line edit of the grid. While its completion list is open, Enter takes the highlighted entry
// and stays in the cell. Ctrl+D is left to the grid.
class RegisterLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    // The grid's key for deleting a row. On X11 a line edit would delete the next letter with it.
    static bool belongsToGrid(const QKeyEvent &key);

protected:
    bool event(QEvent *event) override;
};
