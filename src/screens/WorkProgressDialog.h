#pragma once

#include <QProgressDialog>

// Stands before all windows for as long as the object lives, and cannot be put away: the work is
// not to be interrupted, and what is typed meanwhile must not reach a window behind it.
class WorkProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    // Work that ends before the delay (in milliseconds) shows nothing. Until a maximum is set, it
    // does not know how far it is.
    WorkProgressDialog(const QString &text, int delay, QWidget *parent);

public Q_SLOTS:
    void showProgress(int done, int total);
    void reject() override { } // Escape

protected:
    void closeEvent(QCloseEvent *event) override;
};
