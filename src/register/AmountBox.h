#pragma once

#include <QDoubleSpinBox>

#include <cmath>

// The boxes of forms in which an amount is typed. They count in hundredths, whatever the currency.
namespace AmountBox {

inline constexpr double kLargest = 99999999.99; // to either side of zero

// Minor units; an amount that the box cannot hold shows as the box's limit.
inline void show(QDoubleSpinBox *box, qint64 amount)
{
    box->setValue(static_cast<double>(amount) / 100.0);
}

inline qint64 amountOf(const QDoubleSpinBox *box)
{
    return std::llround(box->value() * 100.0);
}

} // namespace AmountBox
