#pragma once

#include <QProgressDialog>

// Stands before the window that imports, for as long as the object lives, and cannot be put away:
// an import is not to be interrupted, and what is typed meanwhile must not reach a window behind
// it.
class ImportProgressDialog : public QProgressDialog
{
    Q_OBJECT

public:
    // A run that ends before the delay (in milliseconds) shows nothing. Until a maximum is set, it
    // does not know how far it is.
    ImportProgressDialog(const QString &text, int delay, QWidget *parent);

public Q_SLOTS:
    void reject() override { } // Escape

protected:
    void closeEvent(QCloseEvent *event) override;
};
