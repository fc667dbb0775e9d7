#pragma once

#include <QWidget>

// Shown to someone who is signed in and has no account yet.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget *parent = nullptr);

Q_SIGNALS:
    void createAccountRequested();
};
