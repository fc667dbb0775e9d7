#pragma once

#include <QWidget>

class QLineEdit;
class RegisterLineEdit;

// The payee cell's editor in two-line mode: the payee above, the memo under it.
class PayeeMemoEditor : public QWidget
{
    Q_OBJECT

public:
    explicit PayeeMemoEditor(QWidget *parent = nullptr);

    RegisterLineEdit *payeeEdit() const { return m_payeeEdit; }
    RegisterLineEdit *memoEdit() const { return m_memoEdit; }

    // The editor that `widget` is or lies in, or null.
    static PayeeMemoEditor *around(QWidget *widget);
    // The memo line of that editor, or null.
    static QLineEdit *memoEditBeside(QWidget *widget);

private:
    RegisterLineEdit *m_payeeEdit;
    RegisterLineEdit *m_memoEdit;
};
