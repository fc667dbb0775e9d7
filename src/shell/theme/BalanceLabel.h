#pragma once

#include <QLabel>

// A figure of money; the type of its own lets style sheets and code find such labels.
class BalanceLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};
