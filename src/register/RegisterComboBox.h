#pragma once

#include <QComboBox>

// The category editor of the grid; a type of its own, so that the grid can tell its editors apart.
class RegisterComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;
};
