#pragma once

#include <QDoubleSpinBox>

// The amount box of forms: two decimals, right-aligned. Range, prefix and step are the form's.
class SmartAmountField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SmartAmountField(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
