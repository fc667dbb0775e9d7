#pragma once

#include <QWidget>

class QLabel;

// The line under the grid: a passing message at the left, the keys at the right.
class RegisterFooter : public QWidget
{
    Q_OBJECT

public:
    explicit RegisterFooter(const QString &keyHints, QWidget *parent = nullptr);

    // An earlier message's time is not cancelled, so it may end this one early.
    void showMessage(const QString &text, int milliseconds);

private:
    QLabel *makeLabel(const QString &objectName, const QString &color);

    QLabel *m_messageLabel;
};
